#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"
#include "objects/Unlinker.h"
#include "platform/UserPrompts.h"

#include <cstdint>

namespace lw {

class ObjectStore;
class Phase;

// "Unlink properties (unlink non-player gates)": the gates of one phase that
// an unlinker cuts. Both lists hold rows "input:<gate>" and "output:<gate>";
// the gates the unlinker cuts start in `unlinkList`, the others in `gateList`.
class UnlinkPropertiesDlg {
public:
    static constexpr const char* kTitle = "Unlink properties (unlink non-player gates)";

    // `preselectedPhaseId` is the phase a new unlinker is offered for; 0 for
    // none.
    UnlinkPropertiesDlg(const ObjectStore& document, Unlinker& unlinker,
                        std::int32_t preselectedPhaseId);

    // Another phase was chosen: its gates fill the lists anew.
    void OnPhaseChanged();
    // ">>>", or a double click in `gateList`: the selected gates are to be cut.
    void OnMoveToUnlink();
    // "<<<", or a double click in `unlinkList`: the selected gates stay linked.
    void OnMoveBack();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    ComboField phaseCombo{true, false};
    ListField gateList{true, ListField::Selection::Multiple};
    ListField unlinkList{true, ListField::Selection::Multiple};
    bool moveToUnlinkEnabled = false;
    bool moveBackEnabled = false;

private:
    void RefillGateLists();
    void UpdateGateControls();
    // Whether an unlinker other than this one already cuts gates of the phase.
    bool PhaseHasOtherUnlinker(const Phase& phase) const;
    void WriteGates();

    const ObjectStore& document_;
    Unlinker& unlinker_;
};

} // namespace lw
