// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "shell/tips.h"

namespace orva {

// The tip window. It lies beside the work and waits for nothing.
class frmTip : public QDialog {
    Q_OBJECT
public:
    explicit frmTip(Tips tips, QWidget* parent = nullptr);

private:
    QWidget* TipPanel();
    QLayout* ButtonRow();
    QPushButton* AddButton(const char* name, const char* text);
    void ShowText();

    Tips model;
    QLabel* lblTip;
    QPushButton* cmdNextTip = nullptr;
};

} // namespace orva
