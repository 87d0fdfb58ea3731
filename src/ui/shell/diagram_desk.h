// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QObject>
#include <QPointer>

#include "diagrams/limit_input.h"
#include "diagrams/value_input.h"
#include "shell/session.h"

class QDialog;

namespace orva {

class frmGraph2D;
class frmInputProzessLinien;
class frmTpVSInputBox;

// The 2D diagram with its two windows. They are made with the first diagram and serve all that follow.
class DiagramDesk : public QObject {
    Q_OBJECT
public:
    DiagramDesk(Session& ownSession, QWidget* owner);
    ~DiagramDesk() override;

    // Sets the diagram up, shows it, and asks for the T, p or v of the first curve where the type needs one.
    void Open(const DiagramRow& row);
    // Closes both windows when substance or equation of state are no longer those that the heading names.
    void CloseIfStale();
    // Closes both windows when the curves count from the reference point, which has changed.
    void CloseIfNormalised();
    void Close();

private:
    // What the curves of the open diagram belong to.
    struct Subject {
        std::string databaseFile;
        int substanceIndex = 0;
        int eos = 0;
        bool operator==(const Subject&) const = default;
    };
    Subject CurrentSubject() const;
    void AskForValue();
    QDialog* InputBox();

    Session& session;
    Subject subject;
    DiagramWindow window;
    ValueInput input;
    LimitInput limits;
    QPointer<frmGraph2D> graph;
    frmTpVSInputBox* valueBox;
    frmInputProzessLinien* limitBox;
};

} // namespace orva
