// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/plot_elements.h"

#include <algorithm>
#include <cmath>

namespace orva {

namespace {

constexpr int fewestTicks = 2, mostTicks = 5;
constexpr double fewDecades = 2.5;
constexpr double fewerDecades = 0.6; // of which even 1, 2, 5 would leave too few ticks

} // namespace

void HeadingElement::SetParts(const QStringList& parts) {
    inOneLine = parts.join(QString()).trimmed();
    broken = inOneLine;
    if (parts.size() > 1) {
        QString last = parts.last();
        while (last.startsWith(',') || last.startsWith(' '))
            last.remove(0, 1);
        broken = parts.mid(0, parts.size() - 1).join(QString()).trimmed() + '\n' + last.trimmed();
    }
    setText(inOneLine);
}

int HeadingElement::Room() const {
    return mParentPlot->viewport().width() - mMargins.left() - mMargins.right();
}

void HeadingElement::update(UpdatePhase phase) {
    if (phase == upPreparation) {
        setTextFlags(Qt::AlignCenter | Qt::TextWordWrap);
        setText(QFontMetrics(mFont).horizontalAdvance(inOneLine) <= Room() ? inOneLine : broken);
    }
    QCPTextElement::update(phase);
}

QSize HeadingElement::minimumOuterSizeHint() const {
    const QRect box =
        QFontMetrics(mFont).boundingRect(QRect(0, 0, Room(), QWIDGETSIZE_MAX), mTextFlags, mText);
    return {0, box.height() + mMargins.top() + mMargins.bottom()};
}

QSize HeadingElement::maximumOuterSizeHint() const {
    return {QWIDGETSIZE_MAX, minimumOuterSizeHint().height()};
}

double RoomyTicker::getTickStep(const QCPRange& range) {
    if (axis.orientation() == Qt::Vertical)
        return QCPAxisTicker::getTickStep(range);
    constexpr double wholeNumbers = 1000; // from here on; smaller ones have some digits behind the point
    const double largest = std::max(std::abs(range.lower), std::abs(range.upper));
    const QString widest = largest >= wholeNumbers
                               ? QString::number(range.lower < 0 ? -largest : largest, 'f', 0)
                               : QStringLiteral("0.000");
    const double room = 2.0 * QFontMetrics(axis.tickLabelFont()).horizontalAdvance(widest);
    const int laidOut = axis.axisRect()->width();
    const int width = laidOut > 1 ? laidOut : axis.parentPlot()->viewport().width();
    setTickCount(width > room ? std::clamp(static_cast<int>(width / room), fewestTicks, mostTicks)
                              : fewestTicks);
    return QCPAxisTicker::getTickStep(range);
}

QVector<double> DecadeTicker::createTickVector(double tickStep, const QCPRange& range) {
    const double decades = range.lower > 0 ? std::log10(range.upper / range.lower) : 0;
    few = decades > fewerDecades && decades < fewDecades;
    if (!few)
        return QCPAxisTickerLog::createTickVector(tickStep, range);
    QVector<double> ticks;
    // One tick beyond each end, as the axis wants for its sub-ticks.
    for (double power = std::pow(10, std::floor(std::log10(range.lower))); power <= range.upper * 10;
         power *= 10)
        for (const double digit : {1, 2, 5})
            ticks << digit * power;
    return ticks;
}

// Between 1, 2 and 5 the whole digits would need steps of their own.
int DecadeTicker::getSubTickCount(double tickStep) {
    return few ? 0 : QCPAxisTickerLog::getSubTickCount(tickStep);
}

} // namespace orva
