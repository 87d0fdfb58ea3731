// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/reference_window.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QVBoxLayout>

#include "ui/button_row.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr const char* optionTexts[] = {
    "&Freie Wahl: h = h0, s = s0 bei T0, p0",
    "&Bildungsenthalpie h(f) und konventionelle Entropie s(konv)",
    "Bildungsenthalpie h(f) und Bildungs&entropie s(f)",
};

struct FieldRow {
    const char* label;
    const char* unit;
};

constexpr FieldRow fieldRows[] = {
    {"&Temperatur T0 = ", "K"}, {"&Druck p0 = ", "kPa"},         {"Te&mperatur T(u) = ", "K"},
    {"D&ruck p(u) = ", "kPa"},  {"Enthalpie &h0 = ", "kJ/kmol"}, {"Entropie &s0 = ", "kJ/(kmol K)"},
};

constexpr int referencePoint[] = {refT0, refP0, refH0, refS0};
constexpr int environment[] = {refTenv, refPenv};

constexpr const char* longestLabel = "Temperatur T(u) = "; // stands in the second frame
constexpr const char* longestExplanation =
    "h(f) = -1234567 kJ/kmol, s(konv) = -1234.567 kJ/(kmol K); h0, s0 werden addiert";

} // namespace

frmReferenz::frmReferenz(ReferenceInput referenceInput, Dialogs& boxes, QWidget* parent)
    : QDialog(parent), input(std::move(referenceInput)), dialogs(boxes),
      explanation(MutedLabel(QString(), this)) {
    setObjectName(QStringLiteral("frmReferenz"));
    setWindowTitle(QStringLiteral("Normierung thermodynamischer Funktionen"));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addWidget(KindFrame());
    column->addWidget(FieldFrame(QStringLiteral("Bezugspunkt"), referencePoint));
    column->addWidget(FieldFrame(QStringLiteral("Umgebungszustand der Exergien"), environment));
    column->addLayout(TakeOrCancel(*this, "OK", "Esc", [this] { TakeInput(); }));
    column->setSizeConstraint(QLayout::SetFixedSize);
    ShowInput();
    opt_HNull[static_cast<std::size_t>(input.opt_HNull)]->setFocus();
}

QGroupBox* frmReferenz::KindFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Nullpunkt von Enthalpie und Entropie"), this);
    auto* grid = new QGridLayout(frame);
    auto* group = new QButtonGroup(this);
    for (int i = 0; i < static_cast<int>(opt_HNull.size()); ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(optionTexts[i]), frame);
        option->setObjectName(ControlName("opt_HNull", i));
        group->addButton(option, i);
        grid->addWidget(option, i, 0);
        opt_HNull[static_cast<std::size_t>(i)] = option;
    }
    explanation->setObjectName(QStringLiteral("lblHNull"));
    explanation->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1String(longestExplanation)));
    grid->addWidget(explanation, static_cast<int>(opt_HNull.size()), 0);
    grid->addWidget(HelpButton(QStringLiteral("cmdRefHelp"), frame), 0, 1, Qt::AlignRight);
    grid->setColumnStretch(0, 1);
    connect(group, &QButtonGroup::idToggled, this, [this](int option, bool taken) {
        if (taken)
            TakeOption(option);
    });
    return frame;
}

QGroupBox* frmReferenz::FieldFrame(const QString& title, std::span<const int> shown) {
    auto* frame = new QGroupBox(title, this);
    auto* grid = new QGridLayout(frame);
    int row = 0;
    for (const int field : shown) {
        const FieldRow& text = fieldRows[field];
        auto* entry = new NumberField(frame);
        entry->setObjectName(ControlName("T", field));
        auto* label = new QLabel(QLatin1String(text.label), frame);
        label->setBuddy(entry);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1String(longestLabel)));
        grid->addWidget(label, row, 0);
        grid->addWidget(entry, row, 1);
        grid->addWidget(new QLabel(QLatin1String(text.unit), frame), row, 2);
        fields[static_cast<std::size_t>(field)] = entry;
        ++row;
    }
    grid->setColumnStretch(2, 1);
    return frame;
}

void frmReferenz::ShowInput() {
    opt_HNull[static_cast<std::size_t>(input.opt_HNull)]->setChecked(true);
    for (int field = 0; field < refFieldCount; ++field) {
        const auto at = static_cast<std::size_t>(field);
        fields[at]->setText(ToQt(input.T[at]));
        fields[at]->setEnabled(input.Editable(field));
    }
    explanation->setText(ToQt(input.Explanation()));
}

void frmReferenz::TakeTexts() {
    for (std::size_t i = 0; i < fields.size(); ++i)
        input.T[i] = FromQt(fields[i]->text());
}

void frmReferenz::TakeOption(int option) {
    if (option == input.opt_HNull)
        return;
    TakeTexts();
    input.TakeOption(option);
    ShowInput();
}

void frmReferenz::TakeInput() {
    TakeTexts();
    if (const auto refused = input.OK()) {
        dialogs.Show(refused->message);
        NumberField* field = fields[static_cast<std::size_t>(refused->field)];
        field->setFocus();
        field->selectAll();
        return;
    }
    accept();
    emit Accepted(input.Changed());
}

} // namespace orva
