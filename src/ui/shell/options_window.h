// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>

#include "shell/options_choice.h"

namespace orva {

// The window of the settings that hold for all calculations and diagrams.
class frmOptions : public QDialog {
    Q_OBJECT
public:
    explicit frmOptions(OptionsChoice choice, QWidget* parent = nullptr);

signals:
    void Accepted(const OptionsChoice::Outcome& outcome);
    void ReferenceWanted(); // the window is closed, with nothing changed

private:
    struct OptionRow {
        const char* text;
        const char* note;
    };
    QGroupBox* ModeFrame();
    QGroupBox* UnitFrame();
    QGroupBox* ReducedFrame();
    QGroupBox* ResolutionFrame();
    QGroupBox* DiagramFrame();
    QGroupBox* ReferenceFrame();
    void AddOptions(QGroupBox& frame, const char* name, const std::array<OptionRow, 2>& rows,
                    std::array<QRadioButton*, 2>& options);
    QCheckBox* AddBox(QGroupBox& frame, const char* name, const char* text);
    void ShowChoice();
    void Accept();
    void OpenReference();

    OptionsChoice choice;
    std::array<QRadioButton*, 2> OptCalcMode{}, optMolarSpez{};
    QCheckBox* chkReduziert = nullptr;
    QCheckBox* chkCurveTpRestricted = nullptr;
    QCheckBox* chkSKurveOhneKonnode = nullptr;
    QCheckBox* chkPartialKurve = nullptr;
    QSlider* Slider1_punktdichte = nullptr;
    QLabel* Label54 = nullptr;
};

} // namespace orva
