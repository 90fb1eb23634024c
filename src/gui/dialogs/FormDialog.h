#pragma once

#include "QtText.h"
#include "platform/UserPrompts.h"

#include <QDialog>
#include <string>

class QDialogButtonBox;

// A modal dialog over a form model. The model holds every field and rule;
// the dialog reads its widgets into the model before each event, lets the
// model handle it, and shows the model again. OK asks the model, which may
// refuse with a message and keep the dialog open.
class FormDialog : public QDialog {
    Q_OBJECT

public:
    FormDialog(const QString& title, QWidget* parent);

    void accept() override;

protected:
    // A dialog taller or wider than the screen's free area would hide its
    // buttons: it is shown in a scroll area of a size that fits instead.
    void showEvent(QShowEvent* event) override;

    // Reads every widget into the model.
    virtual void TakeWidgets() = 0;
    // Shows every field of the model in its widget.
    virtual void ShowModel() = 0;
    // The model's OK: true when the dialog may close as accepted.
    virtual bool AcceptModel() = 0;

    // Runs a model event between reading and showing the widgets.
    template <typename Event> void Handle(Event event) {
        TakeWidgets();
        event();
        ShowModel();
    }

    // "OK" and "Cancel", for the subclass to place in its layout.
    QDialogButtonBox* OkCancelButtons();

private:
    QDialogButtonBox* buttons_ = nullptr;
};

// The view of one form: OK is the form's own, with the prompts for its
// messages.
template <typename Form> class FormView : public FormDialog {
public:
    FormView(const std::string& title, Form& form, lw::UserPrompts& prompts, QWidget* parent)
        : FormDialog(ToQString(title), parent), form_(form), prompts_(prompts) {}

protected:
    bool AcceptModel() override { return form_.Ok(prompts_); }

    Form& form_;
    lw::UserPrompts& prompts_;
};
