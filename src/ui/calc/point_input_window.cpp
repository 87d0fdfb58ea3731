// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/point_input_window.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/place_window.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

frmParinput::frmParinput(PointInput pointInput, Dialogs& boxes, QWidget* parent)
    : QDialog(parent), input(std::move(pointInput)), dialogs(boxes), okButton(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmParinput"));
    setWindowTitle(ToQt(input.Title()));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->addStrut(WidthForTitle(*this));
    auto* grid = new QGridLayout;
    for (int i = 0; i < 4; ++i) {
        const auto at = static_cast<std::size_t>(i);
        headings[at] = MutedLabel(QString(), this);
        labels[at] = new QLabel(this);
        labels[at]->setFont(FixedPitchFont());
        fields[at] = new NumberField(this);
        fields[at]->setObjectName(ControlName("par", i));
        fields[at]->installEventFilter(this);
        grid->addWidget(headings[at], 2 * i, 0, 1, 2);
        grid->addWidget(labels[at], 2 * i + 1, 0, Qt::AlignRight);
        grid->addWidget(fields[at], 2 * i + 1, 1);
    }
    column->addLayout(grid);
    if (input.TakesDensity())
        AddChoice(*column, "optRhoV", {"&Dichte", "&Volumen"}, input.VolumeInput() ? 1 : 0,
                  [this](int id) { input.SetVolumeInput(id == 1); });
    if (input.IsVessel())
        AddChoice(*column, "optm_n", {"&Masse m", "Stoffmenge &n"}, input.AmountInput() ? 1 : 0,
                  [this](int id) { input.SetAmountInput(id == 1); });
    okButton->setText(ToQt(input.CommandText()));
    okButton->setObjectName(QStringLiteral("cmdParameter_OK"));
    okButton->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("&Abbrechen"), this);
    cancel->setObjectName(QStringLiteral("cancel"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(okButton);
    buttons->addWidget(cancel);
    setTabOrder(okButton, cancel); // it was made before the fields
    column->addSpacing(6);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    connect(okButton, &QPushButton::clicked, this, &frmParinput::CalculateNow);
    connect(cancel, &QPushButton::clicked, this, &QDialog::close);
    ShowLines();
    FocusFirstField();
}

void frmParinput::AddChoice(QBoxLayout& column, const char* name, const std::array<const char*, 2>& texts,
                            int chosen, std::function<void(int)> choose) {
    auto* group = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(texts[static_cast<std::size_t>(i)]), this);
        option->setObjectName(ControlName(name, i));
        option->setChecked(i == chosen);
        group->addButton(option, i);
        row->addWidget(option);
    }
    row->addStretch(1);
    column.addLayout(row);
    connect(group, &QButtonGroup::idToggled, this, [this, choose](int id, bool on) {
        if (!on)
            return;
        for (std::size_t i = 0; i < fields.size(); ++i)
            input.Lines()[i].text = FromQt(fields[i]->text());
        choose(id);
        ShowLines();
    });
}

void frmParinput::ShowLines() {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const InputLine& line = input.Lines()[i];
        headings[i]->setVisible(line.visible && !line.heading.empty());
        headings[i]->setText(ToQt(line.heading));
        labels[i]->setVisible(line.visible);
        labels[i]->setText(ToQt(line.label));
        fields[i]->setVisible(line.visible);
        fields[i]->setAccessibleName(ToQt(line.label).simplified());
        fields[i]->setText(ToQt(line.text).replace(u',', u'.'));
    }
}

void frmParinput::TakeTexts() {
    for (std::size_t i = 0; i < fields.size(); ++i)
        input.Lines()[i].text = FromQt(fields[i]->text());
}

void frmParinput::FollowUnits() {
    TakeTexts();
    input.FollowUnits();
    ShowLines();
}

void frmParinput::FocusFirstField() {
    for (NumberField* field : fields) {
        if (field->isHidden())
            continue;
        field->setFocus();
        field->selectAll();
        return;
    }
}

bool frmParinput::FocusNextField(QObject* from) {
    bool passed = false;
    for (NumberField* field : fields) {
        if (passed && !field->isHidden()) {
            field->setFocus();
            field->selectAll();
            return true;
        }
        passed = passed || field == from;
    }
    return false;
}

bool frmParinput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QDialog::eventFilter(watched, event);
    if (!FocusNextField(watched))
        okButton->click();
    return true;
}

bool frmParinput::ShowsZero() const {
    const auto isZero = [](const NumberField* field) {
        return !field->isHidden() && field->text().trimmed() == QStringLiteral("0");
    };
    return isZero(fields[0]) || isZero(fields[1]);
}

void frmParinput::CalculateNow() {
    TakeTexts();
    if (const auto refused = input.Accept()) {
        dialogs.Show(*refused);
        FocusFirstField();
        return;
    }
    emit Accepted();
}

} // namespace orva
