// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/catalogue.h"
#include "diagrams/diagram_conditions.h"
#include "shell/project.h"
#include "shell/road.h"
#include "shell/status_texts.h"
#include "ui/calc/diagnosis_window.h"
#include "ui/calc/iso_window.h"
#include "ui/calc/method_window.h"
#include "ui/calc/point_input_window.h"
#include "ui/calc/reference_window.h"
#include "ui/calc/result_window_view.h"
#include "ui/calc/vessel_window.h"
#include "ui/place_window.h"
#include "ui/shell/diagram_desk.h"
#include "ui/shell/help_desk.h"
#include "ui/shell/main_window.h"
#include "ui/shell/open_window.h"
#include "ui/shell/options_window.h"
#include "ui/shell/tip_window.h"
#include "ui/substance/model_window.h"
#include "ui/substance/substance_window.h"

namespace orva {

namespace {

PointInputRecords InputRecords(Session& session) {
    return {session.model.substance, session.options, session.batch, session.calculation};
}

} // namespace

mdiORVA::Handler mdiORVA::HandlerOf(CommandAction action) {
    switch (action) {
    case CommandAction::OpenDatabase:
        return &mdiORVA::OpenDatabaseFile;
    case CommandAction::ShowStatus:
        return &mdiORVA::ShowStatus;
    case CommandAction::LoadLastSession:
        return &mdiORVA::OpenLastSession;
    case CommandAction::LoadProject:
        return &mdiORVA::ChooseProject;
    case CommandAction::SaveProject:
        return &mdiORVA::WriteProject;
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
    case CommandAction::ShowOptions:
        return &mdiORVA::ShowOptions;
    case CommandAction::ShowReference:
        return &mdiORVA::ShowReference;
    case CommandAction::ShowTips:
        return &mdiORVA::ShowTips;
    case CommandAction::About:
        return &mdiORVA::ShowAbout;
    case CommandAction::Help:
        return &mdiORVA::ShowHelp;
    case CommandAction::None:
        break;
    }
    return nullptr;
}

void mdiORVA::RunCommand(int row) {
    const CommandRow& command = CommandTable()[static_cast<std::size_t>(row)];
    const Handler handler = HandlerOf(command.action);
    if (handler == nullptr || !session.commands.Reachable(row))
        return;
    (this->*handler)(command);
    Refresh();
}

void mdiORVA::RunToolbarButton(const ToolbarRow& button) {
    if (const int row = ToolbarCommand(button, session.model.selection); row >= 0) {
        RunCommand(row);
        return;
    }
    const Handler handler = HandlerOf(button.action);
    if (handler == nullptr || !session.commands.ToolbarEnabled(button.index))
        return;
    (this->*handler)({});
    Refresh();
}

void mdiORVA::MenuOpening(int row) {
    const CommandRow& opened = CommandTable()[static_cast<std::size_t>(row)];
    const std::string key = CommandKey(opened.name, opened.index);
    if (key == "mnuData") {
        CloseForms({"frmTip"});
        session.Enter(SessionEvent::DataMenuOpened);
    } else if (key == "mnuCalcMain") {
        OpenCalculationMenu(session);
        CloseForms({"frmCalcOut", "frmParinput", "frmKessel"});
    } else if (key == "mnuCalc(20)")
        session.Enter(SessionEvent::DatabaseFunctionsOpened);
    else if (key == "mnuCalc_sub_database(0)")
        session.Enter(SessionEvent::VapourPressureFunctionsOpened);
    else if (key == "mnuGraf(10)")
        session.Enter(SessionEvent::DiagramFunctionsOpened);
    else if (key == "mnuGraf_sub_database(0)")
        session.Enter(SessionEvent::DiagramVapourPressuresOpened);
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

void mdiORVA::OpenLastSession(const CommandRow&) {
    CloseForms({"frmStoffWahl"});
    FollowProject(LoadLastSession(session));
}

void mdiORVA::ChooseProject(const CommandRow&) {
    CloseForms({"frmStoffWahl"});
    auto* form = new frmCmnDlg(LoadProjectDialog(session), this);
    // The next window waits until this one is gone, or it would lose the keyboard to the main window.
    connect(form, &QDialog::accepted, this, [this, form] {
        QMetaObject::invokeMethod(
            this, [this, choice = form->Choice()] { FollowProject(LoadChosenProject(session, choice)); },
            Qt::QueuedConnection);
    });
    connect(form, &QDialog::rejected, this, [this] { FollowProject(false); });
    ShowForm(form, Qt::ApplicationModal);
}

void mdiORVA::WriteProject(const CommandRow&) {
    StartSavingProject(session);
}

// Browsing alone may have changed the database.
void mdiORVA::FollowProject(bool loaded) {
    CloseStaleDiagram();
    Refresh();
    if (!loaded) {
        startPage->FocusCurrentStep();
        return;
    }
    CloseForms({"frmParinput", "frmCalcOut", "frmIsoCalc", "frmKessel"});
    if (diagramDesk != nullptr)
        diagramDesk->Close(); // the project brings units of its own
    ChooseModels({});
    QMetaObject::invokeMethod(this, &mdiORVA::TellOverTheModels, Qt::QueuedConnection);
}

// Windows get the keyboard some time after they are shown; the box belongs to the one that has it.
void mdiORVA::TellOverTheModels() {
    QPointer<frmQModell> models;
    for (QWidget* form : OpenForms())
        if (auto* found = qobject_cast<frmQModell*>(form))
            models = found;
    if (models != nullptr)
        QApplication::setActiveWindow(models);
    session.dialogs.Show(StatusMessage(session));
    if (models != nullptr && models->isVisible())
        BringToFront(*models);
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

void mdiORVA::StartUp() {
    session.protocol.OfferRecovery();
    OpenTips();
}

void mdiORVA::OpenTips() {
    Tips tips(session.machine, session.settings, session.state.englishText, showTipsExplicitly);
    if (tips.hideTip())
        return;
    if (tipWindow == nullptr || !tipWindow->isVisible()) // one that was closed goes away soon
        tipWindow = new frmTip(std::move(tips), this);
    ShowForm(tipWindow, Qt::NonModal);
}

void mdiORVA::ShowTips(const CommandRow&) {
    showTipsExplicitly = true;
    OpenTips();
}

void mdiORVA::ShowAbout(const CommandRow&) {
    session.dialogs.Show(AboutMessage());
}

void mdiORVA::ShowHelp(const CommandRow&) {
    helpDesk->Open(HelpIndexTopic());
}

void mdiORVA::DrawDiagram(const CommandRow& command) {
    const DiagramRow* row = FindDiagram(command.argument);
    if (row == nullptr || !MayDraw(*row, session.model, session.dialogs))
        return;
    session.commands.CheckDiagram(FindCommand(command.name, command.index));
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
    connect(form, &QDialog::rejected, startPage, &StartPage::FocusCurrentStep);
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

void mdiORVA::ShowOptions(const CommandRow&) {
    auto* form = new frmOptions(OptionsChoice(session), this);
    connect(form, &frmOptions::Accepted, this, &mdiORVA::FollowOptions);
    connect(
        form, &frmOptions::ReferenceWanted, this, [this] { ShowReference({}); }, Qt::QueuedConnection);
    ShowForm(form, Qt::ApplicationModal);
}

void mdiORVA::ShowReference(const CommandRow&) {
    const ReferenceInput input(session.model.reference, session.model.substance);
    auto* form = new frmReferenz(input, session.dialogs, this);
    connect(form, &frmReferenz::Accepted, this, &mdiORVA::FollowReference);
    ShowForm(form, Qt::ApplicationModal);
}

// What is shown must be in the units that are in force.
void mdiORVA::FollowOptions(const OptionsChoice::Outcome& outcome) {
    if (outcome.unitsChanged && diagramDesk != nullptr)
        diagramDesk->Close();
    if (outcome.batchModeChanged) {
        CloseForms({"frmParinput", "frmCalcOut", "frmKessel"});
    } else if (outcome.unitsChanged) {
        if (inputWindow != nullptr)
            inputWindow->FollowUnits();
        if (resultWindow != nullptr)
            resultWindow->Refresh();
    }
    Refresh();
}

void mdiORVA::FollowReference(bool changed) {
    AcceptReference(session);
    if (changed && diagramDesk != nullptr)
        diagramDesk->CloseIfNormalised();
    if (changed && resultWindow != nullptr)
        resultWindow->Refresh();
}

void mdiORVA::Calculate(const CommandRow& command) {
    const CalculationStart start = DispatchCalculation(session, command.argument);
    if (!start.Opens())
        return;
    CloseForms({"frmCalcOut", "frmParinput", "frmCalcIn", "frmKessel"});
    resultWindow = nullptr; // a closed window lives on until the next turn of the event loop
    inputWindow = nullptr;
    if (start.askForMethod)
        AskForMethod();
    else
        StartCalculation(start);
}

void mdiORVA::AskForMethod() {
    auto* form = new frmCalcIn(MakeCalculationInput(session), InputRecords(session), session.dialogs, this);
    // The next window waits until this one is gone, or it would lose the keyboard to the main window.
    connect(
        form, &QDialog::accepted, this, [this] { StartCalculation(StartAfterMethod(session)); },
        Qt::QueuedConnection);
    ShowForm(form, Qt::ApplicationModal);
}

void mdiORVA::StartCalculation(const CalculationStart& start) {
    if (start.showResult)
        ShowResult();
    if (start.askForPoint)
        AskForPoint();
}

void mdiORVA::ShowResult() {
    resultWindow = new frmCalcOut(session, busy, this);
    connect(resultWindow, &frmCalcOut::IsoCalcWanted, this, &mdiORVA::OpenIsoCalc);
    connect(resultWindow, &frmCalcOut::DiagnosisWanted, this, &mdiORVA::OpenDiagnosis);
    connect(resultWindow, &frmCalcOut::Calculated, this, &mdiORVA::FollowResult);
    connect(resultWindow, &frmCalcOut::Finished, this, [this] {
        CloseForms({"frmParinput", "frmReferenz", "frmKessel", "frmIsoCalc", "frmManuInput"});
    });
    ShowForm(resultWindow, Qt::NonModal);
    resultWindow->Calculate();
}

void mdiORVA::AskForPoint() {
    QWidget* owner = resultWindow != nullptr ? static_cast<QWidget*>(resultWindow) : this;
    inputWindow = new frmParinput(PointInput(session.calculation.InputContext, InputRecords(session)),
                                  session.dialogs, owner);
    connect(inputWindow, &frmParinput::Accepted, this, &mdiORVA::PointAccepted);
    inputWindow->adjustSize();
    if (resultWindow != nullptr)
        PlaceBeside(*inputWindow, *resultWindow);
    ShowForm(inputWindow, Qt::NonModal);
}

void mdiORVA::PointAccepted() {
    if (session.calculation.InputContext == inputContextVessel) {
        CalculateVessel();
        return;
    }
    if (resultWindow == nullptr)
        return;
    resultWindow->raise();
    resultWindow->Calculate();
    if (inputWindow == nullptr)
        return;
    inputWindow->raise();
    inputWindow->activateWindow();
    inputWindow->FocusFirstField();
}

// The vessel is calculated first; where the partial method has no equilibrium the input stays.
void mdiORVA::CalculateVessel() {
    CalculationContext context = session.Calculation();
    session.calculation.vesselResult = {};
    const PointResult trial = CalcBatch(context, session.calculation.CalcKind, 0, {true, true});
    if (trial.note == noteExit) {
        for (const Message& message : trial.messages)
            session.dialogs.Show(message);
        return;
    }
    if (inputWindow != nullptr)
        inputWindow->close();
    if (resultWindow == nullptr) {
        ShowResult();
    } else {
        resultWindow->Calculate();
        BringToFront(*resultWindow);
    }
    auto* picture = new frmKessel(session, resultWindow);
    PlaceBeside(*picture, *resultWindow);
    ShowForm(picture, Qt::NonModal);
}

// The windows beside a result show the new one, or go where it has nothing for them.
void mdiORVA::FollowResult() {
    for (QWidget* form : OpenForms()) {
        if (auto* picture = qobject_cast<frmKessel*>(form))
            picture->Show();
        if (auto* inversion = qobject_cast<frmIsoCalc*>(form);
            inversion != nullptr && inversion->parentWidget() == resultWindow)
            inversion->Follow();
        if (auto* diagnosis = qobject_cast<frmCEOSDiagnose*>(form)) {
            if (resultWindow != nullptr && resultWindow->Model().Result().diagnoseEnabled)
                diagnosis->Show();
            else
                diagnosis->close();
        }
    }
}

void mdiORVA::OpenIsoCalc() {
    if (resultWindow == nullptr)
        return;
    if (inputWindow != nullptr && inputWindow->ShowsZero()) {
        session.dialogs.Show(
            {"Ausführung nicht möglich", "noch keine p- oder T-Vorgabe!", MessageIcon::Exclamation});
        return;
    }
    CloseForms({"frmIsoCalc"});
    auto* form = new frmIsoCalc(session, busy, resultWindow);
    connect(form, &frmIsoCalc::WorkingPointChanged, resultWindow, &frmCalcOut::Refresh);
    PlaceBeside(*form, *resultWindow);
    ShowForm(form, Qt::NonModal);
}

void mdiORVA::OpenDiagnosis() {
    if (resultWindow == nullptr)
        return;
    CloseForms({"frmCEOSDiagnose"});
    auto* form = new frmCEOSDiagnose(session, resultWindow);
    PlaceBeside(*form, *resultWindow);
    ShowForm(form, Qt::NonModal);
}

} // namespace orva
