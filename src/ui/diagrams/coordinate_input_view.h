// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>

#include "diagrams/diagram_window.h"

class QLineEdit;

namespace orva {

// New limits of the diagram.
class frmCoord : public QDialog {
    Q_OBJECT
public:
    explicit frmCoord(DiagramWindow& window, QWidget* parent = nullptr);

private:
    void Take();

    DiagramWindow& window;
    std::array<QLineEdit*, 4> limits{}; // xMin, xMax, yMin, yMax
};

} // namespace orva
