// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/reference_point.h"
#include "state/substance_data.h"

namespace orva {

// Constants of enthalpy (kJ/kmol) and entropy (kJ/(kmol K)) at pressure p by the kind of the reference point:
// 1 both 0 at (T0, p0); 2 from the enthalpy of formation and the conventional entropy; 10 from the enthalpy
// and free enthalpy of formation. Kinds 2 and 10 set (T0, p0) to 298.15 K and 101.325 kPa, and a p0 of 0
// becomes 101.325.
struct ReferenceGas {
    double h = 0, s = 0;
};
ReferenceGas ReferenceGasState(const SubstanceData& substance, ReferencePoint& reference, double p);

struct IdealGasState {
    double h = 0, s = 0, cp = 0;
    bool failed = false;
};

// What the integrals of the sinh/cosh form take from one end. That of the reference temperature depends on
// the substance and the reference point alone, so that a whole curve needs it once.
struct IdealGasTerms {
    double T = 0; // K, 0 for none
    double lnT = 0, coth = 0, tanh = 0, cothTerm = 0, tanhTerm = 0;
};
IdealGasTerms ReferenceTerms(const SubstanceData& substance, const ReferencePoint& reference, int cpModel);

// Functions of the ideal gas at T, p by the heat-capacity model in force. The polynomial is integrated with
// C4 as the coefficient of T^4 whatever its form, kept on purpose.
IdealGasState IdealGasFunctions(const SubstanceData& substance, ReferencePoint& reference, int cpModel,
                                double T, double p);

// The same to the last bit where the terms of the reference point are known. Terms of another T0 are not
// used.
IdealGasState IdealGasFunctions(const SubstanceData& substance, ReferencePoint& reference, int cpModel,
                                double T, double p, const IdealGasTerms& known);

} // namespace orva
