// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>

#include "ui/number_field.h"

namespace orva {

// The three constants of the second virial coefficient that is entered by hand.
class frmBParInput : public QDialog {
    Q_OBJECT
public:
    explicit frmBParInput(const std::array<double, 3>& values, QWidget* parent = nullptr);

    std::array<double, 3> Values() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::array<NumberField*, 3> fields{};
};

} // namespace orva
