#pragma once

#include "platform/UserPrompts.h"

class QWidget;

// Message boxes and Yes/No/Cancel questions as modal Qt message boxes,
// titled with the application's name.
class QtPrompts : public lw::UserPrompts {
public:
    void SetParent(QWidget* parent) { parent_ = parent; }

    using lw::UserPrompts::ShowMessage;
    void ShowMessage(const std::string& text, lw::MessageIcon icon,
                     lw::MessageButtons buttons) override;
    using lw::UserPrompts::Ask;
    lw::Answer Ask(const std::string& question, lw::MessageIcon icon,
                   lw::QuestionButtons buttons) override;

private:
    QWidget* parent_ = nullptr;
};
