// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QString>
#include <QWidget>

namespace orva {

// The wish for help on a control of a window. It travels up the parents until one of them accepts it.
class HelpRequest : public QEvent {
public:
    HelpRequest(QString window, QString control);

    static QEvent::Type EventType();

    const QString window;  // object name
    const QString control; // object name, empty for the window as a whole
};

// Sends the wish from a control or window upwards. False if nobody accepts it.
bool RequestHelp(QWidget& from, const QString& control);

} // namespace orva
