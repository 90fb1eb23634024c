#pragma once

#include <istream>
#include <map>
#include <string>
#include <vector>

namespace lw {

struct ModelRecord {
    std::string coalition;
    std::string typeName;
    std::string name;
};

struct ModelType {
    std::string name;
    std::vector<ModelRecord> models;
};

// The models the simulation offers, grouped by type, as models.cfg lists them.
class ModelList {
public:
    // Replaces the content by what the stream holds.
    void Read(std::istream& stream);

    std::map<std::string, ModelType> types;
    // 0 outside any block, 1 within a Type block, 2 within one of its Model blocks.
    int parseState = 0;
    // The type name last seen; a Model block goes to this type.
    std::string currentType;

private:
    void ReadInType(const std::vector<std::string>& words);
    void ReadInModel(const std::vector<std::string>& words);
};

} // namespace lw
