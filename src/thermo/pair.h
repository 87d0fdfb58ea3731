// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orva {

// Two numbers that go through the same operations at once: the two poles of the cubic, the two lobes of an
// isotherm, two derivatives over the same denominator. Divisions are most of the time of a caloric state, and
// a pair passes the divider as quickly as one number. Each half is rounded as if it stood alone.
#if defined(__GNUC__)

using Pair = double __attribute__((vector_size(16)));

#else

struct Pair {
    double first, second;
    double operator[](int i) const { return i == 0 ? first : second; }
};
inline Pair operator+(Pair a, Pair b) {
    return {a.first + b.first, a.second + b.second};
}
inline Pair operator-(Pair a, Pair b) {
    return {a.first - b.first, a.second - b.second};
}
inline Pair operator*(Pair a, Pair b) {
    return {a.first * b.first, a.second * b.second};
}
inline Pair operator/(Pair a, Pair b) {
    return {a.first / b.first, a.second / b.second};
}
inline Pair operator+(double a, Pair b) {
    return Pair{a, a} + b;
}
inline Pair operator+(Pair a, double b) {
    return a + Pair{b, b};
}
inline Pair operator-(Pair a, double b) {
    return a - Pair{b, b};
}
inline Pair operator*(double a, Pair b) {
    return Pair{a, a} * b;
}
inline Pair operator*(Pair a, double b) {
    return a * Pair{b, b};
}
inline Pair operator/(Pair a, double b) {
    return a / Pair{b, b};
}

#endif

} // namespace orva
