#pragma once

#include "app/CommandId.h"

#include <QIcon>

// The picture of a toolbar button: 16 by 15 logical pixels, drawn in code at
// device pixel ratios 1, 1.5 and 2 so that it stays sharp on scaled screens.
// A null icon for a command that has no toolbar button.
QIcon ToolbarIcon(lw::CommandId command);
