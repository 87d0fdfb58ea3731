// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>

#include "calc/virial_input.h"
#include "ui/number_field.h"

namespace orva {

// The three constants of the second virial coefficient that is entered by hand.
class frmBParInput : public QDialog {
    Q_OBJECT
public:
    frmBParInput(const std::array<double, 3>& constants, Dialogs& dialogs, QWidget* parent = nullptr);

    const std::array<double, 3>& Constants() const { return input.Constants(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TakeInput();

    VirialInput input;
    Dialogs& dialogs;
    std::array<NumberField*, 3> fields{};
};

} // namespace orva
