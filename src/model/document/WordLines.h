#pragma once

#include <istream>
#include <string>
#include <vector>

namespace lw {

// The one shape of every text reader of the program: reads on to the next
// line that holds words, passing over empty lines and comment lines (a "#" in
// the very first column), and cuts it with the common tokeniser. `line` keeps
// the raw text for readers that cut by position. False at the end.
bool ReadWordLine(std::istream& stream, std::string& line, std::vector<std::string>& words);

} // namespace lw
