#include "dialogs/CalendarDate.h"
#include "dialogs/CheckCoalitionPropertiesDlg.h"
#include "dialogs/CheckLocationTypePropertiesDlg.h"
#include "dialogs/CheckRangePropertiesDlg.h"
#include "dialogs/CheckSquadPropertiesDlg.h"
#include "dialogs/CheckValuePropertiesDlg.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;
using Status = CalendarDate::Status;

class CheckDialogsTest : public ::testing::Test {
protected:
    void SetUp() override { e.StartUp(); }

    Check& NewCheck(Texts params) {
        Check& check = *e.weaver.NewCheck();
        check.params = std::move(params);
        return check;
    }
    // Each refused OK shows exactly one message under the stop icon.
    void ExpectStops(const Texts& messages) {
        ASSERT_EQ(e.prompts.MessageTexts(), messages);
        for (const auto& shown : e.prompts.Log())
            EXPECT_EQ(shown.icon, MessageIcon::Stop) << shown.text;
    }

    test::SampleEditor e;
};

TEST_F(CheckDialogsTest, SquadOkChecksInOrderThenWritesBeforeTheRangeCheck) {
    Check& check = NewCheck({"$playersquad", "$date"});
    CheckSquadPropertiesDlg dlg(check);
    dlg.usePlayerSquad = dlg.useServerDate = false;
    dlg.date.status = Status::Invalid;
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.squadId.text = "5";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    ExpectStops({"Squad ID must be set (can't be zero)!", "Invalid Date!"});
    EXPECT_EQ(check.params, (Texts{"$playersquad", "$date"}));

    // Out of range: refused with the dialog open, yet already written.
    dlg.date = kDefaultCalendarDate;
    dlg.squadId.text = "1000001";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    EXPECT_EQ(e.prompts.MessageTexts().back(), "Please enter a whole number from 0 to 1000000.");
    EXPECT_EQ(check.params, (Texts{"1000001", "20.07.1917"}));
}

TEST_F(CheckDialogsTest, LocationTypeOkChecksInOrder) {
    Check& check = NewCheck({});
    CheckLocationTypePropertiesDlg dlg(check);
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.typeCombo.SetCurrent(4);
    dlg.OnTypeChanged();
    EXPECT_FALSE(dlg.Ok(e.prompts));
    ExpectStops({"Select Location Type!", "Select at least one check box!"});
    EXPECT_TRUE(check.params.empty());

    dlg.typeCombo.SetCurrent(0);
    dlg.OnTypeChanged();
    ASSERT_TRUE(dlg.Ok(e.prompts));
    EXPECT_EQ(check.params, Texts{"Airfield"});
    EXPECT_TRUE(dlg.IsResultValid());
}

// A refused range is written all the same; text that is no number writes the
// number last read.
TEST_F(CheckDialogsTest, RangeWritesWhatTheValidationRefuses) {
    Check& check = NewCheck({kPrimaryLinkPhase, "at", "1000"});
    CheckRangePropertiesDlg dlg(check);
    dlg.range.text = "far";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    EXPECT_EQ(check.params[2], "1000");
    dlg.range.text = "1000001";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    EXPECT_EQ(check.params[2], "1000001");
    dlg.range.text = "far";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    EXPECT_EQ(check.params[2], "1000001");
    EXPECT_EQ(e.prompts.MessageTexts(),
              Texts(3, "Please enter a whole number from -1 to 1000000."));

    Check& empty = NewCheck({});
    CheckRangePropertiesDlg fresh(empty);
    ASSERT_TRUE(fresh.Ok(e.prompts));
    EXPECT_EQ(empty.params, (Texts{"", "at", "0"}));
}

TEST_F(CheckDialogsTest, InSectorTakesZeroTo359AndDefaultsToZero) {
    Check& sectorCheck = NewCheck({kPrimaryLinkPhase, "45"});
    CheckInSectorPropertiesDlg sector(sectorCheck);
    EXPECT_EQ(sector.arc.text, "45");
    sector.arc.text = "360";
    EXPECT_FALSE(sector.Ok(e.prompts));
    EXPECT_EQ(e.prompts.MessageTexts(), Texts{"Please enter a whole number from 0 to 359."});
    EXPECT_EQ(sectorCheck.params, (Texts{kPrimaryLinkPhase, "360"}));
    sector.arc.text = "359";
    EXPECT_TRUE(sector.Ok(e.prompts));

    Check& single = NewCheck({kPrimaryLinkPhase});
    CheckInSectorPropertiesDlg bare(single);
    EXPECT_EQ(bare.arc.text, "0");
    EXPECT_FALSE(bare.IsResultValid());
    ASSERT_TRUE(bare.Ok(e.prompts));
    EXPECT_EQ(single.params, (Texts{kPrimaryLinkPhase, "0"}));
}

} // namespace
} // namespace lw
