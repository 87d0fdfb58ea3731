// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <optional>

#include "database/table_layout.h"
#include "database/value_checks.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

constexpr float missing = 1e-6F; // values up to here count as not given
constexpr double normalPressure = 101.325;
constexpr float rangeMargin = 5;       // K
constexpr double comparedPressure = 1; // kPa; below, relative deviations of correlations mean little
constexpr int comparedPoints = 24;
constexpr double criticalMargin = 3; // K

struct PressureTable {
    std::string_view file, name;
    int equation;
    std::int16_t Tlo, Thi;
};

// The four stored equations with the limits of this substance.
std::vector<PressureTable> PressureTables(const SubstanceData& s) {
    return {{"wagner.tsv", "Wagner equation", vpWagner, s.wagner.Tlo, s.wagner.Thi},
            {"frost_kalkwarf.tsv", "Frost/Kalkwarf equation", vpFrostKalkwarf, s.frostKalkwarf.Tlo,
             s.frostKalkwarf.Thi},
            {"antoine_low.tsv", "Antoine equation", vpAntoineLow, s.antoineLow.Tlo, s.antoineLow.Thi},
            {"antoine_high.tsv", "Antoine equation", vpAntoineHigh, s.antoineHigh.Tlo, s.antoineHigh.Thi}};
}

std::vector<PressureTable> StoredTables(const CheckSubject& subject) {
    std::vector<PressureTable> tables = PressureTables(subject.Data());
    std::erase_if(tables, [&](const PressureTable& table) { return !subject.Has(table.file); });
    return tables;
}

std::string Kelvins(double T) {
    return FixedText(T, 1) + " K";
}

} // namespace

Deviations CheckPressureAtTb(CheckSubject& subject) {
    Deviations found;
    const float Tb = subject.Value("Tb");
    if (Tb < missing)
        return found;
    for (const PressureTable& table : StoredTables(subject)) {
        if (Tb < static_cast<float>(table.Tlo) - rangeMargin
            || Tb > static_cast<float>(table.Thi) + rangeMargin)
            continue;
        const VapourPressureResult p = VapourPressure(subject.Data(), Tb, table.equation);
        const std::string at = " at Tb = " + NumberText(Tb) + " K";
        if (p.failed)
            found.push_back(
                {table.file, Deviation::hopeless, std::string(table.name) + " has no value" + at});
        else
            found.push_back({table.file, Percent(p.value, normalPressure),
                             std::string(table.name) + " gives " + FixedText(p.value, 3) + " kPa" + at
                                 + ", not 101.325 kPa"});
    }
    return found;
}

// Carried on from below, as a straight line of ln p over 1/T: a Wagner equation has no value at its own
// reference temperature.
Deviations CheckPressureAtTc(CheckSubject& subject) {
    Deviations found;
    const SubstanceData& data = subject.Data();
    for (const PressureTable& table : StoredTables(subject)) {
        if (table.Thi < data.Tc - criticalMargin)
            continue;
        const double T1 = 0.99 * data.Tc, T2 = 0.995 * data.Tc;
        const VapourPressureResult p1 = VapourPressure(data, T1, table.equation);
        const VapourPressureResult p2 = VapourPressure(data, T2, table.equation);
        if (p1.failed || p2.failed) {
            found.push_back(
                {table.file, Deviation::hopeless, std::string(table.name) + " has no value just below Tc"});
            continue;
        }
        const double slope = (std::log(p2.value) - std::log(p1.value)) / (1 / T2 - 1 / T1);
        const double p = p2.value * std::exp(slope * (1 / data.Tc - 1 / T2));
        found.push_back({table.file, Percent(p, data.pc),
                         std::string(table.name) + " leads to " + FixedText(p, 0) + " kPa at Tc, not "
                             + FixedText(data.pc, 0) + " kPa"});
    }
    return found;
}

