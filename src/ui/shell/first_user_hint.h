// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

namespace orva {

// The panel `Picture1` with the way through the program. A click anywhere on it hides it.
class FirstUserHint : public QFrame {
    Q_OBJECT
public:
    explicit FirstUserHint(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace orva
