// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/calc_batch.h"
#include "thermo/eos_constants.h"

namespace orva::test {

// n-butane with rounded constants after Buecker, Wagner, J. Phys. Chem. Ref. Data 35 (2006) 929.
inline SubstanceData Butane() {
    SubstanceData s;
    s.name = "n-Butan";
    s.formula = "C4H10       ";
    s.formulaCompact = "C4H10";
    s.cas = "106-97-8    ";
    s.molarMass = 58.1222F;
    s.Tb = 272.66F;
    s.Ttrip = 134.895F;
    s.Tc = 425.125;
    s.pc = 3796;
    s.rhoc = 228;
    s.vcDatabase = s.molarMass / s.rhoc;
    s.omega = 0.2;
    return s;
}

// The records of one calculation, with the models of `eos` in force.
struct Calculation {
    SubstanceModel model;
    Options options;
    NameTables names = FillNameTables();
    BatchDataSet batch;
    CalculationState state;
    NumberStyle style;

    explicit Calculation(int eos = eosPengRobinson, const SubstanceData& substance = Butane()) {
        model.substance = substance;
        model.selection.eos = static_cast<std::int16_t>(eos);
        model.selection.nonCubic = eos == eosIdealGas || eos > 9;
        EXPECT_TRUE(DetermineEosParameters(model, eos));
    }

    CalculationContext Context() { return {model, options, names, batch, state, style}; }

    PointResult At(double T, double p, RunOptions run = {}) {
        batch.rows[0] = {};
        batch.rows[0].T = T;
        batch.rows[0].p = p;
        CalculationContext context = Context();
        state.CalcKind = kindTP;
        return CalcBatch(context, kindTP, 0, run);
    }
};

} // namespace orva::test
