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
