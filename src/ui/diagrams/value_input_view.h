// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "diagrams/value_input.h"

class QLabel;
class QLineEdit;

namespace orva {

// Takes one T, p or v for the curves of the diagram. Enter draws; the window stays open for the next value.
class frmTpVSInputBox : public QDialog {
    Q_OBJECT
public:
    explicit frmTpVSInputBox(ValueInput& input, QWidget* parent = nullptr);

    // Brings label, unit and value up to date with the diagram; showing the window does it too.
    void Refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Draw();
    void Keep();
    void SelectValue();

    ValueInput& input;
    QLabel* label;
    QLabel* unit;
    QLineEdit* value;
};

} // namespace orva
