#include "dialogs/AddNewLinkDlg.h"

#include "operations/ObjectStore.h"

#include <algorithm>

namespace lw {

AddNewLinkDlg::AddNewLinkDlg(const ObjectStore& document, const Phase& from, const Phase& to,
                             bool isObjectLink)
    : title(isObjectLink ? "Add new Object Link" : "Add new Target Link"),
      isObjectLink(isObjectLink), fromName(from.name), toName(to.name), fromPhase_(from),
      toPhase_(to), document_(document) {
    for (const GateSlot& gate : from.outputs)
        fromCombo.Add(gate.name);
    for (const GateSlot& gate : to.inputs)
        toCombo.Add(gate.name);
}

bool AddNewLinkDlg::LinkExists(const Link& candidate) const {
    return std::find(document_.links.begin(), document_.links.end(), candidate) !=
           document_.links.end();
}

// The answer to either message does not matter: the dialog stays open.
bool AddNewLinkDlg::Ok(UserPrompts& prompts) {
    if (fromCombo.Text().empty() || toCombo.Text().empty()) {
        prompts.ShowMessage("Select both connections!", MessageIcon::None,
                            MessageButtons::OkCancel);
        return false;
    }
    Link candidate;
    candidate.isObjectLink = isObjectLink;
    candidate.fromGate = fromCombo.Text();
    candidate.fromPhaseId = fromPhase_.id;
    candidate.toGate = toCombo.Text();
    candidate.toPhaseId = toPhase_.id;
    if (LinkExists(candidate)) {
        prompts.ShowMessage("Such Link Already Exists!", MessageIcon::None,
                            MessageButtons::OkCancel);
        return false;
    }
    link = candidate;
    return true;
}

} // namespace lw
