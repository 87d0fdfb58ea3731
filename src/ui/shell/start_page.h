// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>
#include <vector>

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "shell/session.h"
#include "ui/shell/command_menu.h"

namespace orva {

// A numbered disc: ahead, at hand, or done.
class StepDisc : public QWidget {
    Q_OBJECT
public:
    enum class State { Ahead, Current, Done };

    StepDisc(int number, QWidget* parent);
    void SetState(State shown);
    State Shown() const { return state; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int number;
    State state = State::Ahead;
};

// What the main window shows while no other window lies over it: the four steps of all work, what is settled
// of them, and buttons that do the same as the menu.
class StartPage : public QWidget {
    Q_OBJECT
public:
    StartPage(CommandMenu& menu, QWidget* parent = nullptr);

    void Refresh(const Session& session);

    // Puts the keyboard on the button of the step at hand.
    void FocusCurrentStep();

private:
    struct Step {
        StepDisc* disc;
        QLabel* title;
        QLabel* text;
        std::vector<std::pair<QPushButton*, QAction*>> buttons;
    };

    void AddStep(int number, const QString& title, std::initializer_list<const char*> commands);

    CommandMenu& menu;
    QWidget* page;
    std::vector<Step> steps;
};

} // namespace orva
