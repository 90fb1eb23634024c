#include "diagnostics/DiagnosticsJson.h"

#include "text/JsonString.h"

namespace lw {

std::string TemplateResultJson(const std::string& file, const std::vector<std::string>& messages,
                               const Diagnostics& diagnostics) {
    std::string json = "{\"file\": " + JsonString(file) + ", \"messages\": [";
    for (std::size_t i = 0; i < messages.size(); ++i)
        json += (i == 0 ? "" : ", ") + JsonString(messages[i]);
    json += "], \"diagnostics\": [";
    for (std::size_t i = 0; i < diagnostics.size(); ++i) {
        const Diagnostic& d = diagnostics[i];
        json += std::string(i == 0 ? "" : ", ") + "{\"file\": " + JsonString(d.file) +
                ", \"line\": " + std::to_string(d.line) + ", \"severity\": \"" +
                SeverityName(d.severity) + "\", \"code\": " + JsonString(d.code) +
                ", \"message\": " + JsonString(d.message) +
                ", \"object\": " + JsonString(d.object) + "}";
    }
    return json + "]}";
}

} // namespace lw
