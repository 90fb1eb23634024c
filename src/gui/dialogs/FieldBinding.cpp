#include "FieldBinding.h"

#include "QtText.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QStringList>

namespace {

QStringList ToQStringList(const std::vector<std::string>& texts) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts)
        list.append(ToQString(text));
    return list;
}

QAbstractItemView::SelectionMode ToQtMode(lw::ListField::Selection mode) {
    switch (mode) {
    case lw::ListField::Selection::None:
        return QAbstractItemView::NoSelection;
    case lw::ListField::Selection::Single:
        return QAbstractItemView::SingleSelection;
    case lw::ListField::Selection::Multiple:
        return QAbstractItemView::ExtendedSelection;
    }
    return QAbstractItemView::SingleSelection;
}

} // namespace

void ShowList(QListWidget* widget, const lw::ListField& field) {
    const QSignalBlocker blocker(widget);
    widget->setSortingEnabled(false);
    widget->setSelectionMode(ToQtMode(field.SelectionMode()));
    const QStringList texts = ToQStringList(field.Texts());
    bool same = widget->count() == texts.size();
    for (int i = 0; same && i < widget->count(); ++i)
        same = widget->item(i)->text() == texts[i];
    if (!same) {
        widget->clear();
        widget->addItems(texts);
    }
    for (int i = 0; i < widget->count(); ++i)
        widget->item(i)->setSelected(field.IsSelected(i));
    widget->setEnabled(field.enabled);
    widget->setVisible(field.shown);
}

void TakeSelection(const QListWidget* widget, lw::ListField& field) {
    for (int i = 0; i < widget->count() && i < field.Count(); ++i)
        field.Select(i, widget->item(i)->isSelected());
}

void ShowCombo(QComboBox* widget, const lw::ComboField& field) {
    const QSignalBlocker blocker(widget);
    if (widget->isEditable() != field.IsEditable()) {
        widget->setEditable(field.IsEditable());
        if (field.IsEditable()) {
            // Typed text is the combo's value, never a new entry, and is not
            // completed behind the user's back.
            widget->setInsertPolicy(QComboBox::NoInsert);
            widget->setCompleter(nullptr);
        }
    }
    const QStringList texts = ToQStringList(field.Texts());
    bool same = widget->count() == texts.size();
    for (int i = 0; same && i < widget->count(); ++i)
        same = widget->itemText(i) == texts[i];
    if (!same) {
        widget->clear();
        widget->addItems(texts);
    }
    widget->setCurrentIndex(field.Current());
    if (field.IsEditable())
        widget->setEditText(ToQString(field.Text()));
    widget->setEnabled(field.enabled);
    widget->setVisible(field.shown);
}

void TakeCombo(const QComboBox* widget, lw::ComboField& field) {
    field.SetCurrent(widget->currentIndex());
    if (field.IsEditable())
        field.SetEditText(ToStdString(widget->currentText()));
}

void ShowNumber(QLineEdit* widget, const lw::NumberField& field) {
    const QSignalBlocker blocker(widget);
    if (field.digitsOnly && widget->validator() == nullptr) {
        static const QRegularExpression digits(QStringLiteral("[0-9]*"));
        widget->setValidator(new QRegularExpressionValidator(digits, widget));
    }
    widget->setText(ToQString(field.text));
    widget->setEnabled(field.enabled);
}

void TakeNumber(const QLineEdit* widget, lw::NumberField& field) {
    field.text = ToStdString(widget->text());
}
