#include "QtActionGeneralPropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {

// Setting an edit's text moves its cursor to the end; an edit whose text the
// model left alone keeps the cursor where the user is typing.
void ShowText(QLineEdit* edit, const std::string& text) {
    const QString shown = ToQString(text);
    if (edit->text() != shown)
        edit->setText(shown);
}

} // namespace

QtActionGeneralPropertiesDlg::QtActionGeneralPropertiesDlg(lw::ActionGeneralPropertiesDlg& form,
                                                           lw::UserPrompts& prompts,
                                                           QWidget* parent)
    : FormView(lw::ActionGeneralPropertiesDlg::kTitle, form, prompts, parent) {
    ruleCombo_ = new QComboBox(this);
    ruleCombo_->setObjectName("ruleCombo");
    comment_ = ReadOnlyEdit("comment");
    format_ = ReadOnlyEdit("format");
    parameter_ = new QLineEdit(this);
    parameter_->setObjectName("parameter");
    condition_ = new QLineEdit(this);
    condition_->setObjectName("condition");
    auto* addRuleButton = new QPushButton(tr("Add Rule"), this);
    addRuleButton->setObjectName("addRuleButton");
    MakeRuleList();
    auto* deleteButton = new QPushButton(tr("Delete"), this);
    deleteButton->setObjectName("deleteButton");
    imported_ = new QPlainTextEdit(this);
    imported_->setObjectName("imported");
    imported_->setReadOnly(true);

    auto* ruleForm = new QFormLayout;
    ruleForm->addRow(tr("Rule:"), ruleCombo_);
    ruleForm->addRow(tr("Comments:"), comment_);
    ruleForm->addRow(tr("Format (parameters and conditions):"), format_);
    ruleForm->addRow(tr("Parameter:"), parameter_);
    ruleForm->addRow(tr("Condition:"), condition_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(ruleForm);
    layout->addWidget(addRuleButton, 0, Qt::AlignRight);
    layout->addWidget(new QLabel(tr("Rules in the Action"), this));
    layout->addWidget(ruleList_, 1);
    layout->addWidget(deleteButton, 0, Qt::AlignRight);
    layout->addWidget(new QLabel(tr("Rule being imported contains:"), this));
    layout->addWidget(imported_);
    layout->addWidget(OkCancelButtons());

    connect(ruleCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnRuleChanged(); }); });
    connect(parameter_, &QLineEdit::textEdited, this,
            [this] { Handle([&] { form_.OnParameterChanged(); }); });
    connect(condition_, &QLineEdit::textEdited, this,
            [this] { Handle([&] { form_.OnConditionChanged(); }); });
    connect(addRuleButton, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnAddRule(prompts_); }); });
    connect(deleteButton, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnDelete(); }); });
    ShowModel();
}

QLineEdit* QtActionGeneralPropertiesDlg::ReadOnlyEdit(const char* objectName) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(objectName);
    edit->setReadOnly(true);
    return edit;
}

void QtActionGeneralPropertiesDlg::MakeRuleList() {
    ruleList_ = new QTableWidget(this);
    ruleList_->setObjectName("ruleList");
    ruleList_->setShowGrid(true);
    ruleList_->setSelectionBehavior(QAbstractItemView::SelectRows);
    ruleList_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ruleList_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ruleList_->verticalHeader()->hide();
    const auto& columns = lw::ActionGeneralPropertiesDlg::kColumns;
    ruleList_->setColumnCount(static_cast<int>(columns.size()));
    for (int i = 0; i < ruleList_->columnCount(); ++i) {
        ruleList_->setHorizontalHeaderItem(i, new QTableWidgetItem(ToQString(columns[i].title)));
        ruleList_->setColumnWidth(i, columns[i].width);
    }
}

void QtActionGeneralPropertiesDlg::TakeWidgets() {
    TakeCombo(ruleCombo_, form_.ruleCombo);
    form_.parameter = ToStdString(parameter_->text());
    form_.condition = ToStdString(condition_->text());
    const int rows = std::min(ruleList_->rowCount(), static_cast<int>(form_.ruleList.size()));
    for (int row = 0; row < rows; ++row)
        form_.ruleList[row].selected = ruleList_->item(row, 0)->isSelected();
}

void QtActionGeneralPropertiesDlg::ShowModel() {
    ShowCombo(ruleCombo_, form_.ruleCombo);
    ShowText(comment_, form_.comment);
    ShowText(format_, form_.format);
    ShowText(parameter_, form_.parameter);
    ShowText(condition_, form_.condition);
    parameter_->setEnabled(form_.parameterEnabled);
    condition_->setEnabled(form_.conditionEnabled);
    ShowRuleList();
    // The form ends each imported line with a carriage return and a line
    // feed; the plain text edit wants line feeds only.
    imported_->setPlainText(ToQString(form_.imported).replace(QStringLiteral("\r\n"), "\n"));
}

void QtActionGeneralPropertiesDlg::ShowRuleList() {
    const QSignalBlocker blocker(ruleList_);
    ruleList_->clearContents();
    ruleList_->setRowCount(static_cast<int>(form_.ruleList.size()));
    for (int row = 0; row < ruleList_->rowCount(); ++row) {
        const lw::ActionGeneralPropertiesDlg::Row& shown = form_.ruleList[row];
        for (int column = 0; column < ruleList_->columnCount(); ++column) {
            auto* item = new QTableWidgetItem(ToQString(shown.texts[column]));
            ruleList_->setItem(row, column, item);
            item->setSelected(shown.selected);
        }
    }
}
