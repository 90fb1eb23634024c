#pragma once

#include "document/TemplateDesc.h"

#include <string>

namespace lw {

// The line of each kind of record as the writer writes it, without its line
// end, with the format's exact punctuation.
std::string BlockSetLine(const BlockSetDesc& blockSet);
std::string PhaseLine(const PhaseDesc& phase);
std::string CaseLine(const CaseDesc& caseDesc);
std::string SwitchLine(const SwitchDesc& switchDesc);
std::string LinkLine(const LinkDesc& link);
std::string CheckLine(const CheckDesc& check);
std::string ActionLine(const ActionDesc& action);
std::string UnlinkLine(const UnlinkDesc& unlink);
std::string GuiHelperLine(const GuiHelperDesc& helper);

} // namespace lw
