#include "seams/PropertyDialogs.h"

#include "document/TemplateDesc.h"

namespace lw {

const char* CheckDialogName(std::int32_t checkType) {
    switch (checkType) {
    case CheckSquad:
        return "CheckSquadPropertiesDlg";
    case CheckLocationType:
        return "CheckLocationTypePropertiesDlg";
    case CheckCoalition:
        return "CheckCoalitionPropertiesDlg";
    case CheckRange:
        return "CheckRangePropertiesDlg";
    case CheckInRadius:
        return "CheckInRadiusPropertiesDlg";
    case CheckInSector:
        return "CheckInSectorPropertiesDlg";
    default:
        return "";
    }
}

const char* ActionDialogName(ActionDialog dialog) {
    switch (dialog) {
    case ActionDialog::Skin:
        return "ActionSkinPropertiesDlg";
    case ActionDialog::Country:
        return "ActionCountryPropertiesDlg";
    case ActionDialog::Model:
        return "ActionModelPropertiesDlg";
    default:
        return "ActionGeneralPropertiesDlg";
    }
}

} // namespace lw
