// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>

#include "diagrams/limit_input.h"

class QLabel;
class QLineEdit;

namespace orva {

// Takes the constant T or p of a diagram of two functions and the limits of its curve. Enter draws; the
// window stays open for the next curve.
class frmInputProzessLinien : public QDialog {
    Q_OBJECT
public:
    explicit frmInputProzessLinien(LimitInput& input, QWidget* parent = nullptr);

    // Brings labels and numbers up to date with the diagram; showing the window does it too.
    void Refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Draw();

    LimitInput& input;
    std::array<QLabel*, 3> labels{}; // of the constant value, the lower and the upper limit
    std::array<QLineEdit*, 3> fields{};
};

} // namespace orva
