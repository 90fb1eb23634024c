#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"
#include "dialogs/NumberField.h"

class QComboBox;
class QLineEdit;
class QListWidget;

// The widgets show their form's fields as they are, in the form's order;
// nothing is sorted by Qt. Showing never emits the widgets' signals, so a
// form's event handler cannot run again from its own display.
void ShowList(QListWidget* widget, const lw::ListField& field);
void TakeSelection(const QListWidget* widget, lw::ListField& field);

void ShowCombo(QComboBox* widget, const lw::ComboField& field);
void TakeCombo(const QComboBox* widget, lw::ComboField& field);

void ShowNumber(QLineEdit* widget, const lw::NumberField& field);
void TakeNumber(const QLineEdit* widget, lw::NumberField& field);
