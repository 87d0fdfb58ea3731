// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/command_menu.h"

#include <QMenu>

#include "ui/text.h"

namespace orva {

namespace {

// Its entries are the open windows, which no table knows.
constexpr std::string_view windowMenu = "mnuWindow";

} // namespace

CommandMenu::CommandMenu(QMenuBar* bar) : QObject(bar) {
    const auto table = CommandTable();
    actions.reserve(table.size());
    menus.reserve(table.size());
    for (std::size_t row = 0; row < table.size(); ++row)
        AddRow(bar, static_cast<int>(row));
}

void CommandMenu::AddRow(QMenuBar* bar, int row) {
    const CommandRow& command = CommandTable()[static_cast<std::size_t>(row)];
    const QString key = ToQt(CommandKey(command.name, command.index));
    const int parentRow = command.parent.empty() ? -1 : FindCommand(command.parent, command.parentIndex);
    QMenu* parent = parentRow < 0 ? nullptr : menus.at(static_cast<std::size_t>(parentRow));
    QMenu* menu = nullptr;
    QAction* action = nullptr;
    if (command.kind == CommandKind::Menu) {
        menu = parent != nullptr ? parent->addMenu(ToQt(command.text)) : bar->addMenu(ToQt(command.text));
        menu->setObjectName(key);
        action = menu->menuAction();
        connect(menu, &QMenu::aboutToShow, this, [this, row] { emit Opening(row); });
    } else if (command.kind == CommandKind::Separator) {
        action = parent->addSeparator();
    } else {
        action =
            parent != nullptr ? parent->addAction(ToQt(command.text)) : bar->addAction(ToQt(command.text));
        connect(action, &QAction::triggered, this, [this, row] { emit Chosen(row); });
    }
    action->setObjectName(key);
    action->setCheckable(command.action == CommandAction::Draw);
    action->setMenuRole(QAction::NoRole);
    actions.push_back(action);
    menus.push_back(menu);
}

void CommandMenu::Refresh(const CommandStates& states) {
    const auto table = CommandTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].kind == CommandKind::Separator)
            continue;
        const int row = static_cast<int>(i);
        QAction* action = actions[i];
        action->setText(ToQt(states.Text(row)));
        action->setVisible(states.Visible(row));
        action->setChecked(states.Checked(row));
        action->setEnabled(table[i].name == windowMenu ? states.Allowed(row) : states.Enabled(row));
    }
}

} // namespace orva
