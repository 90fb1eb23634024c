#include "diagnostics/Diagnostic.h"

namespace lw {

const char* SeverityName(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

std::string GccLine(const Diagnostic& diagnostic) {
    std::string text = diagnostic.file;
    if (diagnostic.line > 0)
        text += ":" + std::to_string(diagnostic.line);
    return text + ": " + SeverityName(diagnostic.severity) + ": " + diagnostic.message + " [" +
           diagnostic.code + "]";
}

std::string Quoted(const std::string& word, std::size_t shownLength) {
    if (word.size() <= shownLength)
        return "\"" + word + "\"";
    return "\"" + word.substr(0, shownLength) + "...\"";
}

} // namespace lw
