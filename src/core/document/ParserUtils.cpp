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
    while (true) {
        eatAuxChars(line, pos);
        if (pos >= line.size())
            return;
        words.push_back(getNextWord(line, pos));
    }
}

void ParserUtils::eatAuxChars(const std::string& line, std::size_t& pos) {
    while (pos < line.size() && isAuxChar(line[pos]))
        ++pos;
}

std::string ParserUtils::getNextWord(const std::string& line, std::size_t& pos) {
    if (pos < line.size() && line[pos] == '"')
        return getNextEmbracedWord(line, pos, '"');
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
    // splits only at the outer level.
    std::vector<std::string> entries(1);
    int depth = 0;
    std::size_t i = open + 1;
    for (; i < line.size(); ++i) {
        const char c = line[i];
        if (c == ')' && depth == 0)
            break;
        if (c == '(')
            ++depth;
        else if (c == ')')
            --depth;
        if (c == ',' && depth == 0)
            entries.emplace_back();
        else
            entries.back() += c;
    }
    pos = i < line.size() ? i + 1 : line.size();

    if (entries.size() == 1 && trimBlanks(entries.front()).empty())
        return;
    for (const std::string& entry : entries)
        params.push_back(trimBlanks(entry));
}

} // namespace SortieKitSpace
