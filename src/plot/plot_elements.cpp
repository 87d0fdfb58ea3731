// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/plot_elements.h"

#include <cmath>

namespace orva {

namespace {

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
