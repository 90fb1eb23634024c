#include "ProblemsPanel.h"

#include "QtText.h"
#include "app/Weaver.h"

#include <QApplication>
#include <QHeaderView>
#include <QStyle>
#include <QTreeWidget>

namespace {

enum Column { SeverityColumn, MessageColumn, ObjectColumn, LineColumn };

} // namespace

ProblemsPanel::ProblemsPanel(lw::Weaver& weaver, QWidget* parent)
    : QDockWidget(tr("Problems"), parent), weaver_(weaver) {
    setObjectName("problems");
    list_ = new QTreeWidget(this);
    list_->setObjectName("problemList");
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setHeaderLabels({tr("Severity"), tr("Message"), tr("Object"), tr("Line")});
    list_->header()->setSectionResizeMode(MessageColumn, QHeaderView::Stretch);
    list_->header()->setStretchLastSection(false);
    setWidget(list_);
    connect(list_, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* row) { ShowObjectOf(row); });
}

void ProblemsPanel::Refresh() {
    const lw::Diagnostics& problems = weaver_.problems.All(weaver_, weaver_.fileName);
    if (weaver_.problems.Generation() == shownGeneration_)
        return;
    shownGeneration_ = weaver_.problems.Generation();
    const QIcon errorIcon = style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const QIcon warningIcon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    list_->clear();
    QList<QTreeWidgetItem*> rows;
    for (std::size_t i = 0; i < problems.size(); ++i) {
        const lw::Diagnostic& problem = problems[i];
        auto* row = new QTreeWidgetItem;
        const bool error = problem.severity == lw::Severity::Error;
        row->setIcon(SeverityColumn, error ? errorIcon : warningIcon);
        row->setText(SeverityColumn, lw::SeverityName(problem.severity));
        row->setText(MessageColumn, ToQString(problem.message));
        row->setToolTip(MessageColumn, ToQString(problem.message + " [" + problem.code + "]"));
        row->setText(ObjectColumn, ToQString(problem.object));
        if (problem.line > 0)
            row->setText(LineColumn, QString::number(problem.line));
        row->setData(SeverityColumn, Qt::UserRole, static_cast<qulonglong>(i));
        rows.append(row);
    }
    list_->addTopLevelItems(rows);
}

std::size_t ProblemsPanel::Count() const {
    return static_cast<std::size_t>(list_->topLevelItemCount());
}

void ProblemsPanel::ShowObjectOf(QTreeWidgetItem* row) {
    const lw::Diagnostics& problems = weaver_.problems.All(weaver_, weaver_.fileName);
    const auto index =
        static_cast<std::size_t>(row->data(SeverityColumn, Qt::UserRole).toULongLong());
    if (index >= problems.size())
        return;
    if (lw::EditorObject* object = lw::Problems::ObjectOf(weaver_, problems[index])) {
        weaver_.ShowObject(*object);
        emit objectShown();
    }
}

QString ProblemCountText(std::size_t count) {
    if (count == 0)
        return QObject::tr("No problems");
    return count == 1 ? QObject::tr("1 problem") : QObject::tr("%1 problems").arg(count);
}
