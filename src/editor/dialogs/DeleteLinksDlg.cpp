#include "dialogs/DeleteLinksDlg.h"

#include "operations/ObjectStore.h"

namespace lw {

// A link from the phase to itself is taken twice, once for each end.
DeleteLinksDlg::DeleteLinksDlg(const ObjectStore& document, const Phase& phase)
    : phase_(phase), document_(document) {
    for (const Link& link : document_.links) {
        if (link.fromPhaseId == phase_.id)
            shown.push_back(link);
        if (link.toPhaseId == phase_.id)
            shown.push_back(link);
    }
    for (const Link& link : shown)
        AddRow(link);
}

// A link whose phase is gone gets no row, so the rows after it no longer
// stand at the index of their link in `shown`.
void DeleteLinksDlg::AddRow(const Link& link) {
    const Phase* from = document_.FindPhase(link.fromPhaseId);
    const Phase* to = document_.FindPhase(link.toPhaseId);
    if (from == nullptr || to == nullptr)
        return;
    Row row;
    row.texts = {from->name, link.fromGate, to->name, link.toGate,
                 link.isObjectLink ? "True" : "False"};
    linkView.push_back(row);
}

int DeleteLinksDlg::FirstSelectedRow() const {
    for (std::size_t i = 0; i < linkView.size(); ++i) {
        if (linkView[i].selected)
            return static_cast<int>(i);
    }
    return -1;
}

// The row's index, not its link, decides which entry of `shown` goes. There
// are never more rows than entries, as both lose one together.
void DeleteLinksDlg::OnDeleteSelected() {
    for (int index = FirstSelectedRow(); index >= 0; index = FirstSelectedRow()) {
        linkView.erase(linkView.begin() + index);
        toDelete.push_back(shown[index]);
        shown.erase(shown.begin() + index);
    }
}

} // namespace lw
