// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help_request.h"

#include <QCoreApplication>

namespace orva {

HelpRequest::HelpRequest(QString windowName, QString controlName)
    : QEvent(EventType()), window(std::move(windowName)), control(std::move(controlName)) {
    ignore();
}

QEvent::Type HelpRequest::EventType() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

bool RequestHelp(QWidget& from, const QString& control) {
    HelpRequest request(from.window()->objectName(), control);
    for (QWidget* asked = &from; asked != nullptr && !request.isAccepted(); asked = asked->parentWidget())
        QCoreApplication::sendEvent(asked, &request);
    return request.isAccepted();
}

} // namespace orva
