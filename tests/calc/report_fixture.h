// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <regex>

#include "calc_fixture.h"
#include "state/name_tables.h"

namespace orva::test {

// Butane with a block of every kind. The coefficients are round numbers of the right size: a report needs
// blocks, not accuracy.
inline SubstanceData FullButane() {
    SubstanceData s = Butane();
    s.ptrip = 0.00067F;
    s.antoineLow = {5.93F, 935.0F, 238.0F, 201, 292};
    s.antoineHigh = {6.35F, 1175.0F, 271.0F, 273, 425};
    s.frostKalkwarf = {25.8F, -1894.0F, 273.15F, -7.04F, 0, 0, 0, 4e-6F, 2, 135, 425, 0};
    s.wagner = {-7.0F, 1.8F, -2.1F, 2.5F, -5.0F, 6, 3.5F, 7.5F, 425.125F, 3796, 158, 425, 0};
    s.rhoLiquid = {0, 62.5F, 0.2725F, 0.2875F, 0, 0, 0, 425.125F, 135, 424}; // Rackett form
    s.rhoLb = 601.25F;
    s.rhoSolid = {740.0F, -0.5F, 0, 0, 90, 134};
    s.hVapFunction = {36250.0F, 0, 0.8125F, -0.75F, 0.375F, 0, 425.125F, 135, 424};
    s.hVapRef = 22400;
    s.TVapRef = 272.66F;
    s.cpPolynomial = {9.5F, 0.33F, -1.1e-4F, -2.8e-9F, 0, 200, 1500};
    s.cpSinhCosh = {71.34F, 243.0F, 1630.0F, 150.33F, 730.42F, 200, 1500};
    s.cpLiquid = {191.0F, -1.64F, 0.0075F, -1.0e-5F, 1.0e-8F, 135, 390};
    s.cpSolid = {20.0F, 1.5F, -0.006F, 1.0e-5F, 0, 20, 134};
    return s;
}

// A calculation whose report is read: all models chosen.
struct Reported : Calculation {
    explicit Reported(int eos = eosPengRobinson, int vaporPressure = vpWagner,
                      const SubstanceData& substance = FullButane())
        : Calculation(eos, substance) {
        model.selection.vaporPressure = static_cast<std::int16_t>(vaporPressure);
        model.selection.vaporPressureCode = VaporPressureCodeOf(vaporPressure);
        model.selection.vaporization = 7;
        model.selection.cpModel = 1;
        model.selection.watsonExponent = 0.38F;
        state.GlobalMethod = !model.selection.nonCubic;
    }

    // The partial method with its second reference point of the densities.
    void TakePartial(bool benson) {
        state.GlobalMethod = false;
        state.BensonLiquid = benson;
        state.referenceDensity = {272.66F, 101.3F, 601.25F, 2.7F};
        state.ReferenceDensityPointValid = true;
    }

    // Row 0 is the input.
    PointResult Run(int kind, const BatchRow& row, RunOptions run = {}) {
        batch.rows[0] = row;
        state.CalcKind = static_cast<std::int16_t>(kind);
        CalculationContext context = Context();
        return CalcBatch(context, kind, 0, run);
    }
    PointResult Vessel(int kind, float V, float m, float T, RunOptions run = {}) {
        state.vessel = {m, V, T, false};
        state.GlobalMethod = kind == kindVesselGlobal;
        return Run(kind, {}, run);
    }
};

// A report without the numbers behind "2.Abl.=".
inline std::string WithoutSlopes(const std::string& report) {
    return std::regex_replace(report, std::regex("Abl\\.=[^)]*\\)"), "Abl.=)");
}

// The four labels of the result window.
struct Labels {
    std::string par1, par2, co1, co2;
};

inline void ExpectLabels(const PointResult& r, const Labels& labels) {
    EXPECT_EQ(r.par1.text, labels.par1);
    EXPECT_EQ(r.par2.text, labels.par2);
    EXPECT_EQ(r.co1.text, labels.co1);
    EXPECT_EQ(r.co2.text, labels.co2);
}

// A run that gave a result: labels, phase of the record and the whole report.
inline void ExpectGood(const PointResult& r, const Labels& labels, std::string_view phase,
                       const std::string& report) {
    ExpectLabels(r, labels);
    EXPECT_EQ(r.record.phase, phase);
    EXPECT_EQ(r.report, report);
    EXPECT_FALSE(r.failed);
}

// A run that failed, with what it says of it.
inline void ExpectFailed(const PointResult& r, const Labels& labels, const std::string& report = "",
                         std::string_view note = "") {
    ExpectLabels(r, labels);
    EXPECT_EQ(r.record.phase, "   ");
    EXPECT_EQ(r.report, report);
    EXPECT_EQ(r.note, note);
    EXPECT_EQ(r.reportColour == TextColour::Red, report.find("Meldung") != std::string::npos);
    EXPECT_TRUE(r.failed);
}

// The end of every report with the Peng/Robinson equation. B = 0.07779607 R Tc / pc, C and D are (1 -+ sqrt
// 2) B.
inline std::string PengRobinsonTrailer(std::string_view A) {
    return "\r\n"
           "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
           "==============================================================\r\n"
           "  A = "
           + std::string(A)
           + "\r\n"
             "  B = 7.24410574720806E-02\r\n"
             "  C =-3.00060684775846E-02\r\n"
             "  D = 0.174888183421746\r\n";
}

inline BatchRow RowT(double T) {
    BatchRow row;
    row.T = T;
    return row;
}
inline BatchRow RowP(double p) {
    BatchRow row;
    row.p = p;
    return row;
}
inline BatchRow RowTP(double T, double p) {
    BatchRow row = RowT(T);
    row.p = p;
    return row;
}
inline BatchRow RowTRho(double T, float rho) {
    BatchRow row = RowT(T);
    row.rhoV = rho;
    return row;
}
inline BatchRow RowTRhoLiquid(double T, float rho) {
    BatchRow row = RowT(T);
    row.rhoL = rho;
    return row;
}
inline BatchRow RowPRho(double p, float rho) {
    BatchRow row = RowP(p);
    row.rhoV = rho;
    return row;
}

} // namespace orva::test
