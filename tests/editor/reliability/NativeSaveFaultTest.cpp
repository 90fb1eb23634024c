// The faults that only a real disk shows, made with the POSIX process
// calls: a file no one may write, a disk that fills up, a process killed
// while it writes. Windows has none of these calls.
#ifndef _WIN32

#include "app/FileCommands.h"
#include "app/Weaver.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/NativeFileSystem.h"
#include "platform/RecordingPrompts.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/RecordingViewHost.h"
#include "support/ScratchFolder.h"
#include "support/TestFiles.h"

#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace lw;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

const std::string kOld = "old bytes\r\n";
const char* const kSaveFailed = "Can't save template file!";
const char* const kReadOnly = "This file is Read Only!";

} // namespace

namespace {

// The sample data copied onto the real disk, with the small template open
// and changed, and its file on disk holding other bytes than a save writes.
class NativeSaveFaultTest : public ::testing::Test {
protected:
    void SetUp() override {
        fs::copy(test::SampleDataDir(), scratch.root, fs::copy_options::recursive);
        weaver.SetViewHost(&host);
        store.SetInt(EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 0);
        weaver.StartUp(scratch.root.generic_u8string());
        ASSERT_TRUE(weaver.LoadTemplateFile("scg\\sample_small.mt"));
        weaver.undoManager.Push(nullptr);
        test::WriteDiskFile(target, kOld);
    }

    // Runs `write` in a child process whose files may not grow beyond
    // `limit` bytes, as on a disk that fills up; `onFull` is what a write
    // past the limit does to it. Returns the child's wait status.
    int RunWithFileSizeLimit(rlim_t limit, void (*onFull)(int), const std::function<int()>& write) {
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit sizeLimit{limit, limit};
            ::setrlimit(RLIMIT_FSIZE, &sizeLimit);
            std::signal(SIGXFSZ, onFull);
            ::_exit(write());
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    }

    test::ScratchFolder scratch;
    const fs::path target = scratch.root / "scg" / "sample_small.mt";
    NativeFileSystem disk;
    MemoryOptionsStore store;
    RecordingPrompts prompts;
    test::RecordingViewHost host;
    Weaver weaver{prompts, store, disk};
};

void KillSelf(int) {
    ::kill(::getpid(), SIGKILL);
}

} // namespace

TEST_F(NativeSaveFaultTest, AFileWithoutWritePermissionIsRefusedEvenForRoot) {
    fs::permissions(target, fs::perms::owner_read | fs::perms::group_read);
    EXPECT_TRUE(disk.IsReadOnly(target.generic_u8string()));
    EXPECT_FALSE(weaver.SaveTemplateFile());

    ScriptedFileDialogs dialogs;
    FileCommands files{weaver, dialogs};
    dialogs.answers = {target.generic_u8string()};
    files.SaveAs();
    EXPECT_EQ(prompts.MessageTexts(), (Names{kSaveFailed, kReadOnly}));
    EXPECT_EQ(test::DiskBytes(target), kOld);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::group_read);
    EXPECT_EQ(host.title, "Loomwright - scg\\sample_small.mt*");
}

TEST_F(NativeSaveFaultTest, AFullDiskFailsTheSaveAndLeavesNothingBehind) {
    const Names before = test::FolderEntries(target.parent_path());
    const int status = RunWithFileSizeLimit(1024, SIG_IGN, [this] {
        const bool saved = weaver.SaveTemplateFile();
        return !saved && prompts.MessageTexts() == Names{kSaveFailed} ? 0 : 1;
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the save did not fail with its message";
    EXPECT_EQ(test::DiskBytes(target), kOld);
    EXPECT_EQ(test::FolderEntries(target.parent_path()), before);
}

TEST_F(NativeSaveFaultTest, KilledWhileWritingLeavesTheOldFileAndATemporaryAtMost) {
    const Names before = test::FolderEntries(target.parent_path());
    const std::string payload(std::size_t{4} << 20, 'n');
    const int status = RunWithFileSizeLimit(64 * 1024, KillSelf, [&] {
        disk.ReplaceFile(target.generic_u8string(), payload);
        return 0;
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGKILL);
    EXPECT_EQ(test::DiskBytes(target), kOld);

    Names leftovers;
    for (const std::string& name : test::FolderEntries(target.parent_path())) {
        if (std::find(before.begin(), before.end(), name) == before.end())
            leftovers.push_back(name);
    }
    ASSERT_LE(leftovers.size(), 1u);
    if (!leftovers.empty()) {
        EXPECT_EQ(leftovers[0].rfind(".sample_small.mt.", 0), 0u) << leftovers[0];
        EXPECT_EQ(leftovers[0].substr(leftovers[0].size() - 4), ".tmp");
    }
    // The next save is not troubled by what the killed one left.
    EXPECT_TRUE(weaver.SaveTemplateFile());
    EXPECT_NE(test::DiskBytes(target), kOld);
}

#endif
