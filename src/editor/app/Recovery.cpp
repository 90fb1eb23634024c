#include "app/Recovery.h"

#include "text/TextLines.h"

#include <ctime>

namespace lw {

namespace {

constexpr const char* kTemplateKey = "template=";
constexpr const char* kTimeKey = "time=";

// The value of the note's line that begins with `key`.
std::string NoteValue(std::istream& note, const std::string& key, bool& found) {
    std::string line;
    while (ReadTextLine(note, line)) {
        if (line.compare(0, key.size(), key) == 0) {
            found = true;
            return line.substr(key.size());
        }
    }
    found = false;
    return std::string();
}

} // namespace

std::optional<Recovery::Kept> Recovery::Find() const {
    if (disk_.KindOf(CopyPath()) != PathKind::File)
        return std::nullopt;
    auto note = disk_.OpenForReading(NotePath());
    if (!note)
        return std::nullopt;
    Kept kept;
    bool found = false;
    kept.templatePath = NoteValue(*note, kTemplateKey, found);
    if (!found)
        return std::nullopt;
    kept.time = NoteValue(*note, kTimeKey, found);
    kept.copyPath = CopyPath();
    return kept;
}

// The copy goes first and the note last: a note always names a whole copy.
bool Recovery::Write(const std::string& templatePath, const std::string& bytes,
                     const std::string& time) {
    if (!disk_.MakeFolder(folder_) || !disk_.ReplaceFile(CopyPath(), bytes))
        return false;
    return disk_.ReplaceFile(NotePath(),
                             kTemplateKey + templatePath + kLineEnd + kTimeKey + time + kLineEnd);
}

void Recovery::Remove() {
    disk_.RemoveFile(NotePath());
    disk_.RemoveFile(CopyPath());
}

std::string LocalTimeNow() {
    const std::time_t now = std::time(nullptr);
    char text[32] = {};
    if (const std::tm* local = std::localtime(&now))
        std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", local);
    return text;
}

} // namespace lw
