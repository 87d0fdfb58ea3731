// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace orva {

// A heading across the whole sheet, in several lines where the sheet is too narrow for one.
class HeadingElement : public QCPTextElement {
public:
    using QCPTextElement::QCPTextElement;

    // The parts follow one another in one line, or the last one stands below.
    void SetParts(const QStringList& parts);
    void update(UpdatePhase phase) override;

protected:
    QSize minimumOuterSizeHint() const override;
    QSize maximumOuterSizeHint() const override;

private:
    int Room() const;

    QString inOneLine, broken;
};

// Ticks of a linear axis: as many as their numbers leave room for, where they stand side by side.
class RoomyTicker : public QCPAxisTicker {
public:
    explicit RoomyTicker(const QCPAxis& ownAxis) : axis(ownAxis) {}

protected:
    double getTickStep(const QCPRange& range) override;

private:
    const QCPAxis& axis;
};

// Ticks of a logarithmic axis: powers of ten, and 1, 2, 5 where the axis shows few of them.
class DecadeTicker : public QCPAxisTickerLog {
protected:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    int getSubTickCount(double tickStep) override;

private:
    bool few = false; // decades
};

} // namespace orva
