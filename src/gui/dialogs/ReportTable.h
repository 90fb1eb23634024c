#pragma once

#include "QtText.h"
#include "dialogs/ReportView.h"

#include <QSignalBlocker>
#include <QTableWidget>
#include <algorithm>
#include <array>
#include <vector>

// A table in report style: grid lines, whole rows selected, several at once,
// nothing edited in place, and wide enough to show every column in full.
QTableWidget* MakeReportTable(const lw::ReportColumn* columns, int count, QWidget* parent);

template <std::size_t N>
QTableWidget* MakeReportTable(const std::array<lw::ReportColumn, N>& columns, QWidget* parent) {
    return MakeReportTable(columns.data(), static_cast<int>(N), parent);
}

// Shows the rows with their selection, without emitting the table's signals.
template <std::size_t N>
void ShowRows(QTableWidget* table, const std::vector<lw::ReportRow<N>>& rows) {
    const QSignalBlocker blocker(table);
    table->clearContents();
    table->setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < static_cast<int>(N); ++column) {
            auto* item = new QTableWidgetItem(ToQString(rows[row].texts[column]));
            table->setItem(row, column, item);
            item->setSelected(rows[row].selected);
        }
    }
}

template <std::size_t N>
void TakeRowSelection(const QTableWidget* table, std::vector<lw::ReportRow<N>>& rows) {
    const int shown = std::min(table->rowCount(), static_cast<int>(rows.size()));
    for (int row = 0; row < shown; ++row)
        rows[row].selected = table->item(row, 0)->isSelected();
}
