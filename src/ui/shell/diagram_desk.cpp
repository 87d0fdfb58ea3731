// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/diagram_desk.h"

#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/limit_input_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/help_request.h"
#include "ui/place_window.h"

namespace orva {

namespace {

DiagramRecords RecordsOf(Session& session) {
    return {session.model, session.options, session.ranges,
            session.curve, session.state,   session.calculation.diagramTemperature,
            session.names, session.style};
}

// A projection and a function of T draw their whole curve without an input.
bool TakesValue(const DiagramRow& row) {
    return row.curveKind != curveProjection && row.curveKind != curveFunctionOfT;
}

} // namespace

DiagramDesk::DiagramDesk(Session& ownSession, QWidget* owner)
    : QObject(owner), session(ownSession), window(RecordsOf(session), session.dialogs),
      input(RecordsOf(session), window, session.dialogs), limits(RecordsOf(session), window, session.dialogs),
      graph(new frmGraph2D(window, session.dialogs, owner)), valueBox(new frmTpVSInputBox(input, graph)),
      limitBox(new frmInputProzessLinien(limits, graph)) {
    connect(graph, &frmGraph2D::InputWanted, this, &DiagramDesk::AskForValue);
    connect(graph, &frmGraph2D::HelpWanted, graph,
            [this](const QString& control) { RequestHelp(*graph, control); });
}

// The windows refer to the models, so they go first.
DiagramDesk::~DiagramDesk() {
    delete graph;
}

void DiagramDesk::Open(const DiagramRow& row) {
    if (!window.Open(&row))
        return;
    subject = CurrentSubject();
    valueBox->close();
    limitBox->close();
    BringToFront(*graph);
    if (TakesValue(row))
        AskForValue();
    else
        window.DrawAtOnce();
}

DiagramDesk::Subject DiagramDesk::CurrentSubject() const {
    return {session.state.databaseFile, session.state.substanceIndex, session.model.selection.eos};
}

void DiagramDesk::CloseIfStale() {
    if (!(CurrentSubject() == subject))
        Close();
}

void DiagramDesk::CloseIfNormalised() {
    const DiagramRow* row = FindDiagram(window.Spec().type);
    if (row != nullptr && (DependsOnReference(row->x.quantity) || DependsOnReference(row->y.quantity)))
        Close();
}

void DiagramDesk::Close() {
    if (graph == nullptr)
        return;
    valueBox->close();
    limitBox->close();
    graph->close();
}

// A diagram of two functions runs between limits, the others take one value.
QDialog* DiagramDesk::InputBox() {
    if (window.Spec().curveCode == "yy") {
        limitBox->Refresh();
        return limitBox;
    }
    valueBox->Refresh();
    return valueBox;
}

void DiagramDesk::AskForValue() {
    QDialog& box = *InputBox();
    if (!box.isVisible()) {
        box.adjustSize();
        PlaceBeside(box, *graph);
    }
    BringToFront(box);
}

} // namespace orva
