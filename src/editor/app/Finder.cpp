#include "app/Finder.h"

#include "app/Weaver.h"
#include "catalog/BlockInfo.h"
#include "text/Text.h"

namespace lw {

namespace {

bool Holds(const std::string& lowerText, const std::string& lowerWanted) {
    return lowerText.find(lowerWanted) != std::string::npos;
}

bool Matches(const EditorObject& object, const std::string& wanted) {
    if (const auto* phase = As<Phase>(&object)) {
        if (Holds(LowerCase(phase->name), wanted))
            return true;
        for (const auto& block : phase->blocks) {
            if (Holds(LowerCase(BlockNameFromPath(block.second)), wanted))
                return true;
        }
        return false;
    }
    if (const auto* item = As<Case>(&object))
        return Holds(LowerCase(item->name), wanted);
    if (const auto* item = As<Switch>(&object))
        return Holds(LowerCase(item->name), wanted);
    return false;
}

} // namespace

void Finder::Search(const std::string& text) {
    text_ = text;
    matches_.clear();
    current_ = SIZE_MAX;
    if (text.empty())
        return;
    const std::string wanted = LowerCase(text);
    for (const auto& object : weaver_.objects) {
        if (Matches(*object, wanted))
            matches_.push_back(object->id);
    }
}

bool Finder::Next() {
    if (matches_.empty())
        return false;
    return GoTo(current_ == SIZE_MAX ? 0 : (current_ + 1) % matches_.size());
}

bool Finder::Previous() {
    if (matches_.empty())
        return false;
    return GoTo(current_ == SIZE_MAX || current_ == 0 ? matches_.size() - 1 : current_ - 1);
}

// A match that an edit has taken away since is searched for again.
bool Finder::GoTo(std::size_t index) {
    EditorObject* object = weaver_.FindObject(matches_[index]);
    if (object == nullptr) {
        Search(text_);
        return !matches_.empty() && GoTo(0);
    }
    current_ = index;
    weaver_.ShowObject(*object);
    return true;
}

std::string Finder::Status() const {
    if (matches_.empty())
        return "No match";
    if (current_ == SIZE_MAX)
        return std::to_string(matches_.size()) + " found";
    return std::to_string(current_ + 1) + " of " + std::to_string(matches_.size());
}

} // namespace lw
