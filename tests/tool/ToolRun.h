#pragma once

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
