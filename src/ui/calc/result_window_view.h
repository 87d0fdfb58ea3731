// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "calc/result_window.h"
#include "shell/session.h"
#include "ui/calc/report_view.h"
#include "ui/shell/busy_cursor.h"

namespace orva {

// The window in which every point calculation appears.
class frmCalcOut : public QWidget {
    Q_OBJECT
public:
    frmCalcOut(Session& session, BusyCursor& busy, QWidget* parent = nullptr);

    // Runs the calculation in force and shows it, with its boxes.
    void Calculate();
    // Runs it once more for other units or another reference point; its boxes have been seen.
    void Refresh();

    // Shows what the model says of its controls.
    void ShowControls();

    const ResultWindow& Model() const { return model; }

signals:
    // `cmdIsoCalc` and `cmdCEOSDiagnose`.
    void IsoCalcWanted();
    void DiagnosisWanted();
    // A new result stands.
    void Calculated();
    // `cmdCalc_OK` has closed this window; those that belong to the calculation follow.
    void Finished();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QGroupBox* InputFrame();
    QGroupBox* ExtensionFrame();
    QGroupBox* OutputFrame();
    QGroupBox* ProtocolFrame();
    QLayout* ButtonRow();
    QLabel* AddLabel(const char* name);
    QPushButton* AddButton(const char* name, const QString& text);
    void Step(StepResult result);
    void ShowProtocol();
    void RecordResult();
    void CloseProtocol();
    bool PutOut();
    void Finish();
    void ConnectControls();

    Session& session;
    BusyCursor& busy;
    ResultWindow model;
    QLabel *par1, *par2, *co1, *co2, *statusZeile;
    QGroupBox* inputFrame = nullptr;
    QCheckBox* chkUHS = nullptr;
    std::array<QCheckBox*, 2> ResPlus{};
    std::array<QRadioButton*, 3> optResultPrint{};
    QCheckBox* chkFuncPrint = nullptr;
    QComboBox* cmbSep = nullptr;
    QLabel *lblProtText2 = nullptr, *lblProtRows = nullptr;
    QPushButton *cmdProtokoll = nullptr, *cmdOpenNew = nullptr;
    QPushButton *cmdRueck = nullptr, *cmdVor = nullptr, *cmdIsoCalc = nullptr, *cmdCEOSDiagnose = nullptr;
    ReportView* report;
};

} // namespace orva
