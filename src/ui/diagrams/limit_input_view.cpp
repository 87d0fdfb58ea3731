// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/limit_input_view.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/diagrams/decimal_comma.h"

namespace orva {

namespace {

constexpr std::array<const char*, 3> fieldNames = {"txtValue", "txtFrom", "txtTo"};

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

frmInputProzessLinien::frmInputProzessLinien(LimitInput& theInput, QWidget* parent)
    : QDialog(parent), input(theInput) {
    setObjectName("frmInputProzessLinien");
    auto* grid = new QGridLayout(this);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const int line = static_cast<int>(i);
        labels[i] = new QLabel(this);
        fields[i] = new QLineEdit(this);
        fields[i]->setObjectName(fieldNames[i]);
        fields[i]->setAlignment(Qt::AlignRight);
        fields[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
        labels[i]->setBuddy(fields[i]);
        grid->addWidget(labels[i], line, 0);
        grid->addWidget(fields[i], line, 1);
        TurnCommas(*fields[i]);
    }
    auto* draw = new QPushButton(tr("Zeichnen"), this);
    draw->setObjectName("cmdDraw");
    draw->setDefault(true);
    auto* cancel = new QPushButton(tr("Grafik &abbrechen"), this);
    cancel->setObjectName("cmdAbbrechen");
    cancel->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(draw);
    buttons->addWidget(cancel);
    grid->addLayout(buttons, static_cast<int>(fields.size()), 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    connect(draw, &QPushButton::clicked, this, &frmInputProzessLinien::Draw);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    Refresh();
}

void frmInputProzessLinien::Refresh() {
    setWindowTitle(Text(input.Caption()));
    labels[0]->setText(Text(input.ValueLabel()));
    labels[1]->setText(Text(input.LowLabel()));
    labels[2]->setText(Text(input.HighLabel()));
    fields[0]->setText(Text(input.Value()));
    fields[1]->setText(Text(input.Low()));
    fields[2]->setText(Text(input.High()));
    fields[0]->setFocus();
    fields[0]->selectAll();
}

void frmInputProzessLinien::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Refresh();
}

// The desktop may hand the keyboard to another window in between, and the selection is lost with it.
void frmInputProzessLinien::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    if (auto* field = qobject_cast<QLineEdit*>(focusWidget()))
        field->selectAll();
}

void frmInputProzessLinien::Draw() {
    input.cmdDraw(fields[0]->text().toStdString(), fields[1]->text().toStdString(),
                  fields[2]->text().toStdString());
    fields[0]->setFocus();
    fields[0]->selectAll();
}

} // namespace orva
