#pragma once

#include <QDockWidget>
#include <cstddef>

class QTreeWidget;
class QTreeWidgetItem;

namespace lw {
class Weaver;
} // namespace lw

// The dock that lists the problems of the open template: severity, message,
// object and line, those of the file first. It fills itself again only when
// the problems were worked out anew; a double click selects the object a
// problem concerns and centres it.
class ProblemsPanel : public QDockWidget {
    Q_OBJECT

public:
    ProblemsPanel(lw::Weaver& weaver, QWidget* parent = nullptr);

    // Brings the list up to date with the document; cheap when nothing changed.
    void Refresh();
    std::size_t Count() const;

signals:
    // A double click has selected an object and moved the view.
    void objectShown();

private:
    void ShowObjectOf(QTreeWidgetItem* row);

    lw::Weaver& weaver_;
    QTreeWidget* list_ = nullptr;
    std::size_t shownGeneration_ = SIZE_MAX;
};

// "3 problems", "1 problem", "No problems".
QString ProblemCountText(std::size_t count);
