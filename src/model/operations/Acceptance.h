#pragma once

#include "operations/ObjectStore.h"

namespace lw {

// Whether an object that its dialog accepted may stay in the document: a
// name free to take and something to hold. The dialogs answer this as their
// result check, and the commands that open them ask it again of whatever
// answered for the dialog.
bool IsAcceptable(const ObjectStore& store, const Phase& phase);
bool IsAcceptable(const ObjectStore& store, const Case& item);
bool IsAcceptable(const ObjectStore& store, const Switch& item);
bool IsAcceptable(const ObjectStore& store, const Unlinker& unlinker);

} // namespace lw
