// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"

namespace orva {

// Sets all constants and current values of the equation of state to 0, the critical volume and the form
// aside.
void ClearEosParameters(EosParameters& eos);

// z R T(cr) / p(cr), m^3/kmol.
double CriticalVolumeFromFactor(const SubstanceData& substance, double z);

// Turns critical data and acentric factor of the substance into the constants of row `eosType`. Row 1 leaves
// the constants of the row before. Returns false if that was not possible; the constants are then not usable.
// Sources: van der Waals 1873; Berthelot 1899; Redlich, Kwong, Chem. Rev. 44 (1949) 233; Soave, Chem. Eng.
// Sci. 27 (1972) 1197; Peng, Robinson, Ind. Eng. Chem. Fundam. 15 (1976) 59.
bool DetermineEosParameters(SubstanceModel& model, int eosType);

} // namespace orva
