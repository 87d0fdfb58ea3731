// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/chart_document.h"

#include <algorithm>
#include <cmath>

namespace orva {

namespace {

// Okabe and Ito, Color Universal Design (2008), with the light tones darkened and the yellow replaced for
// white paper.
constexpr ChartColour palette[] = {
    {0x00, 0x72, 0xB2}, {0xD5, 0x5E, 0x00}, {0x00, 0x8F, 0x68}, {0xAA, 0x44, 0x99},
    {0xC7, 0x7F, 0x00}, {0x2E, 0x9B, 0xD6}, {0x88, 0x22, 0x55}, {0x33, 0x33, 0x33},
};
constexpr int paletteSize = static_cast<int>(std::size(palette));
constexpr LineStyle slotStyles[] = {LineStyle::Solid, LineStyle::Dashed, LineStyle::DashDotted};

} // namespace

std::optional<float> ChartSeries::Z(int i) const {
    if (i < 1 || i >= static_cast<int>(z.size()) || ZKind() == zNothing)
        return std::nullopt;
    return z[static_cast<std::size_t>(i)];
}

bool ChartDocument::IsTaken(int slot) const {
    return slot >= 1 && slot <= largestCurveCount && !slotFree[static_cast<std::size_t>(slot) - 1];
}

int ChartDocument::TakeSlot() {
    const auto free = std::find(slotFree.begin(), slotFree.end(), true);
    if (free == slotFree.end())
        return 0;
    *free = false;
    currentSlot = static_cast<int>(free - slotFree.begin()) + 1;
    ++curveCount;
    ChartSeries& taken = Series(currentSlot);
    taken = {};
    taken.colour = curveColour.value_or(SlotColour(currentSlot));
    taken.style = SlotLineStyle(currentSlot);
    return currentSlot;
}

void ChartDocument::FreeSlot(int slot) {
    if (!IsTaken(slot))
        return;
    Series(slot) = {};
    slotFree[static_cast<std::size_t>(slot) - 1] = true;
    --curveCount;
}

void ChartDocument::FreeAllSlots() {
    for (int slot = 1; slot <= largestCurveCount; ++slot)
        FreeSlot(slot);
    currentSlot = 0;
}

void StorePoints(const CurvePoints& curve, ChartSeries& series) {
    const auto count = static_cast<std::size_t>(curve.Count());
    series.x.resize(count);
    series.y.resize(count);
    series.z.assign(std::min<std::size_t>(count, keptZValues) + 1, static_cast<float>(curve.ZKind()));
    for (std::size_t i = 0; i < count; ++i) {
        const CurvePoint& point = curve[static_cast<int>(i) + 1];
        series.x[i] = point.x;
        series.y[i] = point.y;
        if (i < keptZValues)
            series.z[i + 1] = point.z;
    }
}

void InterruptAtJumps(ChartSeries& series) {
    constexpr double jump = 1.5; // from a point to the next, as the ratio of both temperatures
    if (series.ZKind() != zTemperature)
        return;
    for (int i = 2; i <= series.Count(); ++i) {
        const std::optional<float> before = series.Z(i - 1);
        const std::optional<float> here = series.Z(i);
        if (before && here && (*here > jump * *before || *before > jump * *here))
            series.gaps.push_back(i);
    }
}

ChartColour SlotColour(int slot) {
    return palette[(std::max(slot, 1) - 1) % paletteSize];
}

LineStyle SlotLineStyle(int slot) {
    return slotStyles[((std::max(slot, 1) - 1) / paletteSize) % static_cast<int>(std::size(slotStyles))];
}

int LabelPoint(const CurvePoints& curve, float xMax, int slot) {
    int i = curve.Count();
    while (i > 1 && !(curve[i].x < xMax))
        --i;
    if (i == 0)
        return 0;
    const int point = static_cast<int>(std::lrint(i / 1.2 - 0.03 * i * slot));
    return std::clamp(point, 1, curve.Count());
}

} // namespace orva
