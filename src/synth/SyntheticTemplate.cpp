#include "synth/SyntheticTemplate.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace lw::synth {
namespace {

const char* const kEol = "\r\n";
const char* const kBlockFolder = "scg\\0\\blocks\\synth\\";

// A phase's gates are the first two to six of these, so every phase has a
// trigger pair and most have the object gates of the object links.
struct GateSpec {
    const char* name;
    bool input;
};
const std::array<GateSpec, 6> kGates = {{{"start", true},
                                         {"done", false},
                                         {"OBJECT_plane", false},
                                         {"OBJECT_target", true},
                                         {"abort", true},
                                         {"failed", false}}};
constexpr int kMinGates = 2;
constexpr int kGateVariants = 5;

constexpr int kColumns = 128;
constexpr int kSpacingX = 800;
constexpr int kSpacingY = 900;
constexpr int kPhasesPerCase = 4;
constexpr int kCasesPerSwitch = 4;
constexpr int kPhasesPerUnlinker = 8;

int GateCount(int phase) {
    return kMinGates + phase % kGateVariants;
}
bool HasGate(int phase, const char* gate) {
    for (int g = 0; g < GateCount(phase); ++g)
        if (std::string(kGates[g].name) == gate)
            return true;
    return false;
}
int PhaseX(int phase) {
    return 400 + (phase % kColumns) * kSpacingX;
}
int PhaseY(int phase) {
    return 400 + (phase / kColumns) * kSpacingY;
}

std::string BlockFileName(int gateCount) {
    return "gates" + std::to_string(gateCount) + ".group";
}

std::string BlockFile(int gateCount) {
    std::string text = "Group" + std::string(kEol) + "{" + kEol;
    text += "  Name = \"gates" + std::to_string(gateCount) + "\";" + kEol;
    for (int g = 0; g < gateCount; ++g) {
        text += kGates[g].input ? "  MCU_H_Input" : "  MCU_H_Output";
        text += std::string(kEol) + "  {" + kEol;
        text += "    Index = " + std::to_string(10 + g) + ";" + kEol;
        text += "    Name = \"" + std::string(kGates[g].name) + "\";" + kEol;
        text += "  }" + std::string(kEol);
    }
    text += "  MCU_H_Dynamic" + std::string(kEol) + "  {" + kEol;
    text += "    Name = \"Lead\";" + std::string(kEol);
    text += "    Property = \"Fuel\";" + std::string(kEol);
    text += "    Property = \"Altitude\";" + std::string(kEol);
    text += "  }" + std::string(kEol) + "}" + kEol;
    return text;
}

std::string ConfigurationFile() {
    return std::string("tvd scg\\0\\") + kEol + "models models.cfg" + kEol + "actions actions.cfg" +
           kEol + "blocks blocks\\synth" + kEol;
}

std::string ModelsFile() {
    return std::string("Type") + kEol + "{" + kEol + "\tName \"fighter\"" + kEol + "\tModel" +
           kEol + "\t{" + kEol + "\t\tCoalition ally" + kEol + "\t\tName falcon" + kEol + "\t}" +
           kEol + "}" + kEol;
}

std::string RuleEntry(const std::string& name, const std::string& format) {
    return std::string("Action") + kEol + "{" + kEol + "\tName " + name + kEol +
           "\tComment \"generated\"" + kEol + "\tNoHelper 0" + kEol + "\tNeedCondition 0" + kEol +
           "\tComplex 0" + kEol + "\tImport 0" + kEol + "\tFormat \"" + format + "\"" + kEol + "}" +
           kEol;
}

std::string ActionsFile() {
    return RuleEntry("set_fuel", "set_fuel($property, $value)") +
           RuleEntry("set_altitude", "set_altitude($property, $value)");
}

class TemplateText {
public:
    explicit TemplateText(const SyntheticOptions& options)
        : count_(options.phaseCount), prefix_(options.namePrefix) {}

