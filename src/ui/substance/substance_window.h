// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "shell/session.h"
#include "substance/substance_choice.h"
#include "ui/shell/busy_cursor.h"
#include "ui/substance/substance_list_view.h"

namespace orva {

// The window that picks the current substance.
class frmStoffWahl : public QDialog {
    Q_OBJECT
public:
    frmStoffWahl(Session& session, BusyCursor& busy, QWidget* parent = nullptr);

    void done(int result) override;

signals:
    void StateChanged(); // menus and panels may have changed
    void Accepted();     // a substance is in force, the window is closed

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    QLayout* NameFields();
    QLayout* ButtonRow();
    QPushButton* AddButton(const char* name, const QString& text);
    void FillList();
    void ShowChoice(bool withNumber = true);
    void SearchName();
    void AcceptChoice();

    Session& session;
    BusyCursor& busy;
    SubstanceChoice choice;
    QComboBox* NameCombo;
    QLineEdit* Text1;
    QLabel* Bez4;
    SubstanceListView* StoffListe;
    QPushButton* StoffOK = nullptr;
};

} // namespace orva
