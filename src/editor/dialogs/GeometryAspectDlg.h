#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/NumberField.h"
#include "platform/UserPrompts.h"

#include <string>

namespace lw {

// The part that the fractal and line parameter dialogs share: the aspect,
// coded in the first text as 0 for "Default", -1 for "Random" and any other
// number for a custom aspect of that value.
class GeometryAspectDlg {
public:
    GeometryAspectDlg(std::string first, std::string second, std::string third);
    virtual ~GeometryAspectDlg() = default;

    // After the user chose another entry of "Aspect:".
    void OnAspectChanged();
    // Reads the fields into the three texts; false, with a message, when a
    // field holds no number.
    bool Ok(UserPrompts& prompts);

    // The three texts in, and out after OK.
    std::string param1;
    std::string param2;
    std::string param3;
    // "Custom", "Default", "Random"; the selection is the aspect index.
    ComboField aspectCombo;
    NumberField aspectValue;

protected:
    // The second and third texts from their fields.
    virtual bool ReadOtherFields(UserPrompts& prompts) = 0;

private:
    void EnableAspectValue();
};

// "Fractal Additional Parameters": the aspect, the deviation in percent and
// the side the phases spread to.
class CFractalAdditionalDlg : public GeometryAspectDlg {
public:
    static constexpr const char* kTitle = "Fractal Additional Parameters";

    CFractalAdditionalDlg(std::string first, std::string second, std::string third);

    NumberField deviation;
    // "both", "left", "right"; a stored word not among them selects nothing.
    ComboField typeCombo;

protected:
    bool ReadOtherFields(UserPrompts& prompts) override;
};

// "Line Additional Parameters": the aspect, the offset in metres and the
// deflection.
class LineAdditionalDlg : public GeometryAspectDlg {
public:
    static constexpr const char* kTitle = "Line Additional Parameters";

    LineAdditionalDlg(std::string first, std::string second, std::string third);

    NumberField offset;
    NumberField deflection;

protected:
    bool ReadOtherFields(UserPrompts& prompts) override;
};

} // namespace lw
