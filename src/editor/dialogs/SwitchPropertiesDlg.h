#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"
#include "dialogs/NumberField.h"
#include "objects/Switch.h"
#include "platform/UserPrompts.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

class ObjectStore;

// "Switch properties": which cases a switch holds, how many of them it picks
// and what the generator checks first. OK writes the fields and rewires both
// sides of the relation, the switch's `caseIds` and each case's `switchId`.
class SwitchPropertiesDlg {
public:
    static constexpr const char* kTitle = "Switch properties";
    // The texts of "Preliminary check:"; the index is what the switch keeps.
    static constexpr const char* kPreliminaryChecks[] = {"no",
                                                         "player_category",
                                                         "friendly_category_1",
                                                         "friendly_category_2",
                                                         "friendly_category_3",
                                                         "enemy_category_1",
                                                         "enemy_category_2",
                                                         "enemy_category_3"};

    // `firstMembers` are the cases a new switch starts with; empty when an
    // existing switch is edited.
    SwitchPropertiesDlg(const ObjectStore& document, Switch& switchObject,
                        const std::vector<std::int32_t>& firstMembers);

    // "Add Case": the chosen candidate becomes a member.
    void OnAdd();
    // "Remove Case": the selected members go back among the candidates.
    void OnRemove();
    // The plane type matters only when there is a preliminary check.
    void OnPreliminaryChanged();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    NumberField number;
    // Sorted, so the switch keeps its cases in the order of their names.
    ListField memberList{true, ListField::Selection::Multiple};
    // Cases of no switch.
    ComboField candidateCombo{true, false};
    ComboField preliminaryCombo{false, false};
    // 0 "Fighter", 1 "Recon", 2 "Bomber"; any other value checks no button.
    std::int32_t planeType = 0;
    bool planeTypeEnabled = false;
    std::string name;

private:
    void FillMembers(const std::vector<std::int32_t>& source);
    void FillCandidates(const std::vector<std::int32_t>& source);
    // The checks after the number was read; false after showing a message.
    bool CheckFields(std::int32_t value, UserPrompts& prompts) const;
    // The first member that names a case of another switch; null for none.
    const std::string* MemberOfOtherSwitch() const;
    void WriteMembers();

    const ObjectStore& document_;
    Switch& switchObject_;
};

} // namespace lw
