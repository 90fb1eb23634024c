#include "document/TemplateWriter.h"

#include "document/RecordLines.h"
#include "text/TextLines.h"

#include <sstream>
#include <string>
#include <vector>

namespace lw {

namespace {

void WriteLine(std::ostream& stream, const std::string& line) {
    stream << line << kLineEnd;
}

template <typename Record, typename LineOf>
void WriteRecords(std::ostream& stream, const std::vector<Record>& records, LineOf lineOf) {
    for (const Record& record : records)
        WriteLine(stream, lineOf(record));
}

void WriteSectionHead(std::ostream& stream, const char* title) {
    WriteLine(stream, "#");
    WriteLine(stream, title);
    WriteLine(stream, "#");
}

} // namespace

void WriteTemplateDesc(const TemplateDesc& desc, std::ostream& stream) {
    WriteLine(stream, "# tarnwick Ostrel mission template file [text dump]");
    WriteLine(stream, "");

    WriteSectionHead(stream, "## block sets");
    WriteRecords(stream, desc.blockSets, BlockSetLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## geo params");
    WriteRecords(stream, desc.phases, PhaseLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## cases & switches");
    WriteRecords(stream, desc.cases, CaseLine);
    WriteRecords(stream, desc.switches, SwitchLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## gate links");
    WriteRecords(stream, desc.links, LinkLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## conditions");
    WriteRecords(stream, desc.checks, CheckLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## property actions");
    WriteRecords(stream, desc.actions, ActionLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## unlinks");
    WriteRecords(stream, desc.unlinks, UnlinkLine);
    WriteLine(stream, "");

    WriteSectionHead(stream, "## gui helpers");
    WriteRecords(stream, desc.guiHelpers, GuiHelperLine);
}

std::string TemplateDescText(const TemplateDesc& desc) {
    std::ostringstream stream(std::ios::out | std::ios::binary);
    WriteTemplateDesc(desc, stream);
    return stream.str();
}

} // namespace lw
