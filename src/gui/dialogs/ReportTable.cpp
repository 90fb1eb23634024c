#include "ReportTable.h"

#include <QHeaderView>
#include <QScrollBar>

QTableWidget* MakeReportTable(const lw::ReportColumn* columns, int count, QWidget* parent) {
    auto* table = new QTableWidget(parent);
    table->setShowGrid(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    table->setColumnCount(count);
    int width = 0;
    for (int i = 0; i < count; ++i) {
        table->setHorizontalHeaderItem(i, new QTableWidgetItem(ToQString(columns[i].title)));
        table->setColumnWidth(i, columns[i].width);
        width += columns[i].width;
    }
    table->setMinimumWidth(width + table->verticalScrollBar()->sizeHint().width() +
                           2 * table->frameWidth());
    return table;
}
