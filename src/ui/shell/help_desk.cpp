// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/help_desk.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

#include "ui/help_request.h"
#include "ui/text.h"

namespace orva {

namespace {

// The command at which an open menu stands, or the nearest menu around it that has a topic.
const HelpTopic* TopicOfMenu(const QMenu* menu) {
    const QAction* action = menu->activeAction();
    for (const QWidget* at = menu; at != nullptr; at = at->parentWidget()) {
        if (action != nullptr)
            if (const HelpTopic* topic = HelpTopicOf("", FromQt(action->objectName())))
                return topic;
        const auto* around = qobject_cast<const QMenu*>(at);
        action = around == nullptr ? nullptr : around->menuAction();
    }
    return nullptr;
}

} // namespace

HelpDesk::HelpDesk(std::filesystem::path helpFolder, QWidget* mainWindow)
    : QObject(mainWindow), folder(std::move(helpFolder)), owner(mainWindow) {
    owner->installEventFilter(this);
    QCoreApplication::instance()->installEventFilter(this);
}

HelpDesk::~HelpDesk() = default;

void HelpDesk::Open(const HelpTopic& topic) {
    if (window == nullptr)
        window = std::make_unique<HelpWindow>(folder);
    window->Open(topic);
}

bool HelpDesk::BelongsToOwner(const QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget())
        if (widget == owner || widget == window.get())
            return true;
    return false;
}

// The nearest of the control, what it stands in, its window, and the windows behind it.
const HelpTopic* HelpDesk::TopicOf(const QWidget* widget) const {
    if (const auto* menu = qobject_cast<const QMenu*>(widget))
        if (const HelpTopic* topic = TopicOfMenu(menu))
            return topic;
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (widget->objectName().isEmpty())
            continue;
        const std::string name = FromQt(widget->objectName());
        const HelpTopic* topic = widget->isWindow()
                                     ? HelpTopicOf(name, "")
                                     : HelpTopicOf(FromQt(widget->window()->objectName()), name);
        if (topic != nullptr)
            return topic;
    }
    return &HelpIndexTopic();
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
    if (watched == owner && event->type() == HelpRequest::EventType()) {
        auto* request = static_cast<HelpRequest*>(event);
        const HelpTopic* topic = HelpTopicOf(FromQt(request->window), FromQt(request->control));
        Open(topic != nullptr ? *topic : HelpIndexTopic());
        request->accept();
        return true;
    }
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto* widget = static_cast<QWidget*>(watched);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || !BelongsToOwner(widget))
        return QObject::eventFilter(watched, event);
    const HelpTopic* topic = TopicOf(widget);
    while (QWidget* popup = QApplication::activePopupWidget())
        if (!popup->close())
            break;
    Open(*topic);
    return true;
}

} // namespace orva
