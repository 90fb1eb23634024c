// Properties that hold for every template, tried on generated ones and on
// seeded damage done to them: whatever a file holds, what the editor saves of
// it saves again unchanged, and a description built and exported again is
// the description it was built from.
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "support/SampleEditor.h"
#include "synth/SyntheticTemplate.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace lw;

namespace {

constexpr int kPhases = 40;

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// The generated template with seeded damage: lines dropped, doubled, swapped,
// cut short or with a character changed, as a hand edit or a bad merge
// leaves a file. Seed 0 leaves it whole. A quote goes only into a line that
// has none, since a closed pair of quotes around separators makes a word that
// the format cannot write back as one.
std::string Damaged(unsigned seed) {
    std::vector<std::string> lines = Lines(synth::GenerateSyntheticTemplate({kPhases, "P"}));
    std::mt19937 random(seed);
    const auto any = [&] { return random() % lines.size(); };
    for (unsigned damage = 0; seed != 0 && damage < 30; ++damage) {
        std::string& line = lines[any()];
        switch (random() % 5) {
        case 0:
            line.clear();
            break;
        case 1:
            lines.insert(lines.begin() + static_cast<long>(any()), line);
            break;
        case 2:
            std::swap(line, lines[any()]);
            break;
        case 3:
            line.resize(line.size() / 2);
            break;
        default: {
            const char c = ";(),x7\""[random() % 7];
            if (!line.empty() && (c != '"' || line.find('"') == std::string::npos))
                line[random() % line.size()] = c;
        }
        }
    }
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

// An editor on the generated template's data folder, with `text` as a file.
class Editor : public test::SampleEditor {
public:
    explicit Editor(const std::string& text) {
        AddGeneratedData(kPhases);
        disk.AddFile(std::string(kData) + "/scg/input.mt", text);
        Open("scg\\input.mt");
    }
};

std::string Normalized(const std::string& text) {
    return Editor(text).SavedText();
}

} // namespace

TEST(GeneratedTemplatePropertiesTest, NormalizingWhatWasNormalizedChangesNothing) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const std::string once = Normalized(Damaged(seed));
        EXPECT_EQ(Normalized(once), once);
    }
}

TEST(GeneratedTemplatePropertiesTest, ExportBuildExportGivesTheSameDescription) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const Editor editor(Damaged(seed));
        TemplateDesc exported;
        editor.weaver.ExportToDesc(exported);

        Editor rebuilt("");
        TemplateDesc consumed = exported;
        rebuilt.weaver.ClearDocument();
        rebuilt.weaver.BuildFromDesc(consumed);
        TemplateDesc again;
        rebuilt.weaver.ExportToDesc(again);
        EXPECT_TRUE(again == exported) << TemplateDescText(again);
    }
}
