#include "dialogs/CPhasePropertiesDlg.h"

#include "catalog/BlocksContainer.h"
#include "dialogs/AzimuthAdditionalDlg.h"
#include "dialogs/CAddBlocksDlg.h"
#include "dialogs/GeometryAspectDlg.h"
#include "dialogs/PhaseSubDialogs.h"
#include "dialogs/Refuse.h"
#include "document/Keywords.h"
#include "document/TemplateDesc.h"
#include "operations/Acceptance.h"
#include "operations/ObjectStore.h"

namespace lw {

namespace {

constexpr const char* kMainBlockKey = "main";
// Where the gate names of a "Server Set Waypoint" phase start in the table.
constexpr int kWaypointGatesStart = 6;

// The types whose allocation is chosen in the dialog.
bool TakesAllocation(int type) {
    return type == GenerationAt || type == GenerationRandom || type == GenerationServerWaypoint;
}

// The types that carry three geometry parameters.
bool HasGeometryParams(int type) {
    return type == GenerationAzimuth || type == GenerationFractal || type == GenerationLine;
}

// The file name of a reference without its extension.
std::string BaseName(const std::string& reference) {
    std::string base = reference;
    const std::size_t slash = base.find_last_of("\\/");
    if (slash != std::string::npos)
        base.erase(0, slash + 1);
    const std::size_t dot = base.rfind('.');
    if (dot != std::string::npos)
        base.erase(dot);
    return base;
}

} // namespace

// The combo's index is the type, so the labels go in in type order.
const std::vector<std::string>& CPhasePropertiesDlg::GenerationTypeNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> labels;
        for (std::int32_t type = 0; type < kGenerationTypeCount; ++type)
            labels.push_back(generationTypeLabel(static_cast<GenerationType>(type)));
        return labels;
    }();
    return names;
}

const std::vector<std::string>& CPhasePropertiesDlg::AllocationTypeNames() {
    static const std::vector<std::string> names = {
        "along_range", "clone_location", "in_range", "random", "random_pos",
        "rear_board",  "takeoff ",       "in_1",     "in_2",   "in_3",
        "in_4",        "in_5",           "w_action", "out_1",  "out_2",
        "out_3",       "out_4",          "out_5",    "land"};
    return names;
}

const std::vector<std::string>& CPhasePropertiesDlg::ColorNames() {
    static const std::vector<std::string> names = {"No color", "Yellow",    "Green", "Blue",
                                                   "Red",      "LightGray", "Violet"};
    return names;
}

std::string CPhasePropertiesDlg::AdditionalBlockKey(const std::string& reference, int index) {
    // Past "z" the letter simply runs on through the character codes.
    return BaseName(reference) + "_" + static_cast<char>('a' + index);
}

CPhasePropertiesDlg::CPhasePropertiesDlg(const ObjectStore& document, const BlocksContainer& blocks,
                                         const std::vector<std::string>& blockFolders, Phase& phase)
    : document_(document), blocks_(blocks), blockFolders_(blockFolders), phase_(phase) {
    name = phase_.name;
    folderChecked = !phase_.blocksFolder.empty();
    ReloadBlockLists();
    RefreshConnectors();
    FillAdditionalList();
    for (const std::string& text : GenerationTypeNames())
        generationCombo.Add(text);
    generationCombo.SetCurrent(phase_.generationType);
    FillAllocationList(phase_.generationType);
    allocationCombo.SelectByText(phase_.allocationType);
    FillLinkCombos();
    SelectPrimaryLink();
    SelectSecondaryLink();
    TakeGeoParams();
    for (const std::string& text : ColorNames())
        colorCombo.Add(text);
    colorCombo.SetCurrent(phase_.GetColorIndex());
    RefreshControlStates();
}

// The first block in key order is shown as the main block, whatever its key,
// and the others as additional sets. An additional key that sorts before
// "main" thus swaps places with the main block when OK stores them again.
void CPhasePropertiesDlg::FillAdditionalList() {
    bool first = true;
    for (const auto& block : phase_.blocks) {
        if (!first)
            additionalList.Add(block.second);
        first = false;
    }
}

