// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QRect>

class QWidget;

namespace orva {

// Lets every window of the program open where the user left it, and as large if he changed its size; a window
// that fits itself to its contents goes on doing so until then. No window opens beyond the edge of the screen
// or larger than it. One object serves all windows, by their object names "frm..." and "mdi...".
class WindowPlaces : public QObject {
    Q_OBJECT
public:
    explicit WindowPlaces(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Restore(QWidget& window);
    void Remember(QWidget& window);

    QHash<QObject*, QRect> shown; // where each window was put
};

} // namespace orva
