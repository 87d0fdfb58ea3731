// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPlainTextEdit>

#include "calc/point_result.h"

namespace orva {

// The report of a calculation with the heads of its two value columns, which stay above their columns when
// the report is scrolled.
class ReportView : public QWidget {
    Q_OBJECT
public:
    explicit ReportView(QWidget* parent = nullptr);

    void Show(const PointResult& result);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceHeads();
    void ShowText(const QString& text);
    QLabel* AddHead(const QString& name);

    QWidget* heads;
    QLabel *lblLphase, *lblVphase, *lblGleich;
    QPlainTextEdit* Liste;
};

} // namespace orva