// Every phase, this one included, can be chosen as a link.
void CPhasePropertiesDlg::FillLinkCombos() {
    document_.ForEach<Phase>([this](const Phase& each) {
        primaryCombo.Add(each.name);
        secondaryCombo.Add(each.name);
    });
}

void CPhasePropertiesDlg::TakeGeoParams() {
    const std::vector<std::string>& params = phase_.geoParams;
    geoParam1 = params.size() > 0 ? params[0] : std::string();
    geoParam2 = params.size() > 1 ? params[1] : std::string();
    geoParam3 = params.size() > 2 ? params[2] : std::string();
}

// The main block and the folder can each be chosen once: a phase that has
// one keeps it, and the radio buttons lock with it.
void CPhasePropertiesDlg::ReloadBlockLists() {
    folderCombo.Clear();
    additionalList.Clear();
    mainBlockCombo.Clear();
    ShowBlockControls();
    for (const std::string& folder : blockFolders_)
        folderCombo.Add(folder);
    for (const auto& block : blocks_.blocks)
        mainBlockCombo.Add(block.first);
    if (!phase_.blocks.empty()) {
        mainBlockCombo.SelectByText(phase_.blocks.begin()->second);
        mainBlockCombo.enabled = false;
        radiosEnabled = false;
    }
    if (!phase_.blocksFolder.empty()) {
        folderCombo.SelectByText(phase_.blocksFolder);
        folderCombo.enabled = false;
        radiosEnabled = false;
    }
}

// A phase takes either a main block with its additional sets, or a folder
// whose first block serves as main block; only one of the two is offered.
void CPhasePropertiesDlg::ShowBlockControls() {
    const bool byBlock = !folderChecked;
    folderCombo.shown = folderCombo.enabled = !byBlock;
    mainBlockCombo.shown = mainBlockCombo.enabled = byBlock;
    additionalList.enabled = byBlock;
    addBlocksEnabled = deleteSelectedEnabled = deleteAllEnabled = byBlock;
}

void CPhasePropertiesDlg::RefreshConnectors() {
    inputList.Clear();
    outputList.Clear();
    const std::string mainBlock = mainBlockCombo.Text();
    if (mainBlock.empty())
        return;
    const BlockInfo info = blocks_.GetBlock(mainBlock);
    for (const std::string& input : info.inputs)
        inputList.Add(input);
    for (const std::string& output : info.outputs)
        outputList.Add(output);
}

void CPhasePropertiesDlg::FillAllocationList(int type) {
    allocationCombo.Clear();
    const std::vector<std::string>& names = AllocationTypeNames();
    const int start = type == GenerationServerWaypoint ? kWaypointGatesStart : 0;
    const int end =
        type == GenerationServerWaypoint ? static_cast<int>(names.size()) : kWaypointGatesStart;
    for (int i = start; i < end; ++i)
        allocationCombo.Add(names[i]);
}

void CPhasePropertiesDlg::RefreshControlStates() {
    const int g = Generation();
    addBlocksEnabled = !mainBlockCombo.Text().empty() && phase_.blocksFolder.empty();
    allocationCombo.enabled = TakesAllocation(g);
    primaryCombo.enabled = g >= 0 && HasPrimaryLink(g);
    secondaryCombo.enabled = HasSecondaryLink(g);
    // Unlike the others this stays enabled with no type selected; the button
    // then does nothing.
    moreParametersEnabled = g < 0 || HasGeometryParams(g);
}

void CPhasePropertiesDlg::SelectAllocation() {
    if (TakesAllocation(Generation()))
        allocationCombo.SelectByText(phase_.allocationType);
    else
        allocationCombo.SetCurrent(-1);
}

void CPhasePropertiesDlg::SelectLink(ComboField& combo, int linkId) {
    const Phase* linked = document_.FindPhase(linkId);
    if (linked == nullptr || !combo.SelectByText(linked->name))
        combo.SetCurrent(-1);
}

