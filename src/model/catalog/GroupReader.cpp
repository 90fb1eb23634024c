#include "catalog/GroupReader.h"

#include "document/ParserUtils.h"
#include "text/TextLines.h"

#include <string_view>

using SortieKitSpace::ParserUtils;

namespace lw {

namespace {

bool IsWhiteSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f';
}

bool IsPlainWordChar(char c) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))
        return true;
    return std::string_view("_-+.{}|").find(c) != std::string_view::npos;
}

std::string NextGroupWord(const std::string& line, std::size_t& pos) {
    if (line[pos] == '"')
        return ParserUtils::getNextEmbracedWord(line, pos, '"');
    if (line[pos] == '[')
        return ParserUtils::getNextEmbracedWord(line, pos, ']');
    const std::size_t begin = pos;
    while (pos < line.size() && IsPlainWordChar(line[pos]))
        ++pos;
    return line.substr(begin, pos - begin);
}

enum class LineClass { Close, Dynamic, Input, Output, Name, Property, Other };

LineClass Classify(const std::vector<std::string>& words) {
    if (words.empty())
        return LineClass::Other;
    const std::string& first = words.front();
    if (first == "}")
        return LineClass::Close;
    if (first == "MCU_H_Dynamic")
        return LineClass::Dynamic;
    if (first == "MCU_H_Input")
        return LineClass::Input;
    if (first == "MCU_H_Output")
        return LineClass::Output;
    if (words.size() == 2 && first == "Name")
        return LineClass::Name;
    if (words.size() == 2 && first == "Property")
        return LineClass::Property;
    return LineClass::Other;
}

// The sections are flat: the first close line ends a section, whatever
// braces it held, and only the three section kinds are looked into.
class GroupStateMachine {
public:
    GroupStateMachine(BlockInfo& info, GroupReadReport* report) : info_(info), report_(report) {}

    void Feed(const std::vector<std::string>& words, int line) {
        line_ = line;
        const LineClass lineClass = Classify(words);
        if (report_ != nullptr && state_ != State::Outside)
            NoteSkippedKeyLine(lineClass, words);
        switch (state_) {
        case State::Outside:
            Outside(lineClass);
            break;
        case State::InDynamic:
            InDynamic(lineClass, words);
            break;
        case State::InInput:
            InGateSection(lineClass, words, info_.inputs);
            break;
        case State::InOutput:
            InGateSection(lineClass, words, info_.outputs);
            break;
        }
    }

    // A section that the file's end leaves open: a dynamic section's
    // properties are then not stored.
    void Finish() {
        if (report_ != nullptr && state_ == State::InDynamic)
            Note(sectionLine_, Severity::Error, "group-unclosed-section",
                 "The MCU_H_Dynamic section is never closed; its properties are not read.");
    }

private:
    enum class State { Outside, InDynamic, InInput, InOutput };

    void Note(int line, Severity severity, const char* code, const std::string& message) {
        report_->diagnostics.push_back(
            Diagnostic{report_->file, line, severity, code, message, std::string(), 0});
    }

    // A Name or Property line in a section is read only with exactly one value.
    void NoteSkippedKeyLine(LineClass lineClass, const std::vector<std::string>& words) {
        const bool keyLine = !words.empty() && (words[0] == "Name" || words[0] == "Property");
        if (lineClass == LineClass::Other && keyLine)
            Note(line_, Severity::Error, "group-skipped-line",
                 "A " + words[0] + " line is read only with exactly one value; this one has " +
                     std::to_string(words.size() - 1) + ", so it is skipped.");
    }

    void Outside(LineClass lineClass) {
        sectionLine_ = line_;
        if (lineClass == LineClass::Dynamic) {
            currentName_.clear();
            currentList_.clear();
            state_ = State::InDynamic;
        } else if (lineClass == LineClass::Input) {
            state_ = State::InInput;
        } else if (lineClass == LineClass::Output) {
            state_ = State::InOutput;
        }
    }

    void InDynamic(LineClass lineClass, const std::vector<std::string>& words) {
        if (lineClass == LineClass::Name) {
            currentName_ = words[1];
        } else if (lineClass == LineClass::Property) {
            currentList_.push_back(words[1]);
        } else if (lineClass == LineClass::Close) {
            if (report_ != nullptr && currentName_.empty())
                Note(sectionLine_, Severity::Warning, "group-unnamed-dynamic",
                     "The MCU_H_Dynamic section has no Name line; its properties stand under an "
                     "empty object name.");
            info_.dynamics[currentName_] = currentList_;
            state_ = State::Outside;
        }
    }

    void InGateSection(LineClass lineClass, const std::vector<std::string>& words,
                       std::vector<std::string>& gates) {
        if (lineClass == LineClass::Name)
            gates.push_back(words[1]);
        else if (lineClass == LineClass::Close)
            state_ = State::Outside;
    }

    BlockInfo& info_;
    GroupReadReport* report_;
    int line_ = 0;
    // Where the section under way began.
    int sectionLine_ = 0;
    State state_ = State::Outside;
    std::string currentName_;
    std::vector<std::string> currentList_;
};

} // namespace

std::vector<std::string> SplitGroupLine(const std::string& line) {
    std::vector<std::string> words;
    std::size_t pos = 0;
    while (pos < line.size() && IsWhiteSpace(line[pos]))
        ++pos;
    while (pos < line.size()) {
        const std::size_t start = pos;
        std::string word = NextGroupWord(line, pos);
        if (!word.empty())
            words.push_back(std::move(word));
        ParserUtils::eatAuxChars(line, pos);
        // A character that is neither part of a word nor a separator, such as
        // "/" or ":", would otherwise stop the line here for good.
        if (pos == start)
            ++pos;
    }
    return words;
}

void ReadGroupStream(BlockInfo& info, std::istream& stream, GroupReadReport* report) {
    GroupStateMachine machine(info, report);
    std::string line;
    int number = 0;
    while (ReadTextLine(stream, line))
        machine.Feed(SplitGroupLine(line), ++number);
    machine.Finish();
}

} // namespace lw
