#pragma once

#include "dialogs/ReportView.h"
#include "objects/Link.h"
#include "objects/Phase.h"
#include "platform/UserPrompts.h"

#include <array>
#include <string>
#include <vector>

namespace lw {

class ObjectStore;

// Lists the links at a phase and marks some of them for deletion. The
// document is only read; the caller deletes `toDelete` after OK.
class DeleteLinksDlg {
public:
    static constexpr const char* kTitle = "Delete Links connected to phase";

    static constexpr std::array<ReportColumn, 5> kColumns{{{"From phase", 230},
                                                           {"From connection", 200},
                                                           {"To phase", 230},
                                                           {"To connection", 200},
                                                           {"Object Link", 70}}};

    // A row of the view: one text per column and whether it is selected.
    using Row = ReportRow<kColumns.size()>;

    DeleteLinksDlg(const ObjectStore& document, const Phase& phase);

    // "Delete Selected Links".
    void OnDeleteSelected();
    // OK only ends the dialog; the caller deletes what was chosen.
    bool Ok(UserPrompts&) { return true; }

    std::vector<Row> linkView;
    std::vector<Link> toDelete;
    // The links at the phase that are still in the view.
    std::vector<Link> shown;

private:
    void AddRow(const Link& link);
    int FirstSelectedRow() const;

    const Phase& phase_;
    const ObjectStore& document_;
};

} // namespace lw
