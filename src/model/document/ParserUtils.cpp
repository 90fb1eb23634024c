#include "document/ParserUtils.h"

namespace SortieKitSpace {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string trimBlanks(const std::string& text) {
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && isBlank(text[begin]))
        ++begin;
    while (end > begin && isBlank(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

// A double quote at pos that no later quote closes.
bool isStrayQuote(const std::string& line, std::size_t pos) {
    return line[pos] == '"' && line.find('"', pos + 1) == std::string::npos;
}

// The ")" that closes the "(" at `open`, counting the pairs inside; npos when
// the line ends first.
std::size_t matchingBracket(const std::string& line, std::size_t open) {
    int depth = 0;
    for (std::size_t i = open + 1; i < line.size(); ++i) {
        if (line[i] == '(') {
            ++depth;
        } else if (line[i] == ')') {
            if (depth == 0)
                return i;
            --depth;
        }
    }
    return std::string::npos;
}

} // namespace

bool ParserUtils::isAuxChar(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte <= 0x20 || byte == 0x7f)
        return true;
    switch (c) {
    case ';':
    case ',':
    case '(':
    case ')':
    case '=':
    case '<':
    case '>':
        return true;
    default:
        return false;
    }
}

void ParserUtils::parseLineIntoWords(std::vector<std::string>& words, const std::string& line) {
    std::size_t pos = 0;
    while (skipToWord(line, pos))
        words.push_back(getNextWord(line, pos));
}

bool ParserUtils::skipToWord(const std::string& line, std::size_t& pos) {
    while (true) {
        eatAuxChars(line, pos);
        if (pos >= line.size())
            return false;
        // A stray quote only separates, and makes no empty word at the end.
        if (!isStrayQuote(line, pos))
            return true;
        ++pos;
    }
}

void ParserUtils::eatAuxChars(const std::string& line, std::size_t& pos) {
    while (pos < line.size() && isAuxChar(line[pos]))
        ++pos;
}

std::string ParserUtils::getNextWord(const std::string& line, std::size_t& pos) {
    if (pos < line.size() && line[pos] == '"') {
        if (!isStrayQuote(line, pos))
            return getNextEmbracedWord(line, pos, '"');
        // Taking the rest of the line would make a word of separators, which
        // the writer puts back as they are and the next reading splits. A
        // stray quote separates instead, and the word behind it reads the same
        // every time.
        ++pos;
        eatAuxChars(line, pos);
    }
    const std::size_t begin = pos;
    while (pos < line.size() && !isAuxChar(line[pos]))
        ++pos;
    return line.substr(begin, pos - begin);
}

std::string ParserUtils::getNextEmbracedWord(const std::string& line, std::size_t& pos,
                                             char closing) {
    if (pos >= line.size())
        return std::string();
    const std::size_t begin = pos + 1;
    const std::size_t end = line.find(closing, begin);
    if (end == std::string::npos) {
        pos = line.size();
        return line.substr(begin);
    }
    pos = end + 1;
    return line.substr(begin, end - begin);
}

void ParserUtils::getParamsInBrackets(std::vector<std::string>& params, const std::string& line,
                                      std::size_t& pos) {
    const std::size_t open = pos < line.size() ? line.find('(', pos) : std::string::npos;
    if (open == std::string::npos) {
        pos = line.size();
        return;
    }
    // Brackets nest, so that an entry such as "f(a,b)" stays whole; a comma
    // splits only at the outer level. Where an inner bracket is never closed,
    // the pair ends at the first ")" instead: the entries then hold no ")",
    // and written back in a pair they read back the same.
    std::size_t close = matchingBracket(line, open);
    if (close == std::string::npos)
        close = line.find(')', open + 1);
    const std::size_t end = close == std::string::npos ? line.size() : close;
    pos = close == std::string::npos ? line.size() : close + 1;

    std::vector<std::string> entries(1);
    int depth = 0;
    for (std::size_t i = open + 1; i < end; ++i) {
        const char c = line[i];
        if (c == '(')
            ++depth;
        else if (c == ')')
            --depth;
        if (c == ',' && depth == 0)
            entries.emplace_back();
        else
            entries.back() += c;
    }
    if (entries.size() == 1 && trimBlanks(entries.front()).empty())
        return;
    for (const std::string& entry : entries)
        params.push_back(trimBlanks(entry));
}

} // namespace SortieKitSpace
