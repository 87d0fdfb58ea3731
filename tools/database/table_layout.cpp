// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/table_layout.h"

#include <algorithm>

#include "substance/record_fields.h"

namespace orva {
namespace {

using enum ColumnKind;

constexpr std::string_view identityTexts[] = {"number", "cas", "formula", "name_en", "name_de"};
constexpr std::string_view valueTexts[] = {"cas", "name"};
constexpr std::string_view blockTexts[] = {"cas", "name", "note"};

constexpr ValueColumn identityColumns[] = {{"molar_mass", "molarMass", value, "molar_mass_source"}};

constexpr ValueColumn constantsColumns[] = {
    {"Tc", "Tc", value, "Tc_source"},
    {"pc", "pc", value, "pc_source"},
    {"rhoc", "rhoc", value, "rhoc_source"},
    {"omega", "omega", value, "omega_source"},
    {"Tb", "Tb", value, "Tb_source"},
    {"Ttrip", "Ttrip", value, "Ttrip_source"},
    {"ptrip", "ptrip", value, "ptrip_source"},
    {"Tmelt", "Tmelt", value, "Tmelt_source"},
    {"rho_Tb", "rhoLb", value, "rho_Tb_source"},
    {"hVapRef", "hVapRef", value, "hVapRef_source"},
    {"TVapRef", "TVapRef", value, "hVapRef_source"},
    {"hVapTb", "hVapSecond", value, "hVapTb_source"},
    {"TVapTb", "TVapSecond", value, "hVapTb_source"},
};

constexpr ValueColumn formationColumns[] = {
    {"hFormation", "hFormation", value, "hFormation_source"},
    {"gFormation", "gFormation", value, "gFormation_source"},
    {"sConventional", "sConventional", value, "sConventional_source"},
};

constexpr ValueColumn wagnerColumns[] = {
    {"a", "wagner.w1", coefficient, "source"},    {"b", "wagner.w2", coefficient, "source"},
    {"c", "wagner.w3", coefficient, "source"},    {"d", "wagner.w4", coefficient, "source"},
    {"e", "wagner.w5", coefficient, "source"},    {"f", "wagner.w6", coefficient, "source"},
    {"g", "wagner.w7", coefficient, "source"},    {"h", "wagner.w8", coefficient, "source"},
    {"Tref", "wagner.w9", coefficient, "source"}, {"pref", "wagner.w10", coefficient, "source"},
    {"Tlo", "wagner.Tlo", limit, "source"},       {"Thi", "wagner.Thi", limit, "source"},
};

constexpr ValueColumn frostKalkwarfColumns[] = {
    {"A", "frostKalkwarf.c1", coefficient, "source"}, {"B", "frostKalkwarf.c2", coefficient, "source"},
    {"C", "frostKalkwarf.c3", coefficient, "source"}, {"D", "frostKalkwarf.c4", coefficient, "source"},
    {"E", "frostKalkwarf.c5", coefficient, "source"}, {"F", "frostKalkwarf.c6", coefficient, "source"},
    {"G", "frostKalkwarf.c7", coefficient, "source"}, {"H", "frostKalkwarf.c8", coefficient, "source"},
    {"I", "frostKalkwarf.c9", coefficient, "source"}, {"Tlo", "frostKalkwarf.Tlo", limit, "source"},
    {"Thi", "frostKalkwarf.Thi", limit, "source"},
};

constexpr ValueColumn antoineLowColumns[] = {
    {"A", "antoineLow.A", coefficient, "source"}, {"B", "antoineLow.B", coefficient, "source"},
    {"C", "antoineLow.C", coefficient, "source"}, {"Tlo", "antoineLow.Tlo", limit, "source"},
    {"Thi", "antoineLow.Thi", limit, "source"},
};

constexpr ValueColumn antoineHighColumns[] = {
    {"A", "antoineHigh.A", coefficient, "source"}, {"B", "antoineHigh.B", coefficient, "source"},
    {"C", "antoineHigh.C", coefficient, "source"}, {"Tlo", "antoineHigh.Tlo", limit, "source"},
    {"Thi", "antoineHigh.Thi", limit, "source"},
};

constexpr ValueColumn rhoLiquidColumns[] = {
    {"c0", "rhoLiquid.r1", coefficient, "source"}, {"c1", "rhoLiquid.r2", coefficient, "source"},
    {"c2", "rhoLiquid.r3", coefficient, "source"}, {"c3", "rhoLiquid.r4", coefficient, "source"},
    {"c4", "rhoLiquid.r5", coefficient, "source"}, {"c5", "rhoLiquid.r6", coefficient, "source"},
    {"c6", "rhoLiquid.r7", coefficient, "source"}, {"H", "rhoLiquid.Tcr", coefficient, "source"},
    {"Tlo", "rhoLiquid.Tlo", limit, "source"},     {"Thi", "rhoLiquid.Thi", limit, "source"},
};

constexpr ValueColumn rhoSolidColumns[] = {
    {"s0", "rhoSolid.s1", coefficient, "source"}, {"s1", "rhoSolid.s2", coefficient, "source"},
    {"s2", "rhoSolid.s3", coefficient, "source"}, {"s3", "rhoSolid.s4", coefficient, "source"},
    {"Tlo", "rhoSolid.Tlo", limit, "source"},     {"Thi", "rhoSolid.Thi", limit, "source"},
};

constexpr ValueColumn hVapColumns[] = {
    {"A", "hVapFunction.A", coefficient, "source"},    {"B", "hVapFunction.B", coefficient, "source"},
    {"C", "hVapFunction.C", coefficient, "source"},    {"D", "hVapFunction.D", coefficient, "source"},
    {"E", "hVapFunction.E", coefficient, "source"},    {"F", "hVapFunction.F", coefficient, "source"},
    {"Tv", "hVapFunction.Tcr", coefficient, "source"}, {"Tlo", "hVapFunction.Tlo", limit, "source"},
    {"Thi", "hVapFunction.Thi", limit, "source"},
};

constexpr ValueColumn cpPolynomialColumns[] = {
    {"x0", "cpPolynomial.C0", coefficient, "source"}, {"x1", "cpPolynomial.C1", coefficient, "source"},
    {"x2", "cpPolynomial.C2", coefficient, "source"}, {"x3", "cpPolynomial.C3", coefficient, "source"},
    {"x4", "cpPolynomial.C4", coefficient, "source"}, {"Tlo", "cpPolynomial.Tlo", limit, "source"},
    {"Thi", "cpPolynomial.Thi", limit, "source"},
};

constexpr ValueColumn cpSinhCoshColumns[] = {
    {"q0", "cpSinhCosh.q0", coefficient, "source"}, {"q1", "cpSinhCosh.q1", coefficient, "source"},
    {"q2", "cpSinhCosh.q2", coefficient, "source"}, {"q3", "cpSinhCosh.q3", coefficient, "source"},
    {"q4", "cpSinhCosh.q4", coefficient, "source"}, {"Tlo", "cpSinhCosh.Tlo", limit, "source"},
    {"Thi", "cpSinhCosh.Thi", limit, "source"},
};

constexpr ValueColumn cpLiquidColumns[] = {
    {"x0", "cpLiquid.C0", coefficient, "source"}, {"x1", "cpLiquid.C1", coefficient, "source"},
    {"x2", "cpLiquid.C2", coefficient, "source"}, {"x3", "cpLiquid.C3", coefficient, "source"},
    {"x4", "cpLiquid.C4", coefficient, "source"}, {"Tlo", "cpLiquid.Tlo", limit, "source"},
    {"Thi", "cpLiquid.Thi", limit, "source"},
};

constexpr ValueColumn cpSolidColumns[] = {
    {"x0", "cpSolid.C0", coefficient, "source"}, {"x1", "cpSolid.C1", coefficient, "source"},
    {"x2", "cpSolid.C2", coefficient, "source"}, {"x3", "cpSolid.C3", coefficient, "source"},
    {"x4", "cpSolid.C4", coefficient, "source"}, {"Tlo", "cpSolid.Tlo", limit, "source"},
    {"Thi", "cpSolid.Thi", limit, "source"},
};

constexpr TableLayout layouts[] = {
    {identityFile, identityColumns, identityTexts, false},
    {constantsFile, constantsColumns, valueTexts, false},
    {"wagner.tsv", wagnerColumns, blockTexts, true},
    {"frost_kalkwarf.tsv", frostKalkwarfColumns, blockTexts, true},
    {"antoine_low.tsv", antoineLowColumns, blockTexts, true},
    {"antoine_high.tsv", antoineHighColumns, blockTexts, true},
    {"rho_liquid.tsv", rhoLiquidColumns, blockTexts, true},
    {"rho_solid.tsv", rhoSolidColumns, blockTexts, true},
    {"h_vap.tsv", hVapColumns, blockTexts, true},
    {"cp_ideal_polynomial.tsv", cpPolynomialColumns, blockTexts, true},
    {"cp_ideal_sinh_cosh.tsv", cpSinhCoshColumns, blockTexts, true},
    {"cp_liquid.tsv", cpLiquidColumns, blockTexts, true},
    {"cp_solid.tsv", cpSolidColumns, blockTexts, true},
    {"formation.tsv", formationColumns, valueTexts, false},
};

} // namespace

std::span<const TableLayout> TableLayouts() {
    return layouts;
}

std::vector<std::string> Columns(const TableLayout& layout) {
    std::vector<std::string> columns(layout.texts.begin(), layout.texts.end());
    for (const ValueColumn& entry : layout.values) {
        columns.emplace_back(entry.column);
        if (std::find(columns.begin(), columns.end(), entry.source) == columns.end())
            columns.emplace_back(entry.source);
    }
    return columns;
}

int ColumnPosition(const ValueColumn& column) {
    if (column.field == "Tmelt")
        return positionTmelt;
    if (column.field == "hVapSecond")
        return positionHVapSecond;
    if (column.field == "TVapSecond")
        return positionTVapSecond;
    return RecordPosition(column.field);
}

std::vector<std::string> SynonymColumns() {
    return {"cas", "in_database", "formula", "name_en", "name_de", "synonyms"};
}

} // namespace orva
