// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/number_field.h"

#include <QRegularExpression>

#include "ui/theme.h"

namespace orva {

namespace {

constexpr int longestNumber = 30;

} // namespace

QValidator::State NumberValidator::validate(QString& input, int& position) const {
    static const QRegularExpression beginning(QStringLiteral(R"(^[+-]?\d*\.?\d*([eE][+-]?\d*)?$)"));
    const qsizetype before = input.size();
    input = input.trimmed();
    input.replace(u',', u'.');
    position = static_cast<int>(std::min<qsizetype>(position, input.size()));
    if (input.size() != before)
        position = static_cast<int>(input.size());
    return beginning.match(input).hasMatch() ? Acceptable : Invalid;
}

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
    setValidator(new NumberValidator(this));
    setMaxLength(longestNumber);
    setFont(FixedPitchFont());
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000000000000")));
}

} // namespace orva
