// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/phase_volumes.h"

// States of every row of the equation of state, and differences of p(T, v) to hold its derivatives against.
namespace orva::caloric {

// n-butane with heat capacities: polynomial and sinh/cosh form after Perry's Chemical Engineers' Handbook
// (2008) and Poling, Prausnitz, O'Connell (2001), rounded.
inline SubstanceData Butane() {
    SubstanceData s = fluids::NButane();
    s.cpPolynomial = {46.12F, 0.04603F, 6.6999e-4F, -8.789e-7F, 3.437e-10F, 200, 1000};
    s.cpSinhCosh = {71.34F, 243.0F, 1630.0F, 150.33F, 730.42F, 200, 1500};
    s.hFormation = -125790;
    s.gFormation = -16700;
    s.sConventional = 309.91F;
    s.cpPolynomialValid = s.cpSinhCoshValid = true;
    return s;
}

inline SubstanceModel ModelOf(int eos, const SubstanceData& substance = Butane()) {
    SubstanceModel model = fluids::ModelOf(substance, eos, vpWagner);
    if (eos == eosVoHalme1 || eos == eosVoHalme2)
        fluids::SetVoHalme(model, eos == eosVoHalme2 ? 0.05 : 0);
    if (eos == virialByHand) {
        model.eos.b0 = 0.15; // B/m^3/kmol = b0 - b1/T^b2
        model.eos.nB = 2.3e4;
        model.eos.nF = 1.8;
    }
    model.selection.cpModel = 2;
    return model;
}

// p(T, v) with the parameters brought to T first.
inline double PressureAt(SubstanceModel& model, double T, double v) {
    SetEosCoefficients(model, T);
    return EosPressure(model, T, v).p;
}

// v on the isobar p near `v`, by Newton's method on p(T, v).
inline double VolumeAt(SubstanceModel& model, double T, double p, double v) {
    for (int i = 0; i < 60; ++i) {
        const double h = 1e-6 * v;
        const double slope = (PressureAt(model, T, v + h) - PressureAt(model, T, v - h)) / (2 * h);
        const double dv = -(PressureAt(model, T, v) - p) / slope;
        v += dv;
        if (std::abs(dv) < 1e-15 * v)
            break;
    }
    return v;
}

inline double CentralSlope(const std::function<double(double)>& f, double x, double h) {
    return (8 * (f(x + h) - f(x - h)) - (f(x + 2 * h) - f(x - 2 * h))) / (12 * h);
}

inline double CentralCurvature(const std::function<double(double)>& f, double x, double h) {
    return (16 * (f(x + h) + f(x - h)) - (f(x + 2 * h) + f(x - 2 * h)) - 30 * f(x)) / (12 * h * h);
}

struct State {
    int eos;
    double T, v;
};

// Vapour, dense fluid and liquid volumes below and above T(cr) for the cubic rows, gas for the virial rows;
// states of a stretched liquid have no fugacity and are left out.
inline std::vector<State> States() {
    std::vector<State> states;
    const auto add = [&states](int eos, double T, double v) {
        SubstanceModel model = ModelOf(eos);
        if (PressureAt(model, T, v) > 0)
            states.push_back({eos, T, v});
    };
    for (const int eos : {2, 3, 4, 5, 6, 7, 8})
        for (const double Tr : {0.7, 0.95, 1.05, 2.2})
            for (const double v : {0.13, 0.6, 4.0, 60.0})
                add(eos, Tr * 425.125, v);
    for (const int eos : {0, 10, 11, 12, 13, 14, 15, 16})
        for (const double Tr : {0.8, 1.3})
            for (const double v : {5.0, 60.0})
                add(eos, Tr * 425.125, v);
    return states;
}

inline std::string Name(const State& s) {
    return "row " + std::to_string(s.eos) + " T " + std::to_string(s.T) + " v " + std::to_string(s.v);
}

} // namespace orva::caloric
