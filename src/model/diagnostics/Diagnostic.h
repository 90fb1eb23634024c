#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// An error loses content of the template; a warning points at something
// that is read as written but is likely not what the designer meant.
enum class Severity { Error, Warning };

// One problem of a template or a block file: where it is, how bad, a stable
// code that names its kind, and a sentence that says what was dropped or
// changed and why.
struct Diagnostic {
    std::string file;
    // 1-based; 0 when the problem belongs to no single line.
    int line = 0;
    Severity severity = Severity::Error;
    std::string code;
    std::string message;
    // The object it concerns, by name, and in the open document by id; empty
    // and 0 where there is none.
    std::string object;
    std::int32_t objectId = 0;
};

using Diagnostics = std::vector<Diagnostic>;

const char* SeverityName(Severity severity);

// "FILE:LINE: severity: message [code]", the form that editors and build
// servers turn into links; without a line, "FILE: severity: ...".
std::string GccLine(const Diagnostic& diagnostic);

// A word of a file shown inside a message: quoted, and cut short when long,
// so that a damaged line of any length makes a message of a few words.
std::string Quoted(const std::string& word, std::size_t shownLength = 60);

} // namespace lw
