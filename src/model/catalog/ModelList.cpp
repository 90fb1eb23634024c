#include "catalog/ModelList.h"

#include "document/WordLines.h"

namespace lw {

namespace {

// A key line whose value is present and not the empty text.
bool HasValue(const std::vector<std::string>& words) {
    return words.size() >= 2 && !words[1].empty();
}

} // namespace

void ModelList::Read(std::istream& stream) {
    types.clear();
    parseState = 0;
    currentType.clear();
    std::string line;
    std::vector<std::string> words;
    while (ReadWordLine(stream, line, words)) {
        if (parseState == 0 && words[0] == "Type")
            parseState = 1;
        else if (parseState == 1)
            ReadInType(words);
        else if (parseState == 2)
            ReadInModel(words);
    }
}

void ModelList::ReadInType(const std::vector<std::string>& words) {
    const std::string& key = words[0];
    if (key == "Name" && HasValue(words)) {
        currentType = words[1];
        types[currentType] = ModelType{currentType, {}};
    } else if (key == "Model") {
        ModelType& type = types[currentType];
        type.name = currentType;
        type.models.push_back(ModelRecord{std::string(), currentType, std::string()});
        parseState = 2;
    } else if (key == "}") {
        parseState = 0;
    }
}

void ModelList::ReadInModel(const std::vector<std::string>& words) {
    const std::string& key = words[0];
    if (key == "}") {
        parseState = 1;
        return;
    }
    if ((key != "Coalition" && key != "Name") || !HasValue(words))
        return;
    std::vector<ModelRecord>& models = types[currentType].models;
    if (models.empty())
        return;
    ModelRecord& model = models.back();
    (key == "Coalition" ? model.coalition : model.name) = words[1];
}

} // namespace lw
