// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/substance/virial_input_window.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/button_row.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr const char* fieldLabels[] = {"b0 = ", "b1 = ", "b2 = "};

} // namespace

frmBParInput::frmBParInput(const std::array<double, 3>& constants, Dialogs& boxes, QWidget* parent)
    : QDialog(parent), input(constants), dialogs(boxes) {
    setObjectName(QStringLiteral("frmBParInput"));
    setWindowTitle(QStringLiteral("Eingabe: Virialkoeffizient B(T)"));
    auto* column = new QVBoxLayout(this);
    auto* formula = new QLabel(QStringLiteral("B/m^3/kmol = b0 - b1/T^b2"), this);
    formula->setFont(FixedPitchFont());
    column->addWidget(formula);
    column->addSpacing(6);
    auto* form = new QFormLayout;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = new NumberField(this);
        fields[i]->setObjectName(ControlName("par", static_cast<int>(i)));
        fields[i]->setText(ToQt(input.par[i]));
        fields[i]->installEventFilter(this);
        auto* label = new QLabel(QLatin1String(fieldLabels[i]), this);
        label->setFont(FixedPitchFont());
        form->addRow(label, fields[i]);
    }
    column->addLayout(form);
    column->addSpacing(6);
    column->addLayout(TakeOrCancel(*this, "cmdParameter_OK", "cancel", [this] { TakeInput(); }));
    column->setSizeConstraint(QLayout::SetFixedSize);
    fields.front()->setFocus();
    fields.front()->selectAll();
}

void frmBParInput::TakeInput() {
    for (std::size_t i = 0; i < fields.size(); ++i)
        input.par[i] = FromQt(fields[i]->text());
    const auto refused = input.cmdParameter_OK();
    if (!refused) {
        accept();
        return;
    }
    dialogs.Show(refused->message);
    NumberField* field = fields[static_cast<std::size_t>(refused->field)];
    field->setFocus();
    field->selectAll();
}

bool frmBParInput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched != fields.back()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusNextChild();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orva