    std::string Build() {
        Section("block sets", &TemplateText::BlockSets);
        Section("geo params", &TemplateText::Phases);
        Section("cases & switches", &TemplateText::CasesAndSwitches);
        Section("gate links", &TemplateText::Links);
        Section("conditions", &TemplateText::Checks);
        Section("property actions", &TemplateText::Actions);
        Section("unlinks", &TemplateText::Unlinks);
        Section("gui helpers", &TemplateText::GuiHelpers);
        return std::move(text_);
    }

private:
    // Laid out as the editor saves it, so that a generated template is its
    // own normalized form.
    void Section(const char* title, void (TemplateText::*write)()) {
        Line("");
        Line("#");
        Line(std::string("## ") + title);
        Line("#");
        (this->*write)();
    }
    void Line(const std::string& line) { text_ += line + kEol; }

    std::string Name(int phase) const { return prefix_ + std::to_string(phase); }
    std::string CaseName(int index) const { return prefix_ + "Case" + std::to_string(index); }
    std::string SwitchName(int index) const { return prefix_ + "Switch" + std::to_string(index); }
    int CaseCount() const { return count_ / kPhasesPerCase; }

    void BlockSets() {
        for (int p = 0; p < count_; ++p)
            Line("blocks_set; blocks_" + Name(p) + "; main(" + kBlockFolder +
                 BlockFileName(GateCount(p)) + ");");
    }

    // Cycles through every generation type; the ones that refer to other
    // phases refer to earlier ones, so a phase near the start is a server one.
    std::string Geometry(int p) const {
        const std::string a = Name(p >= 1 ? p - 1 : 0);
        const std::string b = Name(p >= 2 ? p - 2 : 0);
        switch (p < 2 ? p % 3 : p % 8) {
        case 0:
            return "server_setpos(); blocks_" + Name(p) + "; ;";
        case 1:
            return "server_waypoint(); blocks_" + Name(p) + "; in_2;";
        case 2:
            return "server_targetpos(); blocks_" + Name(p) + "; ;";
        case 3:
            return "azimuth(" + a + ",-1,1500.000000,45); blocks_" + Name(p) + "; ;";
        case 4:
            return "line(" + a + "," + b + ",0,800,5); blocks_" + Name(p) + "; ;";
        case 5:
            return "at(" + a + "); blocks_" + Name(p) + "; clone_location;";
        case 6:
            return "random(" + a + "); blocks_" + Name(p) + "; in_range;scg\\0\\blocks\\synth";
        default:
            return "fractal(" + a + "," + b + ",-1,35,left); blocks_" + Name(p) + "; ;";
        }
    }

    void Phases() {
        for (int p = 0; p < count_; ++p)
            Line("phase; " + Name(p) + "; " + Geometry(p) + ";");
    }

    void CasesAndSwitches() {
        for (int c = 0; c < CaseCount(); ++c) {
            std::string members;
            for (int m = 0; m < kPhasesPerCase; ++m)
                members += (m ? "," : "") + Name(c * kPhasesPerCase + m);
            Line("case; " + CaseName(c) + "(" + members + ");");
        }
        for (int s = 0; s * kCasesPerSwitch < CaseCount(); ++s) {
            std::string members;
            for (int m = 0; m < kCasesPerSwitch && s * kCasesPerSwitch + m < CaseCount(); ++m)
                members += (m ? "," : "") + CaseName(s * kCasesPerSwitch + m);
            Line("switch; 1; " + std::to_string(s % 3) + "; 0; " + SwitchName(s) + "(" + members +
                 ");");
        }
    }

    // The next phase from `after` on (wrapping) that offers `gate`.
    int NextWith(int after, const char* gate) const {
        for (int step = 1; step <= kGateVariants; ++step)
            if (HasGate((after + step) % count_, gate))
                return (after + step) % count_;
        return after;
    }

    void Links() {
        for (int p = 0; p < count_ && count_ > 1; ++p) {
            Line("tlink; " + Name(p) + "(done); " + Name((p + 1) % count_) + "(start);");
            if (HasGate(p, "OBJECT_plane"))
                Line("olink; " + Name(p) + "(OBJECT_plane); " + Name(NextWith(p, "OBJECT_target")) +
                     "(OBJECT_target);");
        }
    }

    static std::string CheckOf(int p) {
        switch (p % 7) {
        case 0:
            return "squad($playersquad,$date)";
        case 1:
            return "range(PRIMARY_LINK_PHASE,closest_outof,3000)";
        case 2:
            return "location_type(Airfield)";
        case 3:
            return "coalition(fe)";
        case 4:
            return "in_radius(PRIMARY_LINK_PHASE,2500)";
        case 5:
            return "in_sector(PRIMARY_LINK_PHASE,120)";
        default:
            return "free()";
        }
    }
    static std::string CheckType(int p) { return CheckOf(p).substr(0, CheckOf(p).find('(')); }

