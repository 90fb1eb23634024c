#include "catalog/ModelList.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

ModelList Read(const std::string& text) {
    ModelList list;
    std::istringstream stream(text);
    list.Read(stream);
    return list;
}

std::string Describe(const ModelRecord& model) {
    return model.typeName + "/" + model.name + "/" + model.coalition;
}

} // namespace

TEST(ModelList, ReadsTypesAndTheirModelsInFileOrder) {
    const ModelList list =
        Read("# models\r\n"
             "Type\r\n{\r\n  Name = Fighter;\r\n"
             "  Model\r\n  {\r\n    Name = \"Hawk Mk 2\";\r\n"
             "    Coalition = North;\r\n  }\r\n"
             "  Model\r\n  {\r\n    Name = Kestrel;\r\n    Coalition =;\r\n  }\r\n}\r\n"
             "Coalition = Stray;\r\n");
    ASSERT_EQ(list.types.size(), 1u);
    const ModelType& fighter = list.types.at("Fighter");
    EXPECT_EQ(fighter.name, "Fighter");
    ASSERT_EQ(fighter.models.size(), 2u);
    EXPECT_EQ(Describe(fighter.models[0]), "Fighter/Hawk Mk 2/North");
    EXPECT_EQ(Describe(fighter.models[1]), "Fighter/Kestrel/");
    EXPECT_EQ(list.parseState, 0);
}
