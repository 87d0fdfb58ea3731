// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_extended.h"

#include "calc/input_checks.h"
#include "calc/report_blocks.h"
#include "text/columns.h"
#include "thermo/residual_functions.h"
#include "thermo/spinodal.h"

namespace orva {

namespace {

constexpr std::string_view scientific = " 0.0000E+00;-0.0000E+00";
constexpr std::string_view mechanical = "0.0000E+00";
constexpr int liquid = 0;
constexpr int vapour = 1;

// The tables of one phase, in the order of their printed rows; rows that do not exist stay 0.
struct PhaseTables {
    std::array<double, 7> first{};         // 1 to 6
    std::array<double, 6> second{};        // 1, 4, 5
    std::array<double, 10> coefficients{}; // 0 to 9
    std::array<double, 3> mechanics{};     // alpha, chi, beta
};

using BothPhases = std::array<PhaseTables, 2>;

bool Evaluate(PointRun& run, const PhaseVolumes& phases, int phase, PhaseTables& tables) {
    const double v = phase == liquid ? phases.vL : phases.vV;
    const ResidualState state = ResidualFunctions(run.context.model, run.T, run.p, v);
    if (state.failed)
        return false;
    const ThermalDerivatives& d = state.thermal;
    tables.first = {0, d.dpdv, d.dpdT, d.dvdp, d.dvdT, d.dTdv, d.dTdp};
    tables.second = {0, d.d2pdv2, 0, 0, d.d2vdT2, d.d2Tdv2};
    for (int k = 0; k < static_cast<int>(tables.coefficients.size()); ++k)
        tables.coefficients[static_cast<std::size_t>(k)] = state.table.Row(k);
    const MechanicalCoefficientValues m = MechanicalCoefficients(run.p, v, d);
    tables.mechanics = {m.alpha, m.chi, m.beta};
    return true;
}

template<std::size_t n, std::size_t m>
void CopySingles(const std::array<double, n>& from, std::size_t first, std::array<float, m>& to) {
    for (std::size_t i = 0; i < m; ++i)
        to[i] = static_cast<float>(from[first + i]);
}

void Keep(PointRun& run, const BothPhases& tables) {
    ResultRecord& record = run.result.record;
    auto& results = run.result.results;
    for (const int phase : {liquid, vapour}) {
        const PhaseTables& t = tables[static_cast<std::size_t>(phase)];
        const auto at = static_cast<std::size_t>(phase);
        CopySingles(t.first, 1, record.deriv[at]);
        CopySingles(t.second, 1, record.resid[at]);
        CopySingles(t.coefficients, 0, record.coeff[at]);
        CopySingles(t.mechanics, 0, record.mech[at]);
        const std::size_t mechanics = phase == liquid ? slotAlphaL : slotAlphaV;
        for (std::size_t i = 0; i < t.mechanics.size(); ++i)
            results[mechanics + i] = t.mechanics[i];
        results[phase == liquid ? slotDeltaL : slotDeltaV] = t.coefficients[7];
    }
}

// The printed pair of values behind a label.
class BlockWriter {
public:
    BlockWriter(PointRun& owner, const PhaseVolumes& existing) : run(owner), phases(existing) {}

