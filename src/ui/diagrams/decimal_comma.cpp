// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/decimal_comma.h"

#include <QLineEdit>

namespace orva {

void TurnCommas(QLineEdit& field) {
    QObject::connect(&field, &QLineEdit::textEdited, &field, [&field](QString text) {
        if (!text.contains(','))
            return;
        const int position = field.cursorPosition();
        field.setText(text.replace(',', '.'));
        field.setCursorPosition(position);
    });
}

} // namespace orva
