#include "objects/Unlinker.h"

#include <algorithm>

namespace lw {

namespace {

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

bool Unlinker::HasInputGate(const std::string& gateName) const {
    return Contains(inputGates, gateName);
}

bool Unlinker::HasOutputGate(const std::string& gateName) const {
    return Contains(outputGates, gateName);
}

std::string StripSetPrefix(const std::string& text) {
    return text.size() < 8 ? text : text.substr(7);
}

} // namespace lw
