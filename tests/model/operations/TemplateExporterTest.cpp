#include "operations/TemplateExporter.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

using Words = std::vector<std::string>;

class TemplateExporterTest : public ::testing::Test {
protected:
    TemplateDesc Export() const {
        TemplateDesc desc;
        ExportToDesc(store, desc);
        return desc;
    }

    Phase* AddPhase(const std::string& name, std::int32_t generationType = GenerationRandom) {
        Phase* phase = store.NewPhase();
        phase->name = name;
        phase->generationType = generationType;
        return phase;
    }

    // The geometry parameters written for one phase linked to `primary` and
    // `secondary`.
    Words GeoParams(std::int32_t generationType, std::int32_t primary, std::int32_t secondary,
                    const Words& params) {
        Phase* phase = AddPhase("geo", generationType);
        phase->primaryLinkId = primary;
        phase->secondaryLinkId = secondary;
        phase->geoParams = params;
        const TemplateDesc desc = Export();
        store.RemoveObject(phase);
        for (const PhaseDesc& record : desc.phases) {
            if (record.name == "geo")
                return record.geoParams;
        }
        return {"not exported"};
    }

    static Words HelperNames(const TemplateDesc& desc) {
        Words names;
        for (const GuiHelperDesc& helper : desc.guiHelpers)
            names.push_back(helper.objectName);
        return names;
    }

    ObjectStore store;
};

TEST_F(TemplateExporterTest, GeometryLinksLeadTheParametersByGenerationType) {
    const std::int32_t first = AddPhase("first")->id;
    const std::int32_t second = AddPhase("second")->id;
    const std::int32_t aCase = store.NewCase()->id;

    EXPECT_EQ(GeoParams(GenerationAt, 0, 0, {}), Words{"<EMPTY>"});
    EXPECT_EQ(GeoParams(GenerationLine, 0, 0, {"1", "2", "3"}),
              (Words{"<EMPTY>", "<EMPTY>", "1", "2", "3"}));
    EXPECT_EQ(GeoParams(GenerationFractal, first, second, {"1"}), (Words{"first", "second", "1"}));
    EXPECT_EQ(GeoParams(GenerationAzimuth, first, second, {"1"}), (Words{"first", "1"}));
    // An id naming an object of another kind is no link.
    EXPECT_EQ(GeoParams(GenerationLine, aCase, 99, {}), (Words{"<EMPTY>", "<EMPTY>"}));
    for (std::int32_t type :
         {GenerationServerSetPos, GenerationServerWaypoint, GenerationServerTargetPos})
        EXPECT_EQ(GeoParams(type, first, second, {"1", "2"}), (Words{"1", "2"})) << type;
}

TEST_F(TemplateExporterTest, ChecksOfMeasuredTypesNameThePrimaryLinkPhase) {
    const std::int32_t phase = AddPhase("p")->id;
    const auto addCheck = [&](std::int32_t type, const Words& params) {
        Check* check = store.NewCheck();
        check->phaseId = phase;
        check->type = type;
        check->params = params;
        return check;
    };
    addCheck(CheckRange, {});
    const Check* inRadius = addCheck(CheckInRadius, {"other", "500"});
    addCheck(CheckInSector, {"other"});
    addCheck(CheckFree, {"other"});
    addCheck(CheckCoalition, {"1"})->posX = 6;

    const TemplateDesc desc = Export();
    EXPECT_EQ(desc.checks,
              (std::vector<CheckDesc>{{"p", CheckRange, {"PRIMARY_LINK_PHASE"}},
                                      {"p", CheckInRadius, {"PRIMARY_LINK_PHASE", "500"}},
                                      {"p", CheckInSector, {"PRIMARY_LINK_PHASE"}},
                                      {"p", CheckFree, {"other"}},
                                      {"p", CheckCoalition, {"1"}}}));
    EXPECT_EQ(desc.guiHelpers.back(), (GuiHelperDesc{"check", 6, 0, "p", "coalition", 0}));
    EXPECT_EQ(desc.guiHelpers[1].detail, "range");
    // The object keeps what the file does not.
    EXPECT_EQ(inRadius->params, (Words{"other", "500"}));
}

} // namespace
