#include "document/TemplateWriter.h"

#include <climits>
#include <gtest/gtest.h>

using namespace lw;

namespace {

using Lines = std::vector<std::string>;

// The record lines of the written text: neither empty nor a comment.
Lines RecordLines(const TemplateDesc& desc) {
    const std::string text = TemplateDescText(desc);
    Lines lines;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find("\r\n", begin)) != std::string::npos; begin = end + 2) {
        if (end > begin && text[begin] != '#')
            lines.push_back(text.substr(begin, end - begin));
    }
    EXPECT_EQ(begin, text.size()) << "the text does not end with CR LF";
    return lines;
}

} // namespace

TEST(TemplateWriter, EmptyDescWritesHeaderAndAllEightSections) {
    EXPECT_EQ(TemplateDescText(TemplateDesc()),
              "# tarnwick Ostrel mission template file [text dump]\r\n\r\n"
              "#\r\n## block sets\r\n#\r\n\r\n"
              "#\r\n## geo params\r\n#\r\n\r\n"
              "#\r\n## cases & switches\r\n#\r\n\r\n"
              "#\r\n## gate links\r\n#\r\n\r\n"
              "#\r\n## conditions\r\n#\r\n\r\n"
              "#\r\n## property actions\r\n#\r\n\r\n"
              "#\r\n## unlinks\r\n#\r\n\r\n"
              "#\r\n## gui helpers\r\n#\r\n");
}

TEST(TemplateWriter, OneLineForEachKindOfRecord) {
    TemplateDesc d;
    d.blockSets = {{"blocks_P1", {{"main", "blocks\\sample.group"}}}};
    d.phases = {{"P1", GenerationRandom, {"P2"}, "blocks_P1", "clone_location", ""},
                {"P2", GenerationAzimuth, {"<EMPTY>", "1", "2", "3"}, "blocks_P2", "", ""}};
    d.cases = {{"C1", {"P1", "P2"}}};
    d.switches = {{"S1", 1, 0, 2, {"C1"}}};
    d.links = {{false, "P1", "out_1", "P2", "in_1"}};
    d.checks = {{"P1", CheckInRadius, {"PRIMARY_LINK_PHASE"}}};
    d.actions = {{"P1", "OBJECT", "Model", "<empty>", {}, ""}};
    d.unlinks = {{true, "blocks_P1", {"in_1"}}};
    d.guiHelpers = {{"P1", 100, 200, "", "", 3},
                    {"C1", 300, 200, "", "", 0},
                    {"check", 100, 250, "P1", "in_radius", 0},
                    {"Model", 180, 200, "P1", "OBJECT", 0}};
    EXPECT_EQ(RecordLines(d), (Lines{
                                  "blocks_set; blocks_P1; main(blocks\\sample.group);",
                                  "phase; P1; random(P2); blocks_P1; clone_location;;",
                                  "phase; P2; azimuth(<EMPTY>,1,2,3); blocks_P2; ;;",
                                  "case; C1(P1,P2);",
                                  "switch; 1; 0; 2; S1(C1);",
                                  "tlink; P1(out_1); P2(in_1);",
                                  "check; P1; in_radius(PRIMARY_LINK_PHASE,);",
                                  "action; P1(OBJECT,Model); <empty>();",
                                  "unlink_nonplayer_input; blocks_P1(in_1)",
                                  "gui_helper; P1; 100; 200;\"\"; ( ); 3;",
                                  "gui_helper; C1; 300; 200;",
                                  "gui_helper; check; 100; 250;P1(in_radius)",
                                  "gui_helper; Model; 180; 200;P1; (OBJECT);",
                              }));
}

// Records that no file reads back in this form: the writer still writes every
// field it has, and the reader's loss is covered by the file cases.
TEST(TemplateWriter, WritesWhatTheReaderWouldNotTakeBack) {
    TemplateDesc d;
    d.blockSets = {{"s", {}}, {"t", {{"main", "m"}, {"Extra", "x"}}}};
    d.phases = {{"P", GenerationAzimuth, {"q", "1", "2", "3"}, "b", "clone_location", "f"},
                {"P", GenerationType(42), {"q"}, "b", "", ""}};
    d.switches = {{"S", -1, INT_MAX, INT_MIN, {}}};
    d.checks = {{"P", CheckRange, {"a", "b"}},
                {"P", CheckFree, {"x"}},
                {"P", CheckInRadius, {}},
                {"P", CheckInSector, {"a"}},
                {"P", CheckType(9), {}}};
    d.actions = {{"P", "", "N", "set", {"a", "b c"}, "if(a==1); "}};
    d.unlinks = {{false, "b", {}}};
    d.guiHelpers = {
        {"check", 1, 2, "", "", 5}, {"Model", 1, 2, "P", "", 4}, {"P", -5, -7, "", "detail", 0}};
    EXPECT_EQ(RecordLines(d), (Lines{
                                  "blocks_set; s;",
                                  "blocks_set; t; Extra(x); main(m);",
                                  "phase; P; azimuth(q,1,2,3); b; clone_location;f;",
                                  "phase; P; server_setpos(q); b; ;;",
                                  "switch; -1; 2147483647; -2147483648; S();",
                                  "check; P; range(a,b);",
                                  "check; P; free(x);",
                                  "check; P; in_radius();",
                                  "check; P; in_sector(a);",
                                  "check; P; free();",
                                  "action; P(,N); set(a,b c);if(a==1); ",
                                  "unlink_nonplayer_output; b()",
                                  "gui_helper; check; 1; 2;()",
                                  "gui_helper; Model; 1; 2;P; ();",
                                  "gui_helper; P; -5; -7;",
                              }));
}
