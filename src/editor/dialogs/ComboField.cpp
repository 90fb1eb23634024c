#include "dialogs/ComboField.h"

namespace lw {

int ComboField::Add(const std::string& text) {
    const int index = list_.Add(text);
    if (current_ >= index)
        ++current_;
    return index;
}

void ComboField::Remove(int index) {
    if (index < 0 || index >= Count())
        return;
    list_.Remove(index);
    if (current_ == index)
        current_ = -1;
    else if (current_ > index)
        --current_;
}

void ComboField::Clear() {
    list_.Clear();
    current_ = -1;
    editText_.clear();
}

void ComboField::SetCurrent(int index) {
    current_ = index >= 0 && index < Count() ? index : -1;
    if (editable_)
        editText_ = current_ >= 0 ? At(current_) : std::string();
}

bool ComboField::SelectByText(const std::string& text) {
    const int found = text.empty() ? -1 : list_.FindPrefix(text);
    if (found < 0)
        return false;
    SetCurrent(found);
    return true;
}

std::string ComboField::Text() const {
    if (editable_)
        return editText_;
    return current_ >= 0 ? At(current_) : std::string();
}

void ComboField::SetEditText(const std::string& text) {
    if (!editable_)
        return;
    editText_ = text;
    if (current_ >= 0 && At(current_) != text)
        current_ = -1;
}

} // namespace lw
