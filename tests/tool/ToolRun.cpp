#include "ToolRun.h"

#include "support/TestFiles.h"

#include <array>
#include <cstdio>
#include <sys/wait.h>

ToolRun RunTool(const std::string& arguments, const std::string& workingFolder) {
    std::string command = std::string(LOOMWRIGHT_TOOL) + " " + arguments + " 2>&1";
    if (!workingFolder.empty())
        command = "cd " + Quoted(workingFolder) + " && " + command;
    ToolRun run;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        return run;
    std::array<char, 4096> buffer;
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        run.output.append(buffer.data(), count);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

std::string Quoted(const std::string& word) {
    std::string quoted = "'";
    for (char c : word)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

std::string ToolFolderTest::FreshDataFor(const std::string& caseFolder) const {
    namespace fs = std::filesystem;
    const fs::path data = folder / "data";
    fs::remove_all(data);
    fs::copy(lw::test::SampleDataDir(), data, fs::copy_options::recursive);
    if (fs::exists(caseFolder + "/data"))
        fs::copy(caseFolder + "/data", data,
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    return data.string();
}
