#include "dialogs/ListField.h"

#include "text/Text.h"

#include <algorithm>

namespace lw {

bool SortsBefore(const std::string& a, const std::string& b) {
    return LowerCase(a) < LowerCase(b);
}

int ListField::Add(const std::string& text) {
    auto place = rows_.end();
    if (sorted_) {
        place = std::upper_bound(
            rows_.begin(), rows_.end(), text,
            [](const std::string& t, const Row& row) { return SortsBefore(t, row.text); });
    }
    place = rows_.insert(place, Row{text, false});
    return static_cast<int>(place - rows_.begin());
}

void ListField::Remove(int index) {
    if (index >= 0 && index < Count())
        rows_.erase(rows_.begin() + index);
}

void ListField::Clear() {
    rows_.clear();
}

std::vector<std::string> ListField::Texts() const {
    std::vector<std::string> texts;
    texts.reserve(rows_.size());
    for (const Row& row : rows_)
        texts.push_back(row.text);
    return texts;
}

void ListField::Select(int index, bool selected) {
    if (index < 0 || index >= Count() || selectionMode_ == Selection::None)
        return;
    if (selected && selectionMode_ == Selection::Single)
        ClearSelection();
    rows_[index].selected = selected;
}

std::vector<int> ListField::SelectedIndexes() const {
    std::vector<int> indexes;
    for (int i = 0; i < Count(); ++i) {
        if (rows_[i].selected)
            indexes.push_back(i);
    }
    return indexes;
}

std::vector<std::string> ListField::SelectedTexts() const {
    std::vector<std::string> texts;
    for (const Row& row : rows_) {
        if (row.selected)
            texts.push_back(row.text);
    }
    return texts;
}

void ListField::ClearSelection() {
    for (Row& row : rows_)
        row.selected = false;
}

int ListField::FindPrefix(const std::string& text) const {
    const std::string prefix = LowerCase(text);
    for (int i = 0; i < Count(); ++i) {
        if (LowerCase(rows_[i].text).compare(0, prefix.size(), prefix) == 0)
            return i;
    }
    return -1;
}

int ListField::FindExact(const std::string& text) const {
    for (int i = 0; i < Count(); ++i) {
        if (rows_[i].text == text)
            return i;
    }
    return -1;
}

} // namespace lw
