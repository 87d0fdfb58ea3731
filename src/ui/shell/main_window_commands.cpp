// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/catalogue.h"
#include "shell/road.h"
#include "shell/status_texts.h"
#include "ui/calc/point_input_window.h"
#include "ui/calc/result_window_view.h"
#include "ui/place_window.h"
#include "ui/shell/diagram_desk.h"
#include "ui/shell/help_desk.h"
#include "ui/shell/main_window.h"
#include "ui/substance/model_window.h"
#include "ui/substance/substance_window.h"

namespace orva {

mdiORVA::Handler mdiORVA::HandlerOf(CommandAction action) {
    switch (action) {
    case CommandAction::OpenDatabase:
        return &mdiORVA::OpenDatabaseFile;
    case CommandAction::ShowStatus:
        return &mdiORVA::ShowStatus;
    case CommandAction::ShowEosParameters:
        return &mdiORVA::ShowEosParameters;
    case CommandAction::Exit:
        return &mdiORVA::Exit;
    case CommandAction::ChooseSubstance:
        return &mdiORVA::ChooseSubstance;
    case CommandAction::ChooseModels:
        return &mdiORVA::ChooseModels;
    case CommandAction::Calculate:
        return &mdiORVA::Calculate;
    case CommandAction::Draw:
        return &mdiORVA::DrawDiagram;
    case CommandAction::About:
        return &mdiORVA::ShowAbout;
    case CommandAction::Help:
        return &mdiORVA::ShowHelp;
    case CommandAction::None:
        break;
    }
    return nullptr;
}

bool mdiORVA::IsReachable(int row) const {
    for (int at = row; at >= 0;) {
        if (!session.commands.Enabled(at))
            return false;
        const CommandRow& command = CommandTable()[static_cast<std::size_t>(at)];
        at = command.parent.empty() ? -1 : FindCommand(command.parent, command.parentIndex);
    }
    return true;
}

void mdiORVA::RunCommand(int row) {
    const CommandRow& command = CommandTable()[static_cast<std::size_t>(row)];
    const Handler handler = HandlerOf(command.action);
    if (handler == nullptr || !IsReachable(row))
        return;
    (this->*handler)(command);
    Refresh();
}

void mdiORVA::MenuOpening(int row) {
    const CommandRow& opened = CommandTable()[static_cast<std::size_t>(row)];
    const std::string key = CommandKey(opened.name, opened.index);
    if (key == "mnuData")
        session.Enter(SessionEvent::DataMenuOpened);
    else if (key == "mnuCalcMain") {
        CloseForms({"frmCalcOut", "frmParinput", "frmKessel"});
        OpenCalculationMenu(session);
    } else if (key == "mnuCalc(20)")
        session.Enter(SessionEvent::DatabaseFunctionsOpened);
    else if (key == "mnuCalc_sub_database(0)")
        session.Enter(SessionEvent::VapourPressureFunctionsOpened);
    else if (key == "mnuWindow") {
        ListWindows();
        return;
    } else
        return;
    menu->Refresh(session.commands);
}

void mdiORVA::ShowForm(QWidget* form, Qt::WindowModality modality) {
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->setWindowModality(modality);
    BringToFront(*form);
}

void mdiORVA::OpenDatabaseFile(const CommandRow&) {
    CloseForms({"frmStoffWahl"});
    if (!OpenDatabaseDialog(session))
        return;
    CloseStaleDiagram();
    Refresh();
    RunCommand(FindCommand("mnuStoff"));
}

void mdiORVA::ShowStatus(const CommandRow&) {
    session.dialogs.Show(StatusMessage(session));
}

void mdiORVA::ShowEosParameters(const CommandRow&) {
    session.dialogs.Show(EosParametersMessage(session));
}

void mdiORVA::Exit(const CommandRow&) {
    close();
}

void mdiORVA::ShowAbout(const CommandRow&) {
    session.dialogs.Show(AboutMessage());
}

void mdiORVA::ShowHelp(const CommandRow&) {
    helpDesk->Open(HelpIndexTopic());
}

void mdiORVA::DrawDiagram(const CommandRow& command) {
    const DiagramRow* row = FindDiagram(command.argument);
    if (row == nullptr)
        return;
    if (diagramDesk == nullptr)
        diagramDesk = new DiagramDesk(session, this);
    diagramDesk->Open(*row);
}

void mdiORVA::CloseStaleDiagram() {
    if (diagramDesk != nullptr)
        diagramDesk->CloseIfStale();
}

void mdiORVA::SwitchHint() {
    hint->setVisible(hint->isHidden());
}

void mdiORVA::ChooseSubstance(const CommandRow&) {
    auto* form = new frmStoffWahl(session, busy, this);
    connect(form, &frmStoffWahl::StateChanged, this, &mdiORVA::Refresh);
    // The next window waits until this one is gone, or it would lose the keyboard to the main window.
    connect(
        form, &frmStoffWahl::Accepted, this,
        [this] {
            CloseForms({"frmParinput", "frmCalcOut"});
            CloseStaleDiagram();
            ChooseModels({});
        },
        Qt::QueuedConnection);
    ShowForm(form, Qt::ApplicationModal);
}

void mdiORVA::ChooseModels(const CommandRow&) {
    auto* form = new frmQModell(session, this);
    connect(form, &frmQModell::Accepted, this, [this](const StatusPanels& texts) {
        AcceptModels(session, texts);
        CloseStaleDiagram();
    });
    connect(form, &QDialog::finished, this, [this] {
        CloseForms({"frmParinput", "frmCalcOut", "frmIsoCalc", "frmKessel"});
        Refresh();
        startPage->FocusCurrentStep();
    });
    ShowForm(form, Qt::ApplicationModal);
}

void mdiORVA::Calculate(const CommandRow& command) {
    const CalculationStart start = DispatchCalculation(session, command.argument);
    if (!start.showResult)
        return;
    CloseForms({"frmCalcOut", "frmParinput"});
    resultWindow = new frmCalcOut(session, busy, this);
    ShowForm(resultWindow, Qt::NonModal);
    resultWindow->Calculate();
    if (start.askForPoint && resultWindow != nullptr)
        AskForPoint();
}

void mdiORVA::AskForPoint() {
    const PointInput input(session.calculation.CalcKind, session.model.substance, session.options,
                           session.batch);
    inputWindow = new frmParinput(input, session.dialogs, resultWindow);
    connect(inputWindow, &frmParinput::Accepted, this, [this] {
        resultWindow->raise();
        resultWindow->Calculate();
        if (inputWindow == nullptr)
            return;
        inputWindow->raise();
        inputWindow->activateWindow();
        inputWindow->FocusFirstField();
    });
    inputWindow->adjustSize();
    PlaceBeside(*inputWindow, *resultWindow);
    ShowForm(inputWindow, Qt::NonModal);
}

} // namespace orva
