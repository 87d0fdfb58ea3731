// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "calc/point_input.h"
#include "ui/number_field.h"

namespace orva {

// The window that takes the numbers of one point. It stays open beside the result, for the next point.
class frmParinput : public QDialog {
    Q_OBJECT
public:
    frmParinput(PointInput input, Dialogs& dialogs, QWidget* parent = nullptr);

    // Puts the keyboard on the first field with its number selected.
    void FocusFirstField();
    // The options changed the units of a volume.
    void FollowUnits();

    // T or p stands at 0, typed but not calculated.
    bool ShowsZero() const;

signals:
    // The numbers stand in row 0 of the data series.
    void Accepted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Two options side by side; `choose` takes the index of the one that was chosen.
    void AddChoice(QBoxLayout& column, const char* name, const std::array<const char*, 2>& texts, int chosen,
                   std::function<void(int)> choose);
    void ShowLines();
    void TakeTexts();
    void CalculateNow();
    bool FocusNextField(QObject* from);

    PointInput input;
    Dialogs& dialogs;
    std::array<QLabel*, 4> headings{}, labels{};
    std::array<NumberField*, 4> fields{};
    QPushButton* okButton;
};

} // namespace orva
