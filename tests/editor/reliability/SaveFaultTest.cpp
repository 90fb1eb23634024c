// Every way the editor writes a file, under every way a write can fail: the
// old file must stay byte for byte, and the user must be told.
#include "app/EditMenuCommands.h"
#include "app/FileCommands.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/SampleEditor.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

using namespace lw;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

const std::string kData = test::SampleEditor::kData;
const std::string kOld = "old bytes\r\n";

enum class Fault { ReadOnlyFile, MissingFolder, ReadOnlyFolder, FullDisk };

const char* const kSaveFailed = "Can't save template file!";
const char* const kReadOnly = "This file is Read Only!";
const char* const kExportFailed = "Can't open file!";

void RemoveTree(MemoryFileSystem& disk, const std::string& path) {
    for (const DirectoryEntry& entry : disk.ListDirectory(path))
        RemoveTree(disk, path + "/" + entry.name);
    disk.Remove(path);
}

// The editor with a changed document and a phase selected, all four writers
// pointed at one target in the "scg" folder.
class WriterUnderFault {
public:
    WriterUnderFault() {
        editor.Open("scg\\sample_small.mt");
        editor.Select("Contact");
        editor.weaver.undoManager.Push(nullptr);
    }

    void Prepare(Fault fault, const std::string& target) {
        const std::string path = kData + "/" + target;
        if (fault != Fault::MissingFolder)
            editor.disk.AddFile(path, kOld);
        switch (fault) {
        case Fault::ReadOnlyFile:
            editor.disk.MakeReadOnly(path);
            break;
        case Fault::MissingFolder:
            RemoveTree(editor.disk, kData + "/scg");
            break;
        case Fault::ReadOnlyFolder:
            editor.disk.MakeReadOnly(kData + "/scg");
            break;
        case Fault::FullDisk:
            editor.disk.FailNextReplace();
            break;
        }
    }

    test::SampleEditor editor;
    ScriptedFileDialogs dialogs;
    FileCommands files{editor.weaver, dialogs};
    EditMenuCommands edit{editor.weaver, files};
};

// A way of writing a file, with what the user is told when it fails: the
// save dialogs turn a read-only file away before anything is written, and the
// clipboard and Save Selection share the export's own message.
struct Writer {
    const char* name;
    const char* target;
    const char* failed;
    const char* ontoReadOnlyFile;
    std::function<void(WriterUnderFault&)> write;
};

const Writer kWriters[] = {
    {"Save", "scg/target.mt", kSaveFailed, kSaveFailed,
     [](WriterUnderFault& w) {
         w.editor.weaver.fileName = "scg\\target.mt";
         w.files.Save();
     }},
    {"Save As", "scg/target.mt", kSaveFailed, kReadOnly,
     [](WriterUnderFault& w) {
         w.dialogs.answers = {kData + "/scg/target.mt"};
         w.files.SaveAs();
     }},
    {"Copy", "scg/clipboard.mt", kExportFailed, kExportFailed,
     [](WriterUnderFault& w) { w.edit.Copy(); }},
    {"Save Selection", "scg/target.mt", kExportFailed, kReadOnly,
     [](WriterUnderFault& w) {
         w.dialogs.answers = {kData + "/scg/target.mt"};
         w.edit.SaveSelection();
     }},
};

} // namespace

TEST(SaveFaultTest, EveryWriterKeepsTheOldFileUnderEveryFault) {
    const std::pair<Fault, const char*> kFaults[] = {
        {Fault::ReadOnlyFile, "read-only file"},
        {Fault::MissingFolder, "missing folder"},
        {Fault::ReadOnlyFolder, "read-only folder"},
        {Fault::FullDisk, "full disk"},
    };
    for (const Writer& writer : kWriters) {
        for (const auto& [fault, faultName] : kFaults) {
            SCOPED_TRACE(std::string(writer.name) + " onto a " + faultName);
            WriterUnderFault w;
            w.Prepare(fault, writer.target);
            const std::size_t shownBefore = w.editor.prompts.Log().size();
            writer.write(w);

            const auto& log = w.editor.prompts.Log();
            ASSERT_EQ(log.size(), shownBefore + 1);
            EXPECT_EQ(log.back().text,
                      fault == Fault::ReadOnlyFile ? writer.ontoReadOnlyFile : writer.failed);
            const std::string path = kData + "/" + writer.target;
            if (fault == Fault::MissingFolder) {
                EXPECT_EQ(w.editor.disk.KindOf(path), PathKind::Missing);
            } else {
                EXPECT_EQ(w.editor.DataFileText(writer.target), kOld);
            }
            EXPECT_TRUE(w.editor.weaver.undoManager.changed);
        }
    }
}
