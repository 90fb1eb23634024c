#include "catalog/BlockInfo.h"

#include <algorithm>

namespace lw {

bool operator==(const BlockInfo& a, const BlockInfo& b) {
    return a.inputs == b.inputs && a.outputs == b.outputs && a.dynamics == b.dynamics &&
           a.folder == b.folder;
}

namespace {

bool AllFoundIn(const std::vector<std::string>& names, const std::vector<std::string>& in) {
    return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
        return std::find(in.begin(), in.end(), name) != in.end();
    });
}

} // namespace

bool IsCompatibleWith(const BlockInfo& info, const BlockInfo& other) {
    if (info.dynamics.size() != other.dynamics.size() ||
        info.inputs.size() != other.inputs.size() || info.outputs.size() != other.outputs.size()) {
        return false;
    }
    for (const auto& object : info.dynamics) {
        if (other.dynamics.count(object.first) == 0)
            return false;
    }
    return AllFoundIn(info.inputs, other.inputs) && AllFoundIn(info.outputs, other.outputs);
}

std::string BlockNameFromPath(const std::string& path) {
    std::string name = path;
    const std::size_t dot = name.rfind('.');
    if (dot != std::string::npos)
        name.erase(dot);
    for (const char separator : {'\\', '/'}) {
        const std::size_t at = name.rfind(separator);
        if (at != std::string::npos)
            name.erase(0, at + 1);
    }
    return name;
}

} // namespace lw
