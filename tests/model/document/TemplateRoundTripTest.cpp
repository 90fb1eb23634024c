#include "DescPrinting.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

TemplateDesc ReadText(const std::string& text) {
    std::istringstream stream(text, std::ios::in | std::ios::binary);
    TemplateDesc desc;
    ReadTemplateDesc(desc, stream);
    return desc;
}

TemplateDesc RoundTrip(const TemplateDesc& desc) {
    return ReadText(TemplateDescText(desc));
}

// A template as the editor's export makes it: every generation and check type,
// an action without rules, an action without object name, every helper form.
TemplateDesc ExportedTemplate(const std::string& noRule, const std::string& noPhase) {
    TemplateDesc d;
    d.blockSets = {
        {"blocks_P1", {{"main", "scg\\0\\blocks\\air\\patrol.group"}, {"escort", "b\\e.group"}}},
        {"blocks_P2", {{"main", "blocks\\ground\\convoy.group"}}},
        {"blocks_P3", {{"main", "blocks\\sea\\ships.group"}}},
    };
    d.phases = {
        {"P1", GenerationAt, {"P2"}, "blocks_P1", "clone_location", ""},
        {"P2", GenerationAzimuth, {noPhase, "0", "1000", "5000"}, "blocks_P2", "", ""},
        {"P3", GenerationFractal, {"P1", "P2", "1", "2", "3"}, "blocks_P3", "", "scg\\0\\f\\"},
        {"P4", GenerationLine, {"P1", "P3", "10", "20", "30"}, "blocks_P4", "", ""},
        {"P5", GenerationRandom, {"P1"}, "blocks_P5", "new_location", ""},
        {"P6", GenerationServerSetPos, {}, "blocks_P6", "", ""},
        {"P7", GenerationServerWaypoint, {}, "blocks_P7", "clone_location", ""},
        {"P8", GenerationServerTargetPos, {}, "blocks_P8", "", "f"},
    };
    d.cases = {{"C1", {"P1", "P2"}}, {"C2", {"P3"}}};
    d.switches = {{"S1", 1, 0, 2, {"C1", "C2"}}, {"S2", -1, 3, 0, {"C2"}}};
    d.links = {{false, "P1", "out_1", "P2", "in_1"}, {true, "P2", "obj", "P3", "target"}};
    d.checks = {
        {"P1", CheckSquad, {"1943-05-12", "3"}},
        {"P2", CheckLocationType, {"city", "airfield", "port"}},
        {"P3", CheckCoalition, {"1"}},
        {"P4", CheckRange, {"PRIMARY_LINK_PHASE", "1000", "5000"}},
        {"P5", CheckInRadius, {"PRIMARY_LINK_PHASE"}},
        {"P6", CheckInSector, {"PRIMARY_LINK_PHASE", "3"}},
        {"P7", CheckFree, {}},
    };
    d.actions = {
        {"P1", "OBJECT", "Model", "set_model", {"$model"}, "if(coalition==1); "},
        {"P1", "OBJECT", "Model", "set_model", {"b"}, ""},
        {"P2", "", "Country", noRule, {}, ""},
        {"P3", "PLANE", "Skin", "set_skin", {"a", "b"}, "if(x==1); if(y==2); "},
    };
    d.unlinks = {{true, "blocks_P1", {"in_1", "in_2"}}, {false, "blocks_P2", {"out_1"}}};
    d.guiHelpers = {
        {"P1", 100, 200, "", "", 3},
        {"P2", -40, 0, "", "", 0},
        {"C1", 300, 200, "", "", 0},
        {"S1", 300, 260, "", "", 0},
        {"check", 100, 250, "P1", "squad", 0},
        {"check", 120, 250, "P5", "in_radius", 0},
        {"Model", 180, 200, "P1", "OBJECT", 0},
        {"Country", 180, 220, "P2", "", 0},
        {"unlink_P1", 60, 200, "", "", 0},
    };
    return d;
}

} // namespace

TEST(TemplateRoundTrip, ReadingWhatWasWrittenGivesTheExportBack) {
    // The angle brackets of the placeholders are separators to the reader.
    EXPECT_EQ(RoundTrip(ExportedTemplate("<empty>", "<EMPTY>")),
              ExportedTemplate("empty", "EMPTY"));
}
