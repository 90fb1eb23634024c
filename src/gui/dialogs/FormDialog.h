#pragma once

#include <QDialog>

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
