#include "dialogs/AzimuthAdditionalDlg.h"
#include "dialogs/GeometryAspectDlg.h"
#include "platform/RecordingPrompts.h"

#include <gtest/gtest.h>
#include <tuple>

namespace lw {
namespace {

using Texts = std::tuple<std::string, std::string, std::string>;

template <typename Dialog> Texts Params(const Dialog& dialog) {
    return {dialog.param1, dialog.param2, dialog.param3};
}

// The aspect of the first text as the dialog shows it: the selected entry
// ("" for none) and the value edit.
template <typename Dialog> std::pair<std::string, std::string> Aspect(const Dialog& dialog) {
    return {dialog.aspectCombo.Text(), dialog.aspectValue.text};
}

using Shown = std::pair<std::string, std::string>;

TEST(AzimuthAdditionalDlgTest, AspectCodesReadAndWrittenBothWays) {
    RecordingPrompts prompts;
    const std::vector<std::pair<std::string, Shown>> codes = {{"-2", {"Random", "0"}},
                                                              {"-1", {"Default", "0"}},
                                                              {"7", {"Custom", "7"}},
                                                              {"0", {"Custom", "0"}},
                                                              {"", {"Custom", "0"}}};
    for (const auto& [code, shown] : codes) {
        AzimuthAdditionalDlg dialog(code, "1500", "45");
        EXPECT_EQ(Aspect(dialog), shown) << code;
        EXPECT_FALSE(dialog.fromServer);
        ASSERT_TRUE(dialog.Ok(prompts));
        EXPECT_EQ(Params(dialog), (Texts{code.empty() ? "0" : code, "1500.000000", "45"}));
    }

    // A custom aspect of -1 is stored as the code of "Default".
    AzimuthAdditionalDlg custom("3", "2.5", "x");
    custom.aspectValue.text = "-1";
    ASSERT_TRUE(custom.Ok(prompts));
    EXPECT_EQ(Params(custom), (Texts{"-1", "2.500000", "0"}));
    EXPECT_EQ(Aspect(AzimuthAdditionalDlg(custom.param1, "", "")), (Shown{"Default", "0"}));
}

} // namespace
} // namespace lw
