#pragma once

#include <istream>
#include <string>

namespace lw {

// Every text file the program writes ends its lines with CR LF, on every
// platform: the files are shared with a Windows program that expects them so.
inline constexpr const char* kLineEnd = "\r\n";

// Reads one line of any length, without its line end. LF and CR LF are both
// accepted. Returns false once the stream has nothing more to give.
bool ReadTextLine(std::istream& stream, std::string& line);

} // namespace lw
