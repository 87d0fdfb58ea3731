// SPDX-License-Identifier: GPL-3.0-or-later
// Curves of every family against the textbook: residual functions from the Helmholtz energy of the equation,
// equilibria from equal fugacities, the ideal gas by quadrature of its heat capacity. Nothing of it shares
// code with the program.
#include <functional>

#include "curve_checks.h"
#include "thermo/textbook_equations.h"

namespace orva {
namespace {

using namespace test;
using textbook::Real;
constexpr Real R = textbook::R;

struct State {
    Real p, v, h, u, s, g, f, e, eU, cp, cv, jouleThomson;
    Real hRes, sRes, gRes, cpRes;
};

class Textbook {
public:
    explicit Textbook(const SubstanceModel& model) : equation(model), substance(model.substance) {
        const Real T0 = model.reference.T0;
        hStart = -Integral(T0, false);
        sStart = -Integral(T0, true);
        p0 = model.reference.p0;
        Tenv = model.reference.Tenv;
        penv = model.reference.penv;
        ambient = WithoutExergy(Tenv, Stable(Tenv, penv).front());
    }

    State At(Real T, Real v) const {
        State state = WithoutExergy(T, v);
        const Real lost = Tenv * (state.s - ambient.s);
        state.e = state.h - ambient.h - lost;
        state.eU = state.u - ambient.u - lost + penv * (v - ambient.v);
        return state;
    }

    // The stable volume, or both where the fugacities are equal within what the program promises.
    std::vector<Real> Stable(Real T, Real p) const {
        const std::vector<Real> v = equation.Volumes(T, p);
        if (v.size() < 3)
            return {v.at(0)};
        const Real liquid = equation.LnPhi(T, p, v[0]), vapour = equation.LnPhi(T, p, v[2]);
        if (std::abs(liquid - vapour) < 3e-5L)
            return {v[0], v[2]};
        return {liquid < vapour ? v[0] : v[2]};
    }

    std::pair<Real, std::vector<Real>> Saturation(Real T) const {
        const Real p = equation.SaturationPressure(T);
        return {p, equation.Volumes(T, p)};
    }

    textbook::Equation equation;
    Real Tenv = 0;

private:
    // From Poling, Prausnitz, O'Connell (2001), the form of Aly and Lee.
    Real Cp(Real T) const {
        const auto& c = substance.cpSinhCosh;
        const Real u = c.q2 / T, w = c.q4 / T;
        return c.q0 + c.q1 * std::pow(u / std::sinh(u), 2) + c.q3 * std::pow(w / std::cosh(w), 2);
    }
    // Of cp, or of cp / T, from 100 K on.
    Real Integral(Real T, bool overT) const {
        constexpr int steps = 400;
        const Real h = (T - 100) / steps;
        Real sum = 0;
        for (int i = 0; i <= steps; ++i) {
            const Real at = 100 + i * h;
            sum += (i == 0 || i == steps ? 1 : i % 2 == 1 ? 4 : 2) * Cp(at) / (overT ? at : 1);
        }
        return sum * h / 3;
    }
    // Helmholtz energy less that of the ideal gas at T, v.
    Real Helmholtz(Real T, Real v) const {
        const Real U = equation.U(), b = equation.b(), root = std::sqrt(U * U - 4 * equation.W());
        const Real attraction =
            root == 0
                ? -equation.a(T) / v
                : -equation.a(T) / (b * root) * std::log((2 * v + b * (U + root)) / (2 * v + b * (U - root)));
        return -R * T * std::log1p(-b / v) + attraction;
    }
    State WithoutExergy(Real T, Real v) const {
        const Real dT = 1e-3L * T, dv = 1e-4L * (v - equation.b());
        const Real A = Helmholtz(T, v);
        const auto inT = [&](Real t) { return Helmholtz(t, v); };
        const Real slope = Slope(inT, T, dT);
        const Real curvature =
            (16 * (inT(T + dT) + inT(T - dT)) - inT(T + 2 * dT) - inT(T - 2 * dT) - 30 * A) / (12 * dT * dT);
        State s{};
        s.v = v;
        s.p = equation.Pressure(T, v);
        const Real dpdT = Slope([&](Real t) { return equation.Pressure(t, v); }, T, dT);
        const Real dpdv = Slope([&](Real w) { return equation.Pressure(T, w); }, v, dv);
        const Real Z = s.p * v / (R * T);
        s.hRes = A - T * slope + s.p * v - R * T;
        s.sRes = -slope + R * std::log(Z);
        s.gRes = s.hRes - T * s.sRes;
        s.cpRes = -T * curvature - T * dpdT * dpdT / dpdv - R;
        s.h = hStart + Integral(T, false) + s.hRes;
        s.s = sStart + Integral(T, true) - R * std::log(s.p / p0) + s.sRes;
        s.u = s.h - s.p * v;
        s.g = s.h - T * s.s;
        s.f = s.u - T * s.s;
        s.cp = Cp(T) + s.cpRes;
        s.cv = Cp(T) - R - T * curvature;
        s.jouleThomson = -(T * dpdT / dpdv + v) / s.cp;
        return s;
    }
    static Real Slope(const std::function<Real(Real)>& f, Real x, Real h) {
        return (8 * (f(x + h) - f(x - h)) - (f(x + 2 * h) - f(x - 2 * h))) / (12 * h);
    }

