// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "calc/function_inversion.h"
#include "shell/session.h"
#include "ui/number_field.h"
#include "ui/shell/busy_cursor.h"

class QBoxLayout;

namespace orva {

// Digits, point, comma and sign only.
class PlainNumberValidator : public NumberValidator {
    Q_OBJECT
public:
    using NumberValidator::NumberValidator;
    State validate(QString& input, int& position) const override;
};

// "Iso-Rechner": the T or p at which a function of one phase takes a given value. It works on row 0 of the
// data series beside the result window.
class frmIsoCalc : public QDialog {
    Q_OBJECT
public:
    frmIsoCalc(Session& session, BusyCursor& busy, QWidget* parent = nullptr);

    const IsoCalculation& Model() const { return model; }

    // The result window shows another point, or the same one in other units.
    void Follow();

signals:
    // Row 0 holds another point: the result window calculates it.
    void WorkingPointChanged();
    // `cmdShowManuInput`, which is enabled where this is connected.
    void ManuInputWanted();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QGroupBox* ChoiceFrame(const QString& title, const char* array, const QStringList& texts, int chosen,
                           void (IsoCalculation::*choose)(int));
    QGroupBox* FunctionFrame();
    QGroupBox* ValueFrame();
    void AddButtons(QBoxLayout& column);
    void OrderTabs();
    NumberField* AddField(const char* name);
    void ShowFields();
    void ShowValues();
    void CalculateNow();
    void ResetNow();

    Session& session;
    BusyCursor& busy;
    IsoCalculation model;
    std::array<QLabel*, isoFunctionCount> values{}, units{};
    QLabel *lblTpVorgabe, *lblFuConst, *lblFuUnit;
    NumberField *txtTpVorgabe, *txtFuConst;
    QLineEdit* txtTpCalc;
    QPushButton *cmdCalc, *cmdShowManuInput;
};

} // namespace orva
