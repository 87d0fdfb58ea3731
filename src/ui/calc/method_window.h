// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "calc/calculation_input.h"
#include "calc/point_input.h"

namespace orva {

// The window that settles how vapour-liquid equilibrium is treated, before a point is asked for.
class frmCalcIn : public QDialog {
    Q_OBJECT
public:
    // `records` are those of the input window behind `RefInput`.
    frmCalcIn(CalculationInput input, PointInputRecords records, Dialogs& dialogs, QWidget* parent = nullptr);

private:
    QGroupBox* SituationFrame();
    QGroupBox* MethodFrame();
    QGroupBox* ReferenceFrame();
    QLayout* ButtonRow();
    QRadioButton* AddOption(const QString& name, const QString& text, QWidget* parent);
    void ConnectControls();
    void ShowInput();
    void TypeReference();
    void AcceptInput();

    CalculationInput input;
    PointInputRecords records;
    Dialogs& dialogs;
    QLabel *GlobalSit, *Bz1, *referenceText;
    std::array<QRadioButton*, 2> opt_glob{}, optPartialBenson{};
    std::array<QRadioButton*, 3> Ref_opt{};
    QPushButton *RefInput, *escButton;
    QWidget* globHelp = nullptr;
    QGroupBox *methodFrame, *referenceFrame;
};

} // namespace orva
