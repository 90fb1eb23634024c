#pragma once

#include <QIcon>

// The icon of the editor's windows: the application's picture at the sizes
// window managers and task bars ask for.
QIcon AppWindowIcon();
