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

} // namespace
