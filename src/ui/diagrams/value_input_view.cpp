// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/value_input_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "ui/diagrams/decimal_comma.h"

namespace orva {

namespace {

QPushButton* AddButton(QHBoxLayout* row, const char* name, const QString& text, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

} // namespace

frmTpVSInputBox::frmTpVSInputBox(ValueInput& theInput, QWidget* parent)
    : QDialog(parent), input(theInput), label(new QLabel(this)), unit(new QLabel(this)),
      value(new QLineEdit(this)) {
    setObjectName("frmTpVSInputBox");
    label->setObjectName("lblValue");
    unit->setObjectName("lblUnit");
    value->setObjectName("txtValue");
    value->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral(R"([+-]?\d*[.,]?\d*([eE][+-]?\d*)?)")), value));
    value->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
    value->setAlignment(Qt::AlignRight);
    label->setBuddy(value);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    for (QWidget* widget :
         {static_cast<QWidget*>(label), static_cast<QWidget*>(unit), static_cast<QWidget*>(value)})
        widget->setFont(large);

    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(value, 1);
    line->addWidget(unit);
    auto* hint = new QLabel(tr("Eingabetaste: zeichnen, danach ist der nächste Wert möglich"), this);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QHBoxLayout;
    QPushButton* draw = AddButton(buttons, "cmdOKAndDraw", tr("OK und &zeichnen"), this);
    QPushButton* keep = AddButton(buttons, "cmdOK", tr("&OK"), this);
    QPushButton* cancel = AddButton(buttons, "cmdAbbrechen", tr("Grafik &abbrechen"), this);
    draw->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(line);
    layout->addWidget(hint);
    layout->addSpacing(6);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(draw, &QPushButton::clicked, this, &frmTpVSInputBox::Draw);
    connect(keep, &QPushButton::clicked, this, &frmTpVSInputBox::Keep);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    TurnCommas(*value);
    Refresh();
}

void frmTpVSInputBox::Refresh() {
    setWindowTitle(QString::fromStdString(input.Caption()));
    label->setText(QString::fromStdString(input.Label()).trimmed());
    unit->setText(QString::fromStdString(input.Unit()).trimmed().replace("^3", "³"));
    unit->setVisible(!unit->text().isEmpty());
    value->setText(QString::fromStdString(input.Value()));
    SelectValue();
}

void frmTpVSInputBox::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Refresh();
}

// The desktop may hand the keyboard to another window in between, and the selection is lost with it: whoever
// types next means a new value.
void frmTpVSInputBox::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        SelectValue();
}

void frmTpVSInputBox::Draw() {
    input.cmdOKAndDraw(value->text().toStdString());
    SelectValue();
}

void frmTpVSInputBox::Keep() {
    if (input.cmdOK(value->text().toStdString()))
        accept();
    else
        SelectValue();
}

void frmTpVSInputBox::SelectValue() {
    value->setFocus();
    value->selectAll();
}

} // namespace orva
