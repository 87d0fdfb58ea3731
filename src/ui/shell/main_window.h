// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QToolBar>

#include "shell/options_choice.h"
#include "shell/road.h"
#include "shell/session.h"
#include "ui/shell/busy_cursor.h"
#include "ui/shell/command_menu.h"
#include "ui/shell/first_user_hint.h"
#include "ui/shell/start_page.h"

namespace orva {

class DiagramDesk;
class HelpDesk;
class frmCalcOut;
class frmParinput;
class frmTip;

// The main window. It owns menu, toolbar and status bar, runs the commands, and opens the other windows.
class mdiORVA : public QMainWindow {
    Q_OBJECT
public:
    explicit mdiORVA(Session& session, QWidget* parent = nullptr);
    ~mdiORVA() override;

    // What the program does once its window stands: it offers the rows of a protocol that a session before
    // could not write, and shows the tips.
    void StartUp();

    // Runs the action of a command, if it and the menus above it are enabled.
    void RunCommand(int row);

    void BeginBusy() { busy.BeginBusy(); }
    void EndBusy() { busy.EndBusy(); }

    // True when a window of this name is open.
    bool IsFormOpen(const QString& name) const;

    // Brings menu, toolbar, status bar and start page up to date with the session.
    void Refresh();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    using Handler = void (mdiORVA::*)(const CommandRow&);
    void RunToolbarButton(const ToolbarRow& button);
    static Handler HandlerOf(CommandAction action);

    void BuildToolbar();
    void BuildStatusBar();
    void BuildCentre();
    void MenuOpening(int row);
    void ListWindows();
    QList<QWidget*> OpenForms() const;
    void CloseForms(std::initializer_list<const char*> names);
    void ShowForm(QWidget* form, Qt::WindowModality modality);

    void OpenDatabaseFile(const CommandRow& command);
    void OpenLastSession(const CommandRow& command);
    void ChooseProject(const CommandRow& command);
    void WriteProject(const CommandRow& command);
    void FollowProject(bool loaded);
    void TellOverTheModels();
    void ShowStatus(const CommandRow& command);
    void ShowEosParameters(const CommandRow& command);
    void Exit(const CommandRow& command);
    void ChooseSubstance(const CommandRow& command);
    void ChooseModels(const CommandRow& command);
    void Calculate(const CommandRow& command);
    void DrawDiagram(const CommandRow& command);
    void ShowOptions(const CommandRow& command);
    void ShowReference(const CommandRow& command);
    void CloseStaleDiagram();
    void FollowOptions(const OptionsChoice::Outcome& outcome);
    void FollowReference(bool changed);
    void ShowTips(const CommandRow& command);
    void ShowAbout(const CommandRow& command);
    void ShowHelp(const CommandRow& command);

    void OpenTips();
    void SwitchHint();
    void AskForMethod();
    void StartCalculation(const CalculationStart& start);
    void ShowResult();
    void AskForPoint();
    void PointAccepted();
    void CalculateVessel();
    void FollowResult();
    void OpenIsoCalc();
    void OpenDiagnosis();

    Session& session;
    BusyCursor busy;
    CommandMenu* menu;
    StartPage* startPage = nullptr;
    FirstUserHint* hint = nullptr;
    std::vector<std::pair<int, QAction*>> toolbarButtons; // button index, action
    std::array<QLabel*, 4> panels{};
    HelpDesk* helpDesk;
    DiagramDesk* diagramDesk = nullptr; // made with the first diagram
    QPointer<frmCalcOut> resultWindow;
    QPointer<frmParinput> inputWindow;
    QPointer<frmTip> tipWindow;
    bool showTipsExplicitly = false;
};

} // namespace orva
