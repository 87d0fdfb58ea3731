// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/record_checks.h"

#include <cmath>
#include <string_view>

#include "database/table_layout.h"
#include "substance/record_fields.h"
#include "substance/substance_loading.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

constexpr float missing = 1e-6F; // values up to here count as not given
constexpr double normalPressure = 101.325;
constexpr double pressureTolerance = 0.02;
constexpr float rangeMargin = 5; // K

struct VapourPressureTable {
    std::string_view file, block, name;
    int equation;
};

constexpr VapourPressureTable vapourPressureTables[] = {
    {"wagner.tsv", "wagner", "Wagner", vpWagner},
    {"frost_kalkwarf.tsv", "frostKalkwarf", "Frost/Kalkwarf", vpFrostKalkwarf},
    {"antoine_low.tsv", "antoineLow", "Antoine", vpAntoineLow},
    {"antoine_high.tsv", "antoineHigh", "Antoine", vpAntoineHigh},
};

float Value(const CompiledSubstance& substance, std::string_view field) {
    return substance.record.values[static_cast<std::size_t>(RecordPosition(field))];
}

float Limit(const CompiledSubstance& substance, const TableLayout& layout, std::string_view column) {
    for (const ValueColumn& entry : layout.values) {
        if (entry.column == column)
            return substance.record.values[static_cast<std::size_t>(ColumnPosition(entry))];
    }
    return 0;
}

class Checker {
public:
    Checker(CompiledSubstance& checked, Refusals& list) : substance(checked), refusals(list) {}

    void Check() {
        CheckConstants();
        CheckLimits();
        if (substance.refused)
            return;
        SubstanceData data;
        SubstanceLoadResult result;
        if (!FillFromRecord(substance.record, true, data, result)) {
            Refuse(identityFile, "the record cannot be loaded");
            return;
        }
        for (const VapourPressureTable& table : vapourPressureTables)
            CheckVapourPressure(table, data);
        CheckLiquidDensity(data.rhoLiquid);
    }

private:
    void CheckConstants() {
        if (Value(substance, "molarMass") < missing)
            Refuse(identityFile, "molar_mass must be above 0");
        if (!substance.Has(constantsFile)) {
            Refuse(identityFile, "no row in " + std::string(constantsFile));
            return;
        }
        const float Tc = Value(substance, "Tc");
        const float Tb = Value(substance, "Tb");
        if (Tc < missing)
            Refuse(constantsFile, "Tc must be above 0");
        if (Value(substance, "pc") < missing)
            Refuse(constantsFile, "pc must be above 0");
        if (Tc >= missing && Tb >= Tc)
            Refuse(constantsFile, "Tb = " + NumberText(Tb) + " K is not below Tc = " + NumberText(Tc) + " K");
    }

    void CheckLimits() {
        for (const TableLayout& layout : TableLayouts()) {
            if (!layout.isBlock || !substance.Has(layout.file))
                continue;
            const float Tlo = Limit(substance, layout, "Tlo");
            const float Thi = Limit(substance, layout, "Thi");
            if (Tlo <= 0)
                Refuse(layout.file, "Tlo must be above 0");
            else if (Tlo >= Thi)
                Refuse(layout.file,
                       "Tlo = " + NumberText(Tlo) + " K is not below Thi = " + NumberText(Thi) + " K");
        }
    }

    void CheckVapourPressure(const VapourPressureTable& table, const SubstanceData& data) {
        const float Tb = Value(substance, "Tb");
        if (!substance.Has(table.file) || Tb < missing)
            return;
        const std::string block(table.block);
        if (Tb < Value(substance, block + ".Tlo") - rangeMargin
            || Tb > Value(substance, block + ".Thi") + rangeMargin)
            return;
        const std::string equation = std::string(table.name) + " equation";
        const VapourPressureResult p = VapourPressure(data, Tb, table.equation);
        if (p.failed)
            Refuse(table.file, equation + " has no value at Tb = " + NumberText(Tb) + " K");
        else if (std::abs(p.value / normalPressure - 1) > pressureTolerance)
            Refuse(table.file, equation + " gives " + FixedText(p.value, 3) + " kPa at Tb = " + NumberText(Tb)
                                   + " K, not 101.325 kPa within 2 %");
    }

    void CheckLiquidDensity(const LiquidDensityBlock& block) {
        constexpr std::string_view file = "rho_liquid.tsv";
        if (!substance.Has(file))
            return;
        for (int T = block.Tlo; T <= block.Thi; ++T) {
            if (!(LiquidDensityOf(block, T) > 0)) {
                Refuse(file, "the liquid density is not positive at " + std::to_string(T) + " K");
                return;
            }
        }
    }

    // Polynomial with pole and cube root, or DIPPR equation 105; the first coefficient tells which.
    static double LiquidDensityOf(const LiquidDensityBlock& c, double T) {
        const double tau = 1 - T / c.Tcr;
        if (std::abs(c.r1) < missing)
            return c.r2 / std::pow(static_cast<double>(c.r3), 1 + std::pow(tau, static_cast<double>(c.r4)));
        const double rho = c.r1 + c.r2 * T + c.r3 * T * T + c.r4 * T * T * T + c.r5 / (c.r6 + T);
        return std::abs(c.r7) >= missing && T < c.Tcr ? rho + c.r7 * std::cbrt(tau) : rho;
    }

    void Refuse(std::string_view file, std::string reason) {
        substance.refused = true;
        refusals.push_back({std::string(file), substance.Line(file), substance.cas, std::move(reason)});
    }

    CompiledSubstance& substance;
    Refusals& refusals;
};

} // namespace

void CheckRecords(std::vector<CompiledSubstance>& substances, Refusals& refusals) {
    for (CompiledSubstance& substance : substances) {
        if (!substance.refused)
            Checker(substance, refusals).Check();
    }
}

} // namespace orva
