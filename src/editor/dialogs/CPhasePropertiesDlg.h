#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"
#include "platform/UserPrompts.h"

#include <string>
#include <vector>

namespace lw {

class BlockInfo;
class BlocksContainer;
class ObjectStore;
class Phase;
class PhaseSubDialogs;

// "Phase Properties": the one place where a phase gets its blocks, how it is
// generated and allocated, its geometry links and its colour. It edits the
// live phase and writes it on OK; creating the phase and the undo command is
// the caller's work. A chosen folder and a click on a radio button change
// the phase at once, and Cancel does not take that back.
class CPhasePropertiesDlg {
public:
    static constexpr const char* kTitle = "Phase Properties";

    // The display text of each generation type; the index is the type.
    static const std::vector<std::string>& GenerationTypeNames();
    // The allocation types (0 to 5), then the gate names a "Server Set
    // Waypoint" phase chooses from instead (6 to 18). Entry 6 ends in a blank
    // because the template file carries it that way.
    static const std::vector<std::string>& AllocationTypeNames();
    // The phase colours; the index is the phase's colour index.
    static const std::vector<std::string>& ColorNames();

    // The key of the additional block at `index` of the sorted list: its
    // file's base name, "_" and a letter counted on from "a".
    static std::string AdditionalBlockKey(const std::string& reference, int index);

    // The phase's document, the block pool and the folders it was read from.
    CPhasePropertiesDlg(const ObjectStore& document, const BlocksContainer& blocks,
                        const std::vector<std::string>& blockFolders, Phase& phase);

    void OnMainBlockChanged();
    void OnFolderChanged();
    void OnMainBlockRadio();
    void OnFolderRadio();
    void OnAddBlocks(PhaseSubDialogs& sub);
    void OnDeleteSelected();
    void OnDeleteAll();
    void OnGenerationChanged();
    void OnMoreParameters(PhaseSubDialogs& sub);

    // Checks the fields in order, stops at the first failure with its
    // message, and otherwise writes the phase.
    bool Ok(UserPrompts& prompts);
    // What the callers ask after OK before they keep the phase.
    bool IsResultValid() const;

    std::string name;
    // "Blocks Folder" checked rather than "Main Block".
    bool folderChecked = false;
    bool radiosEnabled = true;
    ComboField mainBlockCombo{true};
    ListField inputList{true, ListField::Selection::None};
    ListField outputList{true, ListField::Selection::None};
    ListField additionalList{true, ListField::Selection::Multiple};
    ComboField generationCombo;
    ComboField primaryCombo{true, true};
    ComboField secondaryCombo{true, true};
    ComboField allocationCombo;
    // The geometry parameters as "More Parameters..." left them. They are
    // kept across a change of generation type.
    std::string geoParam1;
    std::string geoParam2;
    std::string geoParam3;
    ComboField colorCombo;
    ComboField folderCombo{true};
    bool addBlocksEnabled = true;
    bool deleteSelectedEnabled = true;
    bool deleteAllEnabled = true;
    bool moreParametersEnabled = true;

private:
    void FillAdditionalList();
    void FillLinkCombos();
    void TakeGeoParams();
    void ReloadBlockLists();
    void ChooseBlocksBy(bool folder);
    void ShowBlockControls();
    void RefreshConnectors();
    void FillAllocationList(int type);
    void RefreshControlStates();
    void SelectAllocation();
    void SelectLink(ComboField& combo, int linkId);
    void SelectPrimaryLink();
    void SelectSecondaryLink();
    // The shown generation type, -1 when none is selected.
    int Generation() const { return generationCombo.Current(); }
    // The first failed check's message, or null when all pass.
    const char* FirstFailedCheck() const;
    template <typename Dialog> void RunGeometryDialog(PhaseSubDialogs& sub);
    void WriteBlocks();
    void WriteGates(const BlockInfo& info);
    void WriteBlockProperties(const BlockInfo& info);
    void WriteAllocation();
    void WriteLinks();
    void WriteGeometry();

    const ObjectStore& document_;
    const BlocksContainer& blocks_;
    const std::vector<std::string>& blockFolders_;
    Phase& phase_;
};

} // namespace lw
