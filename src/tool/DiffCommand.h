#pragma once

#include "ToolArguments.h"

#include <ostream>
#include <string>

// `diff [--format text|json] OLD NEW`: loads both templates as the editor
// opens them and prints how NEW differs from OLD, object by object. Exit
// status 0 when the documents are the same, 1 when they differ, 2 when one
// cannot be read. The messages of loading go to the error stream, so that
// the listing stays whole.
int RunDiffCommand(const ToolArguments& arguments, std::ostream& out);

class ModelSession;

// Loads a template for a comparison into a session; false, with
// the messages printed to the error stream, when it cannot be read.
bool LoadForComparison(ModelSession& session, const std::string& path);
