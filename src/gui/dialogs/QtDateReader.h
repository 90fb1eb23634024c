#pragma once

#include "dialogs/CalendarDate.h"

// Reads a stored date in the "%d.%m.%Y" form first, then in the user's own
// short date form; the time of day, if any, is not part of the value.
lw::DateReader QtDateReader();