Deviations CheckPressureAtTtrip(CheckSubject& subject) {
    const float T = subject.Value("Ttrip"), expected = subject.Value("ptrip");
    if (T < missing || expected < missing)
        return {};
    std::optional<PressureTable> lowest;
    for (const PressureTable& table : StoredTables(subject)) {
        if (static_cast<float>(table.Tlo) <= T + 1 && static_cast<float>(table.Thi) >= T
            && (!lowest || table.Tlo < lowest->Tlo))
            lowest = table;
    }
    if (!lowest)
        return {};
    const VapourPressureResult p = VapourPressure(subject.Data(), T, lowest->equation);
    if (p.failed)
        return {{lowest->file, Deviation::hopeless, std::string(lowest->name) + " has no value at Ttrip"}};
    return {{constantsFile, Percent(p.value, expected),
             "ptrip = " + NumberText(expected) + " kPa, where " + std::string(lowest->file) + " gives "
                 + NumberText(static_cast<float>(p.value)) + " kPa, which is not equal"}};
}

Deviations CheckPressureRises(CheckSubject& subject) {
    Deviations found;
    const SubstanceData& data = subject.Data();
    for (const PressureTable& table : StoredTables(subject)) {
        double last = 0;
        double fall = 0;
        for (int T = table.Tlo; T <= table.Thi && T < 0.999 * data.Tc; ++T) {
            const VapourPressureResult p = VapourPressure(data, T, table.equation);
            if (p.failed)
                continue; // below 1e-35 kPa
            fall = std::max(fall, last > 0 ? -Percent(p.value, last) : 0);
            last = p.value;
        }
        found.push_back({table.file, fall, std::string(table.name) + " falls with T, which is not allowed"});
    }
    return found;
}

Deviations CompareEquations(CheckSubject& subject, int first, int second) {
    const SubstanceData& data = subject.Data();
    const std::vector<PressureTable> tables = PressureTables(data);
    const auto table = [&](int equation) {
        return *std::find_if(tables.begin(), tables.end(),
                             [&](const PressureTable& t) { return t.equation == equation; });
    };
    const PressureTable a = table(first), b = table(second);
    if (!subject.Has(a.file) || !subject.Has(b.file))
        return {};
    const double low = std::max(a.Tlo, b.Tlo),
                 high = std::min<double>({1.0 * a.Thi, 1.0 * b.Thi, 0.999 * data.Tc});
    std::optional<Deviation> worst;
    for (int i = 0; i <= comparedPoints && low < high; ++i) {
        const double T = low + (high - low) * i / comparedPoints;
        const VapourPressureResult pa = VapourPressure(data, T, a.equation);
        const VapourPressureResult pb = VapourPressure(data, T, b.equation);
        if (pa.failed || pb.failed) {
            const PressureTable& blamed = pa.failed ? a : b;
            return {{blamed.file, Deviation::hopeless,
                     std::string(blamed.name) + " has no value at " + Kelvins(T)}};
        }
        if (std::max(pa.value, pb.value) < comparedPressure)
            continue;
        const double value = Percent(pb.value, pa.value);
        if (!worst || std::abs(value) > std::abs(worst->value))
            worst = {b.file, value,
                     std::string(b.name) + " gives " + FixedText(pb.value, 3) + " kPa at " + Kelvins(T) + ", "
                         + std::string(a.file) + " " + FixedText(pa.value, 3) + " kPa, which is not equal"};
    }
    return worst ? Deviations{*worst} : Deviations{};
}

// The equation that holds 0.7 Tc, Wagner first.
Deviations CheckAcentricFactor(CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    const double T = 0.7 * data.Tc;
    const float omega = subject.Value("omega");
    if (omega == 0)
        return {};
    for (const PressureTable& table : StoredTables(subject)) {
        if (T < table.Tlo || T > table.Thi)
            continue;
        const VapourPressureResult p = VapourPressure(data, T, table.equation);
        if (p.failed)
            continue;
        const double found = -std::log10(p.value / data.pc) - 1;
        return {{constantsFile, found - omega,
                 std::string(table.file) + " leads to omega = " + FixedText(found, 4) + ", not "
                     + NumberText(omega)}};
    }
    return {};
}

} // namespace orva
