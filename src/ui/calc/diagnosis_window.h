// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>
#include <QGroupBox>
#include <QLabel>

#include "calc/eos_diagnosis.h"
#include "plot/chart_plot.h"
#include "shell/session.h"

class QCustomPlot;

namespace orva {

// "Diagnose kubische EOS": the roots of the last cubic solution with their stability, and the isotherm on
// which they lie.
class frmCEOSDiagnose : public QDialog {
    Q_OBJECT
public:
    explicit frmCEOSDiagnose(Session& session, QWidget* parent = nullptr);

    // Reads the record anew.
    void Show();
    const EosDiagnosis& Diagnosis() const { return diagnosis; }

protected:
    void changeEvent(QEvent* event) override;

private:
    QGroupBox* LabelFrame();
    QLabel* AddLabel(const QString& name, bool fixedPitch);
    void ShowLabels();
    void ColourStability();
    void ShowPicture();
    void SizeToRoots();

    Session& session;
    EosDiagnosis diagnosis;
    PlotStyle style;
    QLabel *lblEOSType, *lblixk;
    std::array<QLabel*, 3> lblLoesungen{}, lblStab{};
    QLabel *lblA_x, *lblA_u, *lblA_o;
    QCustomPlot* plot;
};

} // namespace orva
