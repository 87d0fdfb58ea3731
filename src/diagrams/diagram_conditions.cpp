// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/diagram_conditions.h"

namespace orva {

namespace {

constexpr const char* titleRefused = "Ausführung nicht möglich";

bool IsCubic(const SubstanceModel& model) {
    return !model.selection.nonCubic;
}
bool HasIdealGasCp(const SubstanceModel& model) {
    return model.selection.cpModel != 0;
}
bool HasLiquidCp(const SubstanceModel& model) {
    return model.substance.cpLiquidValid;
}
// The slope belongs to the vapour-pressure equation, whatever the equation of state would give.
bool DrawsWithVapourPressure(const SubstanceModel& model) {
    return !model.selection.eosPriority && !model.selection.nonCubic;
}

struct ConditionRow {
    int first, last; // diagram types
    bool (*holds)(const SubstanceModel&);
    const char* title;
    const char* text;
    bool refuses;
};

constexpr const char* cubicOnly =
    "Phasengleichgewichts-Berechnungen sind nur mit einer kubischen Zustandsgleichung möglich";

constexpr ConditionRow conditions[] = {
    {6, 9, IsCubic, titleRefused, cubicOnly, true},
    {90, 93, IsCubic, titleRefused, cubicOnly, true},
    {106, 106, IsCubic, titleRefused, cubicOnly, true},
    {11, 11, DrawsWithVapourPressure, "HINWEIS",
     "Kurve gilt für die aktuelle Dampfdruckgleichung,\nnicht für die EOS", false},
    {19, 19, HasIdealGasCp, titleRefused, "es stehen keine cp(idG)-Modellparameter zur Verfügung", true},
    {302, 302, HasIdealGasCp, titleRefused, "für diesen Stoff ist keine Funktion cpIdG)= Fu(T) verfügbar.",
     true},
    {303, 303, HasLiquidCp, titleRefused, "für diesen Stoff ist keine Funktion cp(L)= Fu(T) verfügbar.",
     true},
};

} // namespace

bool MayDraw(const DiagramRow& row, const SubstanceModel& model, Dialogs& dialogs) {
    for (const ConditionRow& condition : conditions) {
        if (row.type < condition.first || row.type > condition.last || condition.holds(model))
            continue;
        dialogs.Show({condition.title, condition.text});
        if (condition.refuses)
            return false;
    }
    return true;
}

} // namespace orva
