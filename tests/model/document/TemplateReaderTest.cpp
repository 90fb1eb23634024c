// The grammar of each tag, with its damaged and short forms, is covered by the
// file cases under cases/format; these tests hold what a written file cannot
// show.

#include "document/TemplateReader.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

TemplateDesc Read(const std::string& text, TemplateDesc desc = {}) {
    std::istringstream stream(text, std::ios::in | std::ios::binary);
    ReadTemplateDesc(desc, stream);
    return desc;
}

} // namespace

// The writer drops a colour behind an owner or in a check's helper; the reader
// still takes it.
TEST(TemplateReader, GuiHelperColourIsReadWhateverStandsBeforeIt) {
    const TemplateDesc desc = Read("gui_helper; Skin; 1; 2;P2; (PLANE); 4;\r\n"
                                   "gui_helper; check; 3; -4;\"\"; ( ); 5;\r\n");
    ASSERT_EQ(desc.guiHelpers.size(), 2u);
    EXPECT_TRUE(desc.guiHelpers[0] == (GuiHelperDesc{"Skin", 1, 2, "P2", "PLANE", 4}));
    EXPECT_TRUE(desc.guiHelpers[1] == (GuiHelperDesc{"check", 3, -4, "", "", 5}));
}
