// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/substance/substance_list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringListModel>

#include "ui/theme.h"

namespace orva {

SubstanceListView::SubstanceListView(QWidget* parent) : QListView(parent) {
    setModel(new QStringListModel(this));
    setFont(FixedPitchFont());
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideNone);
}

void SubstanceListView::SetRows(const QStringList& rows, const QStringList& rowNames) {
    names = rowNames;
    static_cast<QStringListModel*>(model())->setStringList(rows);
}

void SubstanceListView::SelectRow(int row) {
    const QModelIndex index = model()->index(row, 0);
    if (!index.isValid())
        return;
    // The list must not move under the mouse that has just clicked a row.
    if (index == currentIndex()) {
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
        return;
    }
    setCurrentIndex(index);
    scrollTo(index, PositionAtCenter);
}

void SubstanceListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (current.isValid())
        emit RowSelected(current.row());
}

void SubstanceListView::keyboardSearch(const QString& search) {
    const bool fresh =
        !sinceLastKey.isValid() || sinceLastKey.elapsed() > QApplication::keyboardInputInterval();
    sinceLastKey.start();
    typed = fresh ? search : typed + search;
    // The same letter again steps through the names that begin with it.
    const bool stepping = typed.count(typed.front()) == typed.size();
    const QString wanted = stepping ? typed.left(1) : typed;
    const auto count = static_cast<int>(names.size());
    const int start = std::max(CurrentRow(), 0) + (stepping ? 1 : 0);
    for (int i = 0; i < count; ++i) {
        const int row = (start + i) % count;
        if (names[row].startsWith(wanted, Qt::CaseInsensitive)) {
            SelectRow(row);
            return;
        }
    }
}

void SubstanceListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit RowAccepted();
        return;
    }
    QListView::keyPressEvent(event);
}

void SubstanceListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid())
        emit RowAccepted();
}

} // namespace orva
