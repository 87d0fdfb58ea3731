// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace orva {

// Data of one pure substance, as they come from a database record.
//
// Units: T in K, p in kPa, rho in kg/m^3, v in m^3/kmol, energies in kJ/kmol, heat capacities and entropies
// in kJ/(kmol K). Coefficients are single precision because the file holds singles. Temperature limits are
// whole kelvins; a block with Tlo = 0 is absent. A value below 1e-6 counts as not given; a true zero is
// stored as 1E-37. The form of each equation stands with the function that evaluates it (room thermo).

// Antoine: lg p = A - B / (C + T - 273.15).
struct AntoineBlock {
    float A = 0, B = 0, C = 0;
    std::int16_t Tlo = 0, Thi = 0;
};

// August: ln p = A + B / T, from Tb, Tc and pc.
struct AugustBlock {
    float A = 0, B = 0;
};

// Extended Frost/Kalkwarf; c1 to c9 are its A, B, C, D, E, F, G, H, I.
struct FrostKalkwarfBlock {
    float c1 = 0, c2 = 0, c3 = 0, c4 = 0, c5 = 0, c6 = 0, c7 = 0, c8 = 0, c9 = 0;
    std::int16_t Tlo = 0, Thi = 0;
    float cExtra = 0;
};

// Wagner; w1 to w10 are its a, b, c, d, e, f, g, h, Tref, pref.
struct WagnerBlock {
    float w1 = 0, w2 = 0, w3 = 0, w4 = 0, w5 = 0, w6 = 0, w7 = 0, w8 = 0, w9 = 0, w10 = 0;
    std::int16_t Tlo = 0, Thi = 0;
    float wExtra = 0;
};

struct LiquidDensityBlock {
    float r1 = 0, r2 = 0, r3 = 0, r4 = 0, r5 = 0, r6 = 0, r7 = 0;
    float Tcr = 0; // reference temperature of the last term, K
    std::int16_t Tlo = 0, Thi = 0;
};

struct SolidDensityBlock {
    float s1 = 0, s2 = 0, s3 = 0, s4 = 0;
    std::int16_t Tlo = 0, Thi = 0;
};

struct VaporisationBlock {
    float A = 0, B = 0, C = 0, D = 0, E = 0, F = 0;
    float Tcr = 0;
    std::int16_t Tlo = 0, Thi = 0;
};

struct HeatCapacityPolynomial {
    float C0 = 0, C1 = 0, C2 = 0, C3 = 0, C4 = 0;
    std::int16_t Tlo = 0, Thi = 0;
};

struct SinhCoshHeatCapacity {
    float q0 = 0, q1 = 0, q2 = 0, q3 = 0, q4 = 0;
    std::int16_t Tlo = 0, Thi = 0;
};

struct SubstanceData {
    std::string name;           // in the current language, without the synonyms behind ";"
    std::string formula;        // fixed 12 characters, blank-padded
    std::string formulaCompact; // without any blank
    std::string cas;            // fixed 12 characters: the key of project and batch files
    float molarMass = 0;        // kg/kmol, rounded to 4 decimals
    float Tb = 0;               // normal boiling temperature
    float Ttrip = 0, ptrip = 0;
    float extra1 = 0, extra2 = 0; // carried along, never used
    float hFormation = 0;         // ideal gas, 298.15 K
    float gFormation = 0;
    float sFormation = 0;    // (hFormation - gFormation) / 298.15
    float sConventional = 0; // conventional molar entropy
    float gFormationAlt = 0; // carried along
    double Tc = 0, pc = 0;   // rounded to 4 decimals
    double rhoc = 0;
    double vcDatabase = 0; // molarMass / rhoc, 0 without rhoc
    double omega = 0;      // 0 means unknown

    AntoineBlock antoineLow;
    AugustBlock august; // computed on loading
    AntoineBlock antoineHigh;
    FrostKalkwarfBlock frostKalkwarf;
    WagnerBlock wagner;
    FrostKalkwarfBlock kfw; // correlated through the van der Waals constants
    FrostKalkwarfBlock kfr; // correlated through the Redlich/Kwong constants
    AntoineBlock thompson;  // correlated after Thompson
    LiquidDensityBlock rhoLiquid;
    float rhoLb = 0; // density of the liquid at Tb
    SolidDensityBlock rhoSolid;
    VaporisationBlock hVapFunction;
    float hVapRef = 0, TVapRef = 0; // reference point of the Watson correlation
    HeatCapacityPolynomial cpPolynomial;
    SinhCoshHeatCapacity cpSinhCosh;
    HeatCapacityPolynomial cpLiquid, cpSolid;
    bool cpPolynomialValid = false, cpSinhCoshValid = false, cpLiquidValid = false, cpSolidValid = false;
};

} // namespace orva
