// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace orva {

// What the z of the points of a curve holds; the code stands in the header.
enum ZKindNumber { zTemperature = -1, zPressure = -2, zVolume = -3, zVapourFraction = -4, zNothing = 0 };

// x and y are in display units, z in K, kPa or m^3/kmol.
struct CurvePoint {
    float x = 0, y = 0, z = 0;

    bool operator==(const CurvePoint&) const = default;
};

// A list of points behind a header: element 0 holds the number of points in x and the zKind code in z.
class CurvePoints {
public:
    int Count() const { return static_cast<int>(elements.size()) - 1; }
    int ZKind() const { return static_cast<int>(elements[0].z); }
    const CurvePoint& Header() const { return elements[0]; }
    // Points are numbered from 1.
    const CurvePoint& operator[](int i) const { return elements[static_cast<std::size_t>(i)]; }

    void Clear() { elements.assign(1, {}); }
    void Reserve(int count) { elements.reserve(static_cast<std::size_t>(count) + 1); }
    void SetZKind(int zKind) { elements[0].z = static_cast<float>(zKind); }
    void Add(const CurvePoint& point) {
        elements.push_back(point);
        elements[0].x = static_cast<float>(Count());
    }

    // Ascending sort of the first n points by x or by y. Whole points move; equal values keep their order.
    friend void SortCurveByX(int n, CurvePoints& curve);
    friend void SortCurveByY(int n, CurvePoints& curve);

    bool operator==(const CurvePoints&) const = default;

private:
    std::vector<CurvePoint> elements{1};
};

void SortCurveByX(int n, CurvePoints& curve);
void SortCurveByY(int n, CurvePoints& curve);

} // namespace orva
