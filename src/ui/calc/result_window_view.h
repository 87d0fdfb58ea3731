// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

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

    const ResultWindow& Model() const { return model; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QGroupBox* InputFrame();
    QGroupBox* ExtensionFrame();
    QGroupBox* ProtocolFrame();
    QLayout* ButtonRow();
    QLabel* AddLabel(const char* name);
    QPushButton* AddButton(const char* name, const QString& text);

    Session& session;
    BusyCursor& busy;
    ResultWindow model;
    QLabel *par1, *par2, *co1, *co2, *statusZeile;
    ReportView* report;
};

} // namespace orva
