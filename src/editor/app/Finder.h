#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

class Weaver;

// Find on the canvas: the phases, cases and switches whose name holds a
// text, and the phases whose blocks' names hold it, without regard to case,
// in the order of the document. Going to a match selects it alone and
// centres it in the view.
class Finder {
public:
    explicit Finder(Weaver& weaver) : weaver_(weaver) {}

    // Looks for the text afresh; the next step goes to the first match.
    void Search(const std::string& text);
    // Goes to the next or the previous match, round the end; false when
    // there is none.
    bool Next();
    bool Previous();

    const std::string& Text() const { return text_; }
    std::size_t MatchCount() const { return matches_.size(); }
    // "3 of 7" once a match is shown, "7 found" before, "No match" for none.
    std::string Status() const;

private:
    bool GoTo(std::size_t index);

    Weaver& weaver_;
    std::string text_;
    std::vector<std::int32_t> matches_;
    // The match shown, or none yet.
    std::size_t current_ = SIZE_MAX;
};

} // namespace lw
