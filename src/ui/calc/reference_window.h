// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include "calc/reference_input.h"
#include "ui/number_field.h"

namespace orva {

// The window that settles where enthalpy and entropy count from, and the surroundings of the exergies.
class frmReferenz : public QDialog {
    Q_OBJECT
public:
    frmReferenz(ReferenceInput input, Dialogs& dialogs, QWidget* parent = nullptr);

signals:
    // The record holds the numbers; `changed` tells whether they differ from those before.
    void Accepted(bool changed);

private:
    QGroupBox* KindFrame();
    QGroupBox* FieldFrame(const QString& title, std::span<const int> shown);
    void ShowInput();
    void TakeTexts();
    void TakeOption(int option);
    void TakeInput();

    ReferenceInput input;
    Dialogs& dialogs;
    std::array<QRadioButton*, 3> opt_HNull{};
    std::array<NumberField*, refFieldCount> fields{};
    QLabel* explanation;
};

} // namespace orva
