#pragma once

#include <QString>

// Empty when the editor can open a window; otherwise one line that tells the
// user why not. Qt itself would abort with a long complaint instead.
QString MissingDisplayMessage();
