#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace SortieKitSpace {

// The tokeniser of every text format the program reads. A line is cut into
// words at blanks, tabs, control characters and the separators ; , ( ) = < >.
// A run of separators is one separation, so an empty field yields no word.
// Text between double quotes is one word without its quotes.
class ParserUtils {
public:
    static bool isAuxChar(char c);

    static void parseLineIntoWords(std::vector<std::string>& words, const std::string& line);

    // Moves pos over separators to the next character that can begin a word.
    static void eatAuxChars(const std::string& line, std::size_t& pos);

    // Moves pos to where the next word of parseLineIntoWords begins, past
    // separators and quotes that no later quote closes; false when the line
    // holds no further word. Whoever asks how many words a line has asks
    // this, so that the count never differs from the words themselves.
    static bool skipToWord(const std::string& line, std::size_t& pos);

    // The word that begins at pos; pos moves behind it. A word that begins with
    // a double quote is read as an embraced word; a quote that is never closed
    // is passed over with the separators behind it, and the plain word after
    // them read.
    static std::string getNextWord(const std::string& line, std::size_t& pos);

    // pos stands on an opening delimiter; returns the text up to `closing` and
    // moves pos behind it. An unterminated text runs to the end of the line.
    static std::string getNextEmbracedWord(const std::string& line, std::size_t& pos, char closing);

    // Appends the comma-separated entries of the next bracket pair, each with
    // blanks trimmed; "( )" gives none, "(,a)" gives an empty entry and "a".
    static void getParamsInBrackets(std::vector<std::string>& params, const std::string& line,
                                    std::size_t& pos);
};

} // namespace SortieKitSpace
