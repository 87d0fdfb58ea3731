// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/curve_points.h"

#include <algorithm>

namespace orva {

namespace {

// A stable sort gives what exchanging neighbours gives, without its quadratic time.
void SortBy(int n, std::vector<CurvePoint>& elements, float CurvePoint::*key) {
    const auto last = std::clamp<std::ptrdiff_t>(n, 0, static_cast<std::ptrdiff_t>(elements.size()) - 1);
    std::stable_sort(elements.begin() + 1, elements.begin() + 1 + last,
                     [key](const CurvePoint& a, const CurvePoint& b) { return a.*key < b.*key; });
}

} // namespace

void SortCurveByX(int n, CurvePoints& curve) {
    SortBy(n, curve.elements, &CurvePoint::x);
}

void SortCurveByY(int n, CurvePoints& curve) {
    SortBy(n, curve.elements, &CurvePoint::y);
}

} // namespace orva
