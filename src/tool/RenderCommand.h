#pragma once

#include "ToolArguments.h"

// `render [--data DIR] [--layers LIST] [--scale S] [--diff OLD] IN OUT.png`:
// loads IN as the editor opens it, prints the messages, and writes a PNG
// picture of the whole template as the canvas draws it, with what differs
// from OLD marked on it. A bad option value is printed with
// `usage`. Needs no display: it draws on Qt's offscreen platform whatever the
// environment says.
int RunRenderCommand(const ToolArguments& arguments, const char* usage);

// The options with a value that render accepts besides --data.
inline constexpr const char* kLayersOption = "--layers";
inline constexpr const char* kScaleOption = "--scale";
inline constexpr const char* kDiffOption = "--diff";