    std::string Columns(double a, double b, std::string_view mask) const {
        const NumberStyle style = run.context.style;
        std::string text = phases.hasL ? Spaces(2) + Format(a, mask, style) : Spaces(13);
        if (phases.hasV)
            text += Spaces(18) + Format(b, mask, style);
        return text;
    }
    void Row(int label, double a, double b, std::string_view mask = scientific) const {
        AppendLine(run, Label(label) + " : " + Columns(a, b, mask));
    }
    const std::string& Label(int label) const {
        return run.context.names.DerivativeLabels.at(static_cast<std::size_t>(label));
    }
    void Heading(std::string_view title, std::size_t width) const {
        AppendLine(run, Line("*", width));
        AppendLine(run, title);
        AppendLine(run, Line("*", width));
    }

private:
    PointRun& run;
    const PhaseVolumes& phases;
};

void AppendCoefficients(PointRun& run, const PhaseVolumes& phases, const BothPhases& tables) {
    const BlockWriter block(run, phases);
    const auto& L = tables[liquid].coefficients;
    const auto& V = tables[vapour].coefficients;
    AppendLine(run, "");
    block.Heading("diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.", 74);
    AppendLine(run, block.Label(21) + " (Joule-Thomson-Koeff. [K/kPa]):");
    AppendLine(run, Spaces(17) + block.Columns(L[7], V[7], scientific));
    for (std::size_t i = 0; i <= 6; ++i) {
        if (i == 3)
            AppendLine(run, "Residualfunktionen:");
        block.Row(static_cast<int>(i) + 14, L[i], V[i]);
    }
    AppendLine(run, "");
    block.Heading("                     mechanische Koeffizienten", 68);
    for (std::size_t i = 1; i <= 3; ++i)
        block.Row(static_cast<int>(i) + 5, tables[liquid].mechanics[i - 1], tables[vapour].mechanics[i - 1],
                  mechanical);
}

// From molar to specific volumes, for the printed values only.
void ScaleToMass(PhaseTables& tables, double M) {
    tables.first[1] *= M;
    tables.first[5] *= M;
    tables.first[3] /= M;
    tables.first[4] /= M;
    tables.second[1] *= M * M;
    tables.second[5] *= M * M;
    tables.second[4] /= M;
}

void AppendInflectionPoint(PointRun& run, std::string_view number, const InflectionPoint& point) {
    const NumberStyle style = run.context.style;
    const bool specific = run.context.options.volumeBasis == 1;
    const double M = run.context.model.substance.molarMass;
    const std::string volume = specific ? Format(point.v / M, "#0.0000# m^3/kg", style)
                                        : Format(point.v, "#0.0000# m^3/kmol", style);
    AppendLine(run, std::string(number) + "Wendepunkt p-v-Isoth.: v = " + volume
                        + ", p = " + Format(point.p, "#####0 kPa", style)
                        + " (vgl. 2.Abl.=" + Format(point.slope, "0.0E+00", style) + ")");
}

void AppendInflections(PointRun& run) {
    const SpinodalSearch search = FindSpinodal(run.context.model, run.T);
    if (search.failed) {
        AppendLine(run, "Wendepunkt p-v-Isoth.: keine Lösung gefunden");
        return;
    }
    AppendInflectionPoint(run, "1.", search.points[0]);
    if (search.points[1].v > 0)
        AppendInflectionPoint(run, "2.", search.points[1]);
}

void AppendDerivatives(PointRun& run, const PhaseVolumes& phases, BothPhases tables) {
    const BlockWriter block(run, phases);
    const bool specific = run.context.options.volumeBasis == 1;
    if (specific)
        for (PhaseTables& phase : tables)
            ScaleToMass(phase, run.context.model.substance.molarMass);
    AppendLine(run, "");
    AppendLine(run, Line("*", 68));
    AppendLine(run, std::string("                    Ableitungen nach T, p, V")
                        + (specific ? "(spezif.)" : "(molar)"));
    AppendLine(run, "");
    AppendLine(run, Line("*", 68));
    for (std::size_t i = 1; i <= 6; ++i)
        block.Row(static_cast<int>(i) - 1, tables[liquid].first[i], tables[vapour].first[i]);
    for (const std::size_t i : {1, 4, 5})
        block.Row(static_cast<int>(i) + 8, tables[liquid].second[i], tables[vapour].second[i]);
    if (!run.context.model.selection.nonCubic)
        AppendInflections(run);
}

bool Extends(const PointRun& run) {
    const int kind = run.result.kind;
    return run.context.calculation.ExtendedLevel > 1 && kind != kindVaporisationAtT
           && kind != kindVaporisationAtP && run.T > 0 && run.p > 0;
}

} // namespace

void AppendExtendedBlocks(PointRun& run) {
    if (!Extends(run))
        return;
    const PhaseVolumes phases = SolvedPhases(run);
    BothPhases tables;
    bool good = !phases.failed;
    if (good && phases.hasL)
        good = Evaluate(run, phases, liquid, tables[liquid]);
    if (good && phases.hasV)
        good = Evaluate(run, phases, vapour, tables[vapour]);
    if (!good) {
        ReportFailure(run, FailureNumber());
        return;
    }
    Keep(run, tables);
    if (ShowsTexts(run)) {
        const int level = run.context.calculation.ExtendedLevel;
        if (level == 2 || level == 4)
            AppendCoefficients(run, phases, tables);
        if (level > 2)
            AppendDerivatives(run, phases, tables);
    }
    ResultRecord& record = run.result.record;
    record.T = static_cast<float>(run.T);
    record.p = static_cast<float>(run.p);
    record.v = static_cast<float>(phases.hasV ? phases.vV : phases.vL);
}

} // namespace orva
