// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QListView>

namespace orva {

// The list of the database. Typing jumps to the next name that begins with the typed letters.
class SubstanceListView : public QListView {
    Q_OBJECT
public:
    explicit SubstanceListView(QWidget* parent = nullptr);

    // Rows as they are shown, and the names that typing looks for.
    void SetRows(const QStringList& rows, const QStringList& names);

    int CurrentRow() const { return currentIndex().row(); }
    void SelectRow(int row);
    void keyboardSearch(const QString& search) override;

signals:
    void RowSelected(int row);
    void RowAccepted();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QStringList names;
    QString typed;
    QElapsedTimer sinceLastKey;
};

} // namespace orva
