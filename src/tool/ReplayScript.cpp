#include "ReplayScript.h"

#include <charconv>
#include <sstream>

namespace {

using Kind = ReplayEventKind;

// The pointer events: their numbers (X Y, and the wheel's DELTA) and the
// words that may follow them.
struct PointerShape {
    const char* name;
    Kind kind;
    int numbers;
    bool takesKeys;  // shift and ctrl
    bool takesRight; // the right button held
};

const PointerShape kPointerShapes[] = {
    {"press", Kind::Press, 2, true, false},
    {"release", Kind::Release, 2, true, false},
    {"click", Kind::Click, 2, true, false},
    {"move", Kind::Move, 2, false, true},
    {"dblclick", Kind::DoubleClick, 2, false, false},
    {"rpress", Kind::RightPress, 2, false, false},
    {"rrelease", Kind::RightRelease, 2, false, false},
    {"wheel", Kind::Wheel, 3, false, false},
};

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The line up to a "#" that starts a word.
std::string WithoutComment(const std::string& line) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '#' && (i == 0 || IsBlank(line[i - 1])))
            return line.substr(0, i);
    }
    return line;
}

std::vector<std::string> SplitWords(const std::string& text) {
    std::istringstream split(text);
    std::vector<std::string> words;
    for (std::string word; split >> word;)
        words.push_back(word);
    return words;
}

// A whole word as a decimal integer, with no sign but "-".
bool ReadNumber(const std::string& word, int& value) {
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    return error == std::errc() && stop == end;
}

// Reads a pointer event; the reason it is refused, or empty.
std::string ReadPointerEvent(const PointerShape& shape, const std::vector<std::string>& words,
                             ReplayEvent& event) {
    event.kind = shape.kind;
    int* const numbers[] = {&event.x, &event.y, &event.delta};
    const auto count = static_cast<std::size_t>(shape.numbers);
    if (words.size() <= count)
        return "missing number";
    for (std::size_t i = 0; i < count; ++i) {
        if (!ReadNumber(words[i + 1], *numbers[i]))
            return "not a number";
    }
    for (std::size_t i = count + 1; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (shape.takesKeys && word == "shift")
            event.shift = true;
        else if (shape.takesKeys && word == "ctrl")
            event.ctrl = true;
        else if (shape.takesRight && word == "right")
            event.rightButton = true;
        else
            return "unexpected word";
    }
    return std::string();
}

// Reads an event of one word after its name; the reason it is refused, or empty.
std::string ReadWordEvent(const std::string& name, const std::string& word, ReplayEvent& event) {
    if (name == "key") {
        event.kind = Kind::Key;
        if (word == "Delete")
            event.key = lw::CanvasKey::Delete;
        else if (word == "Escape")
            event.key = lw::CanvasKey::Escape;
        else
            return "unknown key";
    } else if (name == "command") {
        event.kind = Kind::Command;
        const auto command = lw::CommandByName(word);
        if (!command)
            return "unknown command";
        event.command = *command;
    } else if (name == "answer") {
        event.kind = Kind::Answer;
        if (word == "yes")
            event.answer = lw::Answer::Yes;
        else if (word == "no")
            event.answer = lw::Answer::No;
        else if (word == "cancel")
            event.answer = lw::Answer::Cancel;
        else
            return "unknown answer";
    } else {
        event.kind = Kind::Dialog;
        if (word != "ok" && word != "cancel")
            return "unknown dialog outcome";
        event.accept = word == "ok";
    }
    return std::string();
}

// The text behind the first word, without the blanks around it: a path may
// hold blanks.
std::string RestAfterFirstWord(const std::string& text) {
    std::size_t begin = 0;
    while (begin < text.size() && IsBlank(text[begin]))
        ++begin;
    while (begin < text.size() && !IsBlank(text[begin]))
        ++begin;
    while (begin < text.size() && IsBlank(text[begin]))
        ++begin;
    std::size_t end = text.size();
    while (end > begin && IsBlank(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

// Reads the event of a line that is not blank; the reason it is refused, or empty.
std::string ReadEvent(const std::string& text, const std::vector<std::string>& words,
                      ReplayEvent& event) {
    const std::string& name = words[0];
    for (const PointerShape& shape : kPointerShapes) {
        if (name == shape.name)
            return ReadPointerEvent(shape, words, event);
    }
    if (name == "key" || name == "command" || name == "answer" || name == "dialog") {
        if (words.size() != 2)
            return words.size() < 2 ? "missing word" : "unexpected word";
        return ReadWordEvent(name, words[1], event);
    }
    if (name == "file") {
        event.kind = Kind::File;
        event.path = RestAfterFirstWord(text);
        return event.path.empty() ? "missing path" : std::string();
    }
    if (name == "dump") {
        event.kind = Kind::Dump;
        return words.size() == 1 ? std::string() : "unexpected word";
    }
    return "unknown event";
}

} // namespace

ReplayScript ReadReplayScript(std::istream& in) {
    ReplayScript script;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::string text = WithoutComment(line);
        const std::vector<std::string> words = SplitWords(text);
        if (words.empty())
            continue;
        ReplayEvent event;
        const std::string error = ReadEvent(text, words, event);
        if (!error.empty()) {
            script.errorLine = number;
            script.error = error;
            script.errorText = line;
            return script;
        }
        script.events.push_back(event);
    }
    return script;
}
