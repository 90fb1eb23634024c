#pragma once

#include "support/ScratchFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

// One run of loomwright-tool as a user starts it from a shell.
struct ToolRun {
    std::string output;
    int status = -1;
};

// Runs the tool with the arguments (shell words), standard error joined to
// standard output, in the given working folder or in the test's own.
ToolRun RunTool(const std::string& arguments, const std::string& workingFolder = std::string());

// A word quoted for the shell.
std::string Quoted(const std::string& word);

// A test with a scratch folder of its own, removed after it.
class ToolFolderTest : public ::testing::Test {
protected:
    std::string Path(const std::string& name) const { return (folder / name).string(); }
    // A fresh copy of the sample data folder in the scratch folder, since
    // copies and reloads write into it, with the files of the case's data/
    // folder copied over it.
    std::string FreshDataFor(const std::string& caseFolder) const;

    lw::test::ScratchFolder scratch;
    const std::filesystem::path& folder = scratch.root;
};
