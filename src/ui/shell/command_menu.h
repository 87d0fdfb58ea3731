// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QMenuBar>

#include "shell/command_states.h"
#include "shell/command_table.h"

namespace orva {

// The main menu, built from the command table. Actions and menus carry the key of their command as object
// name.
class CommandMenu : public QObject {
    Q_OBJECT
public:
    explicit CommandMenu(QMenuBar* bar);

    // Brings enabled, visible and text of every entry up to date.
    void Refresh(const CommandStates& states);

    QAction* Action(int row) const { return actions.at(static_cast<std::size_t>(row)); }
    // Null for a command that is no menu.
    QMenu* Menu(int row) const { return menus.at(static_cast<std::size_t>(row)); }

signals:
    void Chosen(int row);
    void Opening(int row);

private:
    void AddRow(QMenuBar* bar, int row);

    std::vector<QAction*> actions; // parallel to the command table
    std::vector<QMenu*> menus;
};

} // namespace orva