void CPhasePropertiesDlg::SelectPrimaryLink() {
    if (HasPrimaryLink(Generation()))
        SelectLink(primaryCombo, phase_.primaryLinkId);
    else
        primaryCombo.SetCurrent(-1);
}

void CPhasePropertiesDlg::SelectSecondaryLink() {
    if (HasSecondaryLink(Generation()))
        SelectLink(secondaryCombo, phase_.secondaryLinkId);
    else
        secondaryCombo.SetCurrent(-1);
}

void CPhasePropertiesDlg::OnMainBlockChanged() {
    RefreshConnectors();
    additionalList.Clear();
    RefreshControlStates();
}

void CPhasePropertiesDlg::OnFolderChanged() {
    phase_.blocksFolder = folderCombo.Text();
    // A folder without blocks adds an empty entry, so no main block shows.
    const std::string first = blocks_.FirstBlockInFolder(phase_.blocksFolder);
    mainBlockCombo.SetCurrent(mainBlockCombo.Add(first));
    OnMainBlockChanged();
}

void CPhasePropertiesDlg::OnMainBlockRadio() {
    ChooseBlocksBy(false);
}

void CPhasePropertiesDlg::OnFolderRadio() {
    ChooseBlocksBy(true);
}

// The radio buttons are enabled only while the phase has neither blocks nor
// a folder; what a folder choice wrote before goes at once.
void CPhasePropertiesDlg::ChooseBlocksBy(bool folder) {
    folderChecked = folder;
    phase_.blocksFolder.clear();
    phase_.blocks.clear();
    ReloadBlockLists();
    OnMainBlockChanged();
}

void CPhasePropertiesDlg::OnAddBlocks(PhaseSubDialogs& sub) {
    const std::string mainBlock = mainBlockCombo.Text();
    if (mainBlock.empty())
        return;
    CAddBlocksDlg dialog(blocks_, mainBlock);
    if (!sub.Run(dialog))
        return;
    for (const std::string& reference : dialog.chosen)
        additionalList.Add(reference);
}

void CPhasePropertiesDlg::OnDeleteSelected() {
    const std::vector<int> selected = additionalList.SelectedIndexes();
    for (auto it = selected.rbegin(); it != selected.rend(); ++it)
        additionalList.Remove(*it);
}

void CPhasePropertiesDlg::OnDeleteAll() {
    additionalList.Clear();
}

void CPhasePropertiesDlg::OnGenerationChanged() {
    FillAllocationList(Generation());
    SelectAllocation();
    SelectPrimaryLink();
    SelectSecondaryLink();
    RefreshControlStates();
}

// The geometry dialog works on copies; Cancel leaves the texts as they were.
template <typename Dialog> void CPhasePropertiesDlg::RunGeometryDialog(PhaseSubDialogs& sub) {
    Dialog dialog(geoParam1, geoParam2, geoParam3);
    if (!sub.Run(dialog))
        return;
    geoParam1 = dialog.param1;
    geoParam2 = dialog.param2;
    geoParam3 = dialog.param3;
}

void CPhasePropertiesDlg::OnMoreParameters(PhaseSubDialogs& sub) {
    switch (Generation()) {
    case GenerationAzimuth:
        RunGeometryDialog<AzimuthAdditionalDlg>(sub);
        break;
    case GenerationFractal:
        RunGeometryDialog<CFractalAdditionalDlg>(sub);
        break;
    case GenerationLine:
        RunGeometryDialog<LineAdditionalDlg>(sub);
        break;
    default:
        break;
    }
}

