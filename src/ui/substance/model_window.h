// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include "shell/session.h"
#include "substance/model_choice.h"

namespace orva {

// The window that settles the models of the current substance.
class frmQModell : public QDialog {
    Q_OBJECT
public:
    explicit frmQModell(Session& session, QWidget* parent = nullptr);

    void reject() override;

signals:
    void Accepted(const StatusPanels& panels); // the models and their constants stand

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QComboBox* AddCombo(const char* name, const QString& accessibleName, bool editable = false);
    QGroupBox* Frame(const QString& title, std::initializer_list<QWidget*> controls, const char* helpName);
    QGroupBox* PriorityFrame();
    QGroupBox* DensityFrame();
    QLayout* ButtonRow();
    void ConnectControls();
    void OrderTabs();
    void ShowChoice();
    void AskVirialConstants();
    void AcceptChoice();

    Session& session;
    ModelChoice choice;
    QComboBox *EOSKombi, *pKombi, *HLVKombi, *WatsonKombi, *cpKombi;
    QLabel *Bz1, *Rx1, *Rx2;
    QGroupBox* priorityFrame = nullptr;
    std::array<QRadioButton*, 2> PriorOpt{};
};

} // namespace orva
