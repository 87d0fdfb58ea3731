// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/diagram_setup.h"

#include "calc/units.h"
#include "diagrams/axis_titles.h"
#include "diagrams/database_curves.h"
#include "state/constants.h"
#include "text/columns.h"

namespace orva {

namespace {

constexpr int logVapourPressure = 10; // its title ends with the name of the model
constexpr std::int16_t basisSpecific = 3;
constexpr double lastResortVolume = 2; // m^3/kmol

// The functions of T have their isobar at normal pressure.
double StartPressure(int type, double pc) {
    return 12 < type && type < 100 ? normalPressure : pc;
}

void StartAtCriticalPoint(DiagramRecords& records, int type) {
    const SubstanceData& substance = records.model.substance;
    CurveRequest& request = records.request;
    const bool stale = records.session.rangesStale;
    if (stale) {
        request.curveT = substance.Tc;
        records.ranges.TMax = static_cast<float>(1.1 * substance.Tc * records.options.TFactor);
        records.ranges.pMax = static_cast<float>(1.6 * substance.pc * records.options.pFactor);
        records.session.rangesStale = false;
    }
    if (stale || request.curveP == substance.pc) {
        request.curveV = 0;
        request.curveP = StartPressure(type, substance.pc);
    }
}

void StartVolume(const SubstanceModel& model, CurveRequest& request) {
    if (request.curveV >= missingValue)
        return;
    request.curveV = model.eos.vCritCalc;
    if (request.curveV < missingValue)
        request.curveV = model.substance.vcDatabase;
    if (request.curveV < missingValue)
        request.curveV = lastResortVolume;
}

template<typename Table> std::string NameIn(const Table& table, int index) {
    if (index < 0 || index >= static_cast<int>(table.size()))
        return {};
    return std::string(Trim(table[static_cast<std::size_t>(index)]));
}

std::string ModelName(const DiagramRecords& records, const DiagramRow& row) {
    const ModelSelection& selection = records.model.selection;
    if (NamesVapourPressure(row.type) && !selection.eosPriority)
        return NameIn(records.names.VaporPressureNames, selection.vaporPressure);
    return NameIn(records.names.EosNames, selection.eos);
}

std::string WithBasisWord(std::string_view title, int unitBasis) {
    std::string text(title);
    const std::size_t at = text.find('~');
    if (at != std::string::npos)
        text.replace(at, 1, unitBasis == basisSpecific ? "spezifische " : "molare ");
    return text;
}

// The model, or the range of validity of a database function.
std::string SubTitle(const DiagramRecords& records, const DiagramRow& row, const DiagramSpec& spec) {
    if (row.curveKind != curveFunctionOfT)
        return ", " + ModelName(records, row);
    return ", Gültigkeit T = " + General(spec.dbTMin, records.style) + " ... "
           + General(spec.dbTMax, records.style) + " K";
}

std::string SubstanceTitle(const SubstanceData& substance) {
    const std::string name(Trim(substance.name));
    if (substance.formulaCompact.empty())
        return name;
    return name + " (" + substance.formulaCompact + ")";
}

} // namespace

void ApplyRanges(const DiagramRanges& ranges, DiagramSpec& spec) {
    const DiagramRow* row = FindDiagram(spec.type);
    if (row == nullptr)
        return;
    spec.xMin = ranges.*row->x.low;
    spec.xMax = ranges.*row->x.high;
    spec.yMin = ranges.*row->y.low;
    spec.yMax = ranges.*row->y.high;
}

void SetUpDiagram(DiagramRecords& records, DiagramSpec& spec) {
    const DiagramRow* row = FindDiagram(spec.type);
    if (row == nullptr)
        return;
    StartAtCriticalPoint(records, spec.type);
    SetUnits(records.model, records.options);
    StartVolume(records.model, records.request);
    ApplyRanges(records.ranges, spec);
    if (row->curveKind == curveFunctionOfT)
        SetDatabaseWindow(records.model, records.options, spec);
    spec.headingText = SubstanceTitle(records.model.substance);
    spec.typeTitle = WithBasisWord(row->title, records.options.unitBasis);
    if (row->type == logVapourPressure)
        spec.typeTitle += ModelName(records, *row);
    spec.heading = spec.headingText + " Diagrammtyp:  " + spec.typeTitle;
    spec.subTitle = SubTitle(records, *row, spec);
    spec.xTitle = AxisTitle(row->x.quantity, records.options);
    spec.yTitle = AxisTitle(row->y.quantity, records.options);
}

void SelectDiagram(DiagramRecords& records, const DiagramRow& row, DiagramSpec& spec) {
    spec.type = row.type;
    spec.curveKind = row.curveKind;
    spec.curveCode = row.curveCode;
    SetUpDiagram(records, spec);
}

} // namespace orva
