// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window_places.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QWidget>

namespace orva {

namespace {

constexpr int settlingTime = 300; // ms
constexpr QPoint stepIn(48, 72);  // from the corner of the owner, below its menu

bool HasPlace(const QWidget& window) {
    return window.isWindow()
           && (window.objectName().startsWith(QLatin1String("frm"))
               || window.objectName().startsWith(QLatin1String("mdi")));
}

QString GeometryKey(const QWidget& window) {
    return QStringLiteral("windows/%1/geometry").arg(window.objectName());
}

QString SizedKey(const QWidget& window) {
    return QStringLiteral("windows/%1/sized").arg(window.objectName());
}

QRect PlaceOf(const QWidget& window) {
    return {window.pos(), window.isMaximized() ? window.normalGeometry().size() : window.size()};
}

// Dialogs centre themselves over their owner. Any other window would come wherever the desktop has room, far
// from its owner, and what opens beside it could not know where that is.
bool NeedsPlace(const QWidget& window) {
    return !window.inherits("QDialog") && window.parentWidget() != nullptr
           && !window.testAttribute(Qt::WA_Moved);
}

// With its frame, as far as that is known. A window whose place nobody settled gets it from the desktop; only
// its size is looked at.
void FitToScreen(QWidget& window) {
    if (window.isMaximized() || window.isFullScreen())
        return;
    const QRect area = window.screen()->availableGeometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize size = window.size().boundedTo(area.size() - frame);
    if (size != window.size())
        window.resize(size);
    if (!window.testAttribute(Qt::WA_Moved))
        return;
    const QSize room = (area.size() - size - frame).expandedTo({0, 0}); // a window may not get small enough
    const QPoint place(std::clamp(window.x(), area.left(), area.left() + room.width()),
                       std::clamp(window.y(), area.top(), area.top() + room.height()));
    if (place != window.pos())
        window.move(place);
}

} // namespace

WindowPlaces::WindowPlaces(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool WindowPlaces::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() != QEvent::Show && event->type() != QEvent::Hide) || event->spontaneous()
        || !watched->isWidgetType())
        return false;
    auto& window = static_cast<QWidget&>(*watched);
    if (!HasPlace(window))
        return false;
    if (event->type() == QEvent::Show)
        Restore(window);
    else
        Remember(window);
    return false;
}

void WindowPlaces::Restore(QWidget& window) {
    if (!shown.contains(&window)) {
        connect(&window, &QObject::destroyed, this, [this](QObject* gone) { shown.remove(gone); });
        const QSettings settings;
        const QSize ownSize = window.size();
        const bool restored = window.restoreGeometry(settings.value(GeometryKey(window)).toByteArray());
        if (restored && !settings.value(SizedKey(window)).toBool())
            window.resize(ownSize);
        if (!restored && NeedsPlace(window))
            window.move(window.parentWidget()->window()->frameGeometry().topLeft() + stepIn);
    }
    FitToScreen(window);
    shown.insert(&window, PlaceOf(window));
    // After this a dialog centres itself, the desktop moves windows and puts frames around them. The user is
    // not that quick.
    QTimer::singleShot(settlingTime, this, [this, settled = QPointer<QWidget>(&window)] {
        if (settled == nullptr || !settled->isVisible())
            return;
        const QSize before = settled->size();
        FitToScreen(*settled);
        shown[settled].moveTo(settled->pos());
        if (settled->size() != before)
            shown[settled].setSize(settled->size());
    });
}

void WindowPlaces::Remember(QWidget& window) {
    const QRect before = shown.value(&window);
    const QRect now = PlaceOf(window);
    const bool sized = now.size() != before.size() || window.isMaximized();
    if (!sized && now.topLeft() == before.topLeft())
        return;
    QSettings settings;
    settings.setValue(GeometryKey(window), window.saveGeometry());
    if (sized)
        settings.setValue(SizedKey(window), true);
}

} // namespace orva
