#pragma once

#include "platform/FileSystem.h"

#include <optional>
#include <string>

namespace lw {

// The recovery copy of the open document, kept in a folder of the user's
// (the application's data folder) against a crash, a power cut or a killed
// session: the template as a save writes it, and beside it a small note
// that names the template's path and the time of the copy. Both are written
// whole or not at all, as a save writes.
class Recovery {
public:
    Recovery(FileSystem& disk, std::string folder) : disk_(disk), folder_(std::move(folder)) {}

    struct Kept {
        // The template's path relative to the data folder; empty for a
        // document never saved.
        std::string templatePath;
        std::string time;
        // Where the copy itself lies, as the file system names it.
        std::string copyPath;
    };

    // The copy a run left behind, if there is one whole.
    std::optional<Kept> Find() const;
    // False when the copy could not be written; an older copy then stays.
    bool Write(const std::string& templatePath, const std::string& bytes, const std::string& time);
    void Remove();

    const std::string& Folder() const { return folder_; }

private:
    std::string CopyPath() const { return folder_ + "/recovery.mt"; }
    std::string NotePath() const { return folder_ + "/recovery.txt"; }

    FileSystem& disk_;
    std::string folder_;
};

// The local time now, as "2026-11-25 14:03".
std::string LocalTimeNow();

} // namespace lw