// The links compare with the name the phase has, not the one being typed.
const char* CPhasePropertiesDlg::FirstFailedCheck() const {
    const int g = Generation();
    const std::string primary = primaryCombo.Text();
    const std::string secondary = secondaryCombo.Text();
    if (name.empty())
        return "Empty phase name!";
    if (document_.PhaseNameTaken(phase_.id, name))
        return "Phase name is used by other phase!";
    if (mainBlockCombo.Text().empty())
        return "Phase main blocks set must be selected!";
    if (g < 0)
        return "Phase Generation type must be set!";
    if (allocationCombo.Current() < 0 && allocationCombo.enabled)
        return "Phase Allocation type must be set!";
    if (HasPrimaryLink(g) && primary == phase_.name)
        return "Primary link must not look at its own phase!";
    if (HasSecondaryLink(g) && secondary == phase_.name)
        return "Secondary link must not look at its own phase!";
    if (HasSecondaryLink(g) && !primary.empty() && primary == secondary)
        return "Secondary link must not look at the same phase as Primary link!";
    if (moreParametersEnabled && (geoParam1.empty() || geoParam2.empty() || geoParam3.empty()))
        return "Geo Parameters must be set! (More Parameters button)";
    return nullptr;
}

bool CPhasePropertiesDlg::Ok(UserPrompts& prompts) {
    if (const char* failure = FirstFailedCheck())
        return Refuse(prompts, failure);
    phase_.name = name;
    WriteBlocks();
    const BlockInfo mainBlock = blocks_.GetBlock(mainBlockCombo.Text());
    WriteGates(mainBlock);
    phase_.generationType = Generation();
    WriteAllocation();
    WriteLinks();
    WriteBlockProperties(mainBlock);
    WriteGeometry();
    const int color = colorCombo.Current();
    if (color >= 0)
        phase_.colorIndex = color;
    return true;
}

void CPhasePropertiesDlg::WriteBlocks() {
    phase_.blocks.clear();
    phase_.blocks[kMainBlockKey] = mainBlockCombo.Text();
    for (int i = 0; i < additionalList.Count(); ++i)
        phase_.blocks[AdditionalBlockKey(additionalList.At(i), i)] = additionalList.At(i);
}

// The gates come from the main block alone, all open; an unknown block
// leaves the phase without gates.
void CPhasePropertiesDlg::WriteGates(const BlockInfo& info) {
    phase_.inputs.clear();
    phase_.outputs.clear();
    for (const std::string& input : info.inputs)
        phase_.inputs.push_back(GateSlot{input, true});
    for (const std::string& output : info.outputs)
        phase_.outputs.push_back(GateSlot{output, true});
}

// A phase that has object properties already keeps them.
void CPhasePropertiesDlg::WriteBlockProperties(const BlockInfo& info) {
    if (phase_.blockProperties.empty() && !info.dynamics.empty())
        phase_.blockProperties = info.dynamics;
}

void CPhasePropertiesDlg::WriteAllocation() {
    const int selected = allocationCombo.Current();
    if (selected < 0) {
        phase_.allocationType.clear();
        return;
    }
    const int offset = Generation() == GenerationServerWaypoint ? kWaypointGatesStart : 0;
    phase_.allocationType = AllocationTypeNames()[selected + offset];
}

// A link name that finds no phase, an empty one included, leaves the link as
// it was. The new name is written by now, so it finds the phase itself.
void CPhasePropertiesDlg::WriteLinks() {
    const int g = Generation();
    auto linkedId = [this](const ComboField& combo, std::int32_t current) {
        const std::string text = combo.Text();
        const Phase* linked = text.empty() ? nullptr : document_.FindPhaseByName(text);
        return linked != nullptr ? linked->id : current;
    };
    phase_.primaryLinkId = HasPrimaryLink(g) ? linkedId(primaryCombo, phase_.primaryLinkId) : 0;
    phase_.secondaryLinkId =
        HasSecondaryLink(g) ? linkedId(secondaryCombo, phase_.secondaryLinkId) : 0;
}

void CPhasePropertiesDlg::WriteGeometry() {
    phase_.geoParams.clear();
    if (HasGeometryParams(Generation()))
        phase_.geoParams = {geoParam1, geoParam2, geoParam3};
}

bool CPhasePropertiesDlg::IsResultValid() const {
    return IsAcceptable(document_, phase_);
}

} // namespace lw
