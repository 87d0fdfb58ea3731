// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QValidator>

namespace orva {

// Lets only the beginnings of numbers into a field; a comma becomes a point. Blanks around pasted numbers go.
class NumberValidator : public QValidator {
    Q_OBJECT
public:
    using QValidator::QValidator;
    State validate(QString& input, int& position) const override;
};

// An input line for one number. Selects its text when it gets the focus by key.
class NumberField : public QLineEdit {
    Q_OBJECT
public:
    explicit NumberField(QWidget* parent = nullptr);
};

} // namespace orva
