#pragma once

#include <string>
#include <vector>

namespace lw {

// Orders texts as the platform's sorted list controls do: case ignored, and
// a text equal to others goes after them.
bool SortsBefore(const std::string& a, const std::string& b);

// A list box as a dialog's logic sees it: its rows, which of them are
// selected, and whether it is enabled and shown. A sorted list keeps its rows
// in the order of SortsBefore whatever order they are added in.
class ListField {
public:
    enum class Selection { None, Single, Multiple };

    explicit ListField(bool sorted = false, Selection selection = Selection::Single)
        : sorted_(sorted), selectionMode_(selection) {}

    // Adds a row and answers its index.
    int Add(const std::string& text);
    void Remove(int index);
    void Clear();

    int Count() const { return static_cast<int>(rows_.size()); }
    const std::string& At(int index) const { return rows_[index].text; }
    std::vector<std::string> Texts() const;
    bool IsSorted() const { return sorted_; }
    Selection SelectionMode() const { return selectionMode_; }

    // A single-selection list drops its other selection when a row is selected.
    void Select(int index, bool selected = true);
    bool IsSelected(int index) const { return rows_[index].selected; }
    std::vector<int> SelectedIndexes() const;
    std::vector<std::string> SelectedTexts() const;
    void ClearSelection();

    // The first row that begins with `text`, case ignored; -1 for none.
    int FindPrefix(const std::string& text) const;
    // The first row equal to `text`; -1 for none.
    int FindExact(const std::string& text) const;

    bool enabled = true;
    bool shown = true;

private:
    struct Row {
        std::string text;
        bool selected = false;
    };

    bool sorted_;
    Selection selectionMode_;
    std::vector<Row> rows_;
};

} // namespace lw
