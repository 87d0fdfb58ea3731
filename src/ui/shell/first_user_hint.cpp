// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/first_user_hint.h"

#include <QLabel>
#include <QVBoxLayout>

namespace orva {

namespace {

const char* const hintLines[] = {
    "Falls Sie noch nicht mit ORVA vertraut sind: ",
    "(1)  Beginnen Sie mit einem neuen Projekt (Klick auf linkes Icon)",
    "(2)  Wählen Sie eine Datenbank, dann einen Stoff, dann die gewünschten Rechenmodelle (am besten: "
    "Voreinstellung bestätigen )",
    "(3) Danach steht im Hauptmenü die Ausführung von  2D/3D-Diagramm- oder Einzelpunkt-Berechnungen bereit ",
};

} // namespace

FirstUserHint::FirstUserHint(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("Picture1"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setCursor(Qt::PointingHandCursor);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    bool first = true;
    for (const char* line : hintLines) {
        auto* label = new QLabel(QString::fromUtf8(line), this);
        label->setForegroundRole(QPalette::ToolTipText);
        label->setWordWrap(true);
        QFont font = label->font();
        font.setBold(first);
        label->setFont(font);
        layout->addWidget(label);
        first = false;
    }
    hide();
}

void FirstUserHint::mousePressEvent(QMouseEvent*) {
    hide();
}

} // namespace orva
