// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include <QMainWindow>

#include "diagrams/chart_text.h"
#include "diagrams/diagram_window.h"
#include "plot/chart_plot.h"

class QAction;
class QActionGroup;
class QCPItemTracer;
class QCustomPlot;
class QLabel;
class QMenu;
class QMouseEvent;

namespace orva {

// The diagram window: shows the chart document of its model and forwards the commands to it.
//
// The left button drags the sheet, the wheel zooms, cmdZoom zooms into a rectangle, a double click returns.
// Moving the mouse shows the state at the nearest point of a curve.
class frmGraph2D : public QMainWindow {
    Q_OBJECT
public:
    frmGraph2D(DiagramWindow& window, Dialogs& dialogs, QWidget* parent = nullptr);
    ~frmGraph2D() override;

    QCustomPlot& Plot() { return *plot; }

    // The commands by their names.
    void cmdInput();
    void cmdDraw();
    void mnuBildFile();
    void mnuBildClipboard();
    void cmdClipboard();
    void cmdPrint();
    void cmdEscGraph();
    void mnuMarkKonnode();
    void mnuMarkSKurve();
    void mnuMarkKoex();
    void mnuMarkInversion();
    void mnuMarkHalbierende();
    void mnuMarkT();
    void mnuMarkP();
    void mnuMarkV();
    void mnuMarkB();
    void mnuMarkCritPointCalc();
    void mnuMarkCritPointEx();
    void mnuDelTotal();
    void cmdZoom();
    void cmdZoomReset();
    void mnuCoord();
    void cmdXLog();
    void cmdYLog();
    void cmdGraphHelp();
    void cmdTypeHelp();

signals:
    void InputWanted(); // the user wants to type the next T, p or v
    void HelpWanted(const QString& control);

protected:
    void changeEvent(QEvent* event) override;

private:
    void MakeActions();
    void MakeSeparatorMenu(QMenu& menu);
    void MakeHelpButton();
    void ConnectPlot();
    void ShowContents();
    void ShowMovedView();
    void TakeView();
    void UpdateActions();
    void UpdateDeleteMenu();
    void ShowNearestPoint(QMouseEvent* event);
    void HidePointer();
    void EndZoomMode();

    DiagramWindow& window;
    Dialogs& dialogs;
    PlotStyle style;
    QCustomPlot* plot;
    QCPItemTracer* tracer = nullptr; // lives until the chart is drawn anew
    QLabel* coordinates;
    QMenu* deleteMenu = nullptr;
    QActionGroup* separators = nullptr;
    std::map<std::string, QAction*> actions;
    bool showing = false; // the axes follow the model, not the user
};

} // namespace orva