    void Checks() {
        for (int p = 0; p < count_; ++p)
            Line("check; " + Name(p) + "; " + CheckOf(p) + ";");
    }

    void Actions() {
        for (int p = 0; p < count_; ++p) {
            Line("action; " + Name(p) + "(Lead,Fuel); set_fuel(Fuel," +
                 std::to_string(40 + p % 60) + ");");
            Line("action; " + Name(p) +
                 "(Lead,Altitude); set_altitude(Altitude,1800);if(fuel>10); ");
        }
    }

    void Unlinks() {
        for (int p = 0; p < count_; p += kPhasesPerUnlinker)
            Line("unlink_nonplayer_input; blocks_" + Name(p) + "(start)");
    }

    void GuiHelpers() {
        for (int p = 0; p < count_; ++p) {
            const std::string at =
                std::to_string(PhaseX(p)) + "; " + std::to_string(PhaseY(p)) + ";";
            const int colour = p % 7;
            Line("gui_helper; " + Name(p) + "; " + at +
                 (colour ? "\"\"; ( ); " + std::to_string(colour) + ";" : ""));
        }
        for (int c = 0; c < CaseCount(); ++c) {
            const int first = c * kPhasesPerCase;
            Line("gui_helper; " + CaseName(c) + "; " + std::to_string(PhaseX(first) + 300) + "; " +
                 std::to_string(PhaseY(first) + 450) + ";");
        }
        for (int s = 0; s * kCasesPerSwitch < CaseCount(); ++s) {
            const int first = s * kCasesPerSwitch * kPhasesPerCase;
            Line("gui_helper; " + SwitchName(s) + "; " + std::to_string(PhaseX(first) + 300) +
                 "; " + std::to_string(PhaseY(first) + 650) + ";");
        }
        for (int p = 0; p < count_; ++p)
            Line("gui_helper; check; " + std::to_string(PhaseX(p) + 66) + "; " +
                 std::to_string(PhaseY(p) + 172) + ";" + Name(p) + "(" + CheckType(p) + ")");
        for (int p = 0; p < count_; ++p) {
            Line("gui_helper; Fuel; " + std::to_string(PhaseX(p) + 66) + "; " +
                 std::to_string(PhaseY(p) - 22) + ";" + Name(p) + "; (Lead);");
            Line("gui_helper; Altitude; " + std::to_string(PhaseX(p) + 66) + "; " +
                 std::to_string(PhaseY(p) - 55) + ";" + Name(p) + "; (Lead);");
        }
        for (int p = 0; p < count_; p += kPhasesPerUnlinker)
            Line("gui_helper; unlink_" + Name(p) + "; " + std::to_string(PhaseX(p) - 250) + "; " +
                 std::to_string(PhaseY(p) + 300) + ";");
    }

    int count_;
    std::string prefix_;
    std::string text_;
};

} // namespace

std::string GenerateSyntheticTemplate(const SyntheticOptions& options) {
    return "# tarnwick Ostrel mission template file [text dump]" + std::string(kEol) +
           TemplateText(options).Build();
}

SyntheticData GenerateSyntheticData(const SyntheticOptions& options) {
    SyntheticData data;
    data.files["scg/Loomwright.ini"] = ConfigurationFile();
    data.files["scg/0/models.cfg"] = ModelsFile();
    data.files["scg/0/actions.cfg"] = ActionsFile();
    for (int gates = kMinGates; gates < kMinGates + kGateVariants; ++gates)
        data.files["scg/0/blocks/synth/" + BlockFileName(gates)] = BlockFile(gates);
    data.files[SyntheticData::kTemplatePath] = GenerateSyntheticTemplate(options);
    return data;
}

bool WriteSyntheticData(const SyntheticData& data, const std::string& folder) {
    for (const auto& [path, bytes] : data.files) {
        const std::filesystem::path target = std::filesystem::path(folder) / path;
        std::error_code error;
        std::filesystem::create_directories(target.parent_path(), error);
        std::ofstream out(target, std::ios::binary);
        out << bytes;
        if (!out.flush())
            return false;
    }
    return true;
}

} // namespace lw::synth