    const SubstanceData& substance;
    Real hStart = 0, sStart = 0, p0 = 0, penv = 0;
    State ambient{};
};

struct Function {
    int type;
    Real State::*y;
};

// The nearest of the values of the phases that may stand there.
void ExpectOneOf(float found, const std::vector<State>& states, Real State::*value, const std::string& where,
                 double tolerance) {
    Real nearest = INFINITY;
    for (const State& state : states)
        if (std::abs(state.*value - found) < std::abs(nearest - found))
            nearest = state.*value;
    const bool small = value == &State::s || value == &State::sRes;
    const Real scale = value == &State::jouleThomson ? 1e-3L : small ? 1 : 100;
    EXPECT_NEAR(static_cast<double>(nearest), found,
                tolerance * static_cast<double>(std::abs(nearest) + scale))
        << where;
}

struct TextbookCurves : testing::TestWithParam<int> {
    ButaneDiagram d{GetParam()};
    Textbook book{d.model};

    std::vector<State> StatesAt(double T, double p) const {
        std::vector<State> states;
        for (const Real v : book.Stable(T, p))
            states.push_back(book.At(T, v));
        return states;
    }
    static constexpr double exact = 8e-6;       // of single coordinates
    static constexpr double equilibrium = 1e-4; // of the tolerance of equal areas
};

TEST_P(TextbookCurves, OverTemperature) {
    constexpr double p = 1000;
    for (const auto& [type, y] : {Function{15, &State::h},
                                  {16, &State::s},
                                  {17, &State::g},
                                  {18, &State::e},
                                  {19, &State::cp},
                                  {30, &State::sRes},
                                  {31, &State::hRes},
                                  {32, &State::gRes},
                                  {33, &State::cpRes},
                                  {34, &State::jouleThomson}}) {
        const CurvePoints curve = d.Draw(type, 380, p);
        ASSERT_GT(curve.Count(), 290) << type;
        const double TLV = BoilingPoint(d, p);
        for (int i = 1; i <= curve.Count(); i += 4)
            if (std::abs(curve[i].x - TLV) > 1e-3)
                ExpectOneOf(curve[i].y, StatesAt(curve[i].x, p), y, Place(type, i, curve[i]), exact);
    }
    constexpr double v = 0.5;
    for (const auto& [type, y] : {Function{181, &State::eU},
                                  {182, &State::f},
                                  {183, &State::u},
                                  {184, &State::s},
                                  {185, &State::cv}}) {
        const CurvePoints curve = d.Draw(type, 380, p, v);
        ASSERT_GT(curve.Count(), 80) << type;
        for (int i = 1; i <= curve.Count(); i += 4)
            ExpectOneOf(curve[i].y, {book.At(curve[i].x, v)}, y, Place(type, i, curve[i]), exact);
    }
}

TEST_P(TextbookCurves, OverPressure) {
    for (const double T : {380.0, Tc, 460.0})
        for (const auto& [type, y] : {Function{150, &State::h},
                                      {151, &State::s},
                                      {152, &State::g},
                                      {153, &State::e},
                                      {154, &State::cp},
                                      {155, &State::eU},
                                      {40, &State::sRes},
                                      {41, &State::hRes},
                                      {42, &State::gRes},
                                      {43, &State::cpRes}}) {
            const CurvePoints curve = d.Draw(type, T, 101.325);
            ASSERT_GT(curve.Count(), 290) << type;
            const double pLV = T < Tc ? SaturationAt(d, T).p : pc; // where cp grows beyond all bounds
            for (int i = 1; i <= curve.Count(); i += 4)
                if (std::abs(curve[i].x / pLV - 1) > (T < Tc ? 1e-5 : 0.02))
                    ExpectOneOf(curve[i].y, StatesAt(T, curve[i].x), y, Place(type, i, curve[i]), exact);
        }
}

TEST_P(TextbookCurves, OverVolume) {
    for (const double T : {380.0, 460.0})
        for (const auto& [type, y] : {Function{156, &State::f},
                                      {157, &State::u},
                                      {158, &State::s},
                                      {159, &State::cv},
                                      {160, &State::eU}}) {
            const CurvePoints curve = d.Draw(type, T, 101.325);
            ASSERT_GT(curve.Count(), 200) << type;
            for (int i = T < Tc ? 2 : 1; i <= curve.Count(); i += 9)
                ExpectOneOf(curve[i].y, {book.At(T, curve[i].x)}, y, Place(type, i, curve[i]), exact);
        }
}

TEST_P(TextbookCurves, OneFunctionOverAnother) {
    struct Pair {
        int type;
        Real State::*x, State::*y;
    };
    constexpr double T = 380, p = 1000;
    for (const auto& [type, x, y] : {Pair{21, &State::h, &State::e},
                                     {107, &State::s, &State::h},
                                     {109, &State::s, &State::e},
                                     {22, &State::h, &State::e},
                                     {24, &State::s, &State::h},
                                     {23, &State::s, &State::e}}) {
        const bool overT = type < 100 && type > 21;
        d.mode.limitLow = overT ? 280 : 10;
        d.mode.limitHigh = overT ? 460 : 5000;
        const CurvePoints curve = d.Draw(type, T, p);
        ASSERT_GE(curve.Count(), 300) << type;
        for (int i = 1; i <= curve.Count(); i += 7) {
            const auto states = overT ? StatesAt(curve[i].z, p) : StatesAt(T, curve[i].z);
            if (states.size() > 1)
                continue;
            const double factor = type == 109 || type == 23 ? static_cast<double>(book.Tenv) : 1;
            ExpectOneOf(static_cast<float>(curve[i].x / factor), states, x, Place(type, i, curve[i]), exact);
            ExpectOneOf(curve[i].y, states, y, Place(type, i, curve[i]), exact);
        }
    }
}

TEST_P(TextbookCurves, SectionsOfTheSurface) {
    const double M = d.model.substance.molarMass;
    for (const double T : {380.0, 460.0})
        for (const int type : {2, 26}) {
            const CurvePoints curve = d.Draw(type, T, 101.325);
            ASSERT_GT(curve.Count(), 290);
            for (int i = 1; i <= curve.Count(); i += 5) {
                const auto volumes = book.Stable(T, curve[i].x);
                if (volumes.size() > 1)
                    continue;
                const double v = static_cast<double>(volumes[0]);
                ExpectClose(curve[i].y, type == 2 ? curve[i].x * v : M / v, 3e-6, Place(type, i, curve[i]));
            }
        }
    for (const double p : {1000.0, 6000.0})
        for (const int type : {3, 4}) {
            const CurvePoints curve = d.Draw(type, 300, p);
            ASSERT_GT(curve.Count(), 290);
            for (int i = 1; i <= curve.Count(); i += 5) {
                const auto volumes = book.Stable(curve[i].y, p);
                if (volumes.size() > 1)
                    continue;
                const double v = static_cast<double>(volumes[0]);
                ExpectClose(curve[i].x, type == 3 ? v : M / v, 3e-6, Place(type, i, curve[i]));
            }
        }
    const CurvePoints isochor = d.Draw(5, 300, 101.325, 0.5);
    for (int i = 1; i < isochor.Count(); i += 3)
        ExpectClose(isochor[i].y, static_cast<double>(book.equation.Pressure(isochor[i].x, 0.5L)), 1e-6,
                    Place(5, i, isochor[i]));
}

// Between 0.6 and 0.98 T(cr), where the search by equal areas keeps its tolerance.
TEST_P(TextbookCurves, BothPhasesInEquilibrium) {
    const double M = d.model.substance.molarMass;
    const auto inside = [](double T) { return T > 0.6 * Tc && T < 0.98 * Tc; };
    for (const int phase : {0, 1}) {
        d.mode.vapourFraction = phase;
        for (const int type : {6, 7, 12, 27, 106}) {
            const CurvePoints curve = d.Draw(type, 300, 101.325);
            for (int i = 2; i <= curve.Count(); i += 20) {
                const CurvePoint& c = curve[i];
                const double T = type == 7 || type == 12 ? c.y : c.z;
                if (!inside(T))
                    continue;
                const auto [p, volumes] = book.Saturation(T);
                const double v = static_cast<double>(volumes[phase == 0 ? 0 : 2]);
                ExpectClose(type == 6                   ? c.y
                            : type == 27 || type == 106 ? c.x
                                                        : c.z,
                            static_cast<double>(p), 2e-3, Place(type, i, c));
                const double found = type == 6 || type == 7 ? c.x
                                     : type == 12           ? M / c.x
                                     : type == 27           ? M / c.y
                                                            : c.y / static_cast<double>(c.x);
                ExpectClose(found, v, 2e-3, Place(type, i, c));
            }
        }
        for (const auto& [type, y] : {Function{90, &State::h},
                                      {91, &State::s},
                                      {92, &State::cp},
                                      {93, &State::g},
                                      {94, &State::e},
                                      {95, &State::eU},
                                      {99, &State::u},
                                      {89, &State::cv},
                                      {97, &State::f},
                                      {100, &State::u},
                                      {101, &State::s},
                                      {102, &State::eU}}) {
            const CurvePoints curve = d.Draw(type, 300, 101.325);
            int checked = 0;
            for (int i = 2; i <= curve.Count(); i += 9) {
                const double T = type == 89 || (type >= 97 && type != 99) ? curve[i].z : curve[i].x;
                if (!inside(T))
                    continue;
                ++checked;
                const auto [p, volumes] = book.Saturation(T);
                ExpectOneOf(curve[i].y, {book.At(T, volumes[phase == 0 ? 0 : 2])}, y,
                            Place(type, i, curve[i]), equilibrium);
            }
            EXPECT_GT(checked, 5) << type;
        }
    }
    d.mode.vapourFraction = 0;
    const CurvePoints heat = d.Draw(13, 300, 101.325); // by the equation of state
    for (int i = 1; i <= heat.Count(); i += 20) {
        if (!inside(heat[i].x))
            continue;
        const auto [p, volumes] = book.Saturation(heat[i].x);
        ExpectClose(heat[i].y,
                    static_cast<double>(book.At(heat[i].x, volumes[2]).h - book.At(heat[i].x, volumes[0]).h),
                    equilibrium, Place(13, i, heat[i]));
    }
}

INSTANTIATE_TEST_SUITE_P(Equations, TextbookCurves,
                         testing::Values(eosVanDerWaals, eosSoaveRedlichKwong, eosPengRobinson));

} // namespace
} // namespace orva
