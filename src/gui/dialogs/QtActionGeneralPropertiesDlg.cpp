#include "QtActionGeneralPropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"
#include "ReportTable.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

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
    ruleList_ = MakeReportTable(lw::ActionGeneralPropertiesDlg::kColumns, this);
    ruleList_->setObjectName("ruleList");
    auto* deleteButton = new QPushButton(tr("Delete"), this);
    deleteButton->setObjectName("deleteButton");
    imported_ = new QPlainTextEdit(this);
    imported_->setObjectName("imported");
    imported_->setReadOnly(true);
    // A few lines are enough for a rule's entries; the rule list gets the rest.
    imported_->setFixedHeight(imported_->fontMetrics().lineSpacing() * 5 +
                              2 * imported_->frameWidth() + 8);

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

void QtActionGeneralPropertiesDlg::TakeWidgets() {
    TakeCombo(ruleCombo_, form_.ruleCombo);
    form_.parameter = ToStdString(parameter_->text());
    form_.condition = ToStdString(condition_->text());
    TakeRowSelection(ruleList_, form_.ruleList);
}

void QtActionGeneralPropertiesDlg::ShowModel() {
    ShowCombo(ruleCombo_, form_.ruleCombo);
    ShowText(comment_, form_.comment);
    ShowText(format_, form_.format);
    ShowText(parameter_, form_.parameter);
    ShowText(condition_, form_.condition);
    parameter_->setEnabled(form_.parameterEnabled);
    condition_->setEnabled(form_.conditionEnabled);
    ShowRows(ruleList_, form_.ruleList);
    // The form ends each imported line with a carriage return and a line
    // feed; the plain text edit wants line feeds only.
    imported_->setPlainText(ToQString(form_.imported).replace(QStringLiteral("\r\n"), "\n"));
}
