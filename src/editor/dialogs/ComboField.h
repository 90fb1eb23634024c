#pragma once

#include "dialogs/ListField.h"

#include <string>
#include <vector>

namespace lw {

// A combo box as a dialog's logic sees it: a drop-down list shows its selected
// entry, an editable combo shows whatever is in its edit, which selecting an
// entry replaces.
class ComboField {
public:
    explicit ComboField(bool sorted = false, bool editable = false)
        : list_(sorted, ListField::Selection::Single), editable_(editable) {}

    // Adds an entry and answers its index; the selection stays on its entry.
    int Add(const std::string& text);
    void Remove(int index);
    // Empties the list, the selection and the edit.
    void Clear();

    int Count() const { return list_.Count(); }
    const std::string& At(int index) const { return list_.At(index); }
    std::vector<std::string> Texts() const { return list_.Texts(); }
    bool IsSorted() const { return list_.IsSorted(); }
    bool IsEditable() const { return editable_; }

    // The selected entry; -1 for none.
    int Current() const { return current_; }
    // Selects the entry, or nothing for -1.
    void SetCurrent(int index);
    // Selects the first entry that begins with `text`, case ignored. With none
    // the selection stays as it was; answers whether one was found. An empty
    // text finds nothing: a field stored empty, such as a phase's allocation,
    // must not come back from its dialog as the first entry.
    bool SelectByText(const std::string& text);
    // What the combo shows.
    std::string Text() const;
    // The user typed into an editable combo.
    void SetEditText(const std::string& text);

    bool enabled = true;
    bool shown = true;

private:
    ListField list_;
    bool editable_;
    int current_ = -1;
    std::string editText_;
};

} // namespace lw
