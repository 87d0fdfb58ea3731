// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "diagrams/catalogue.h"
#include "diagrams/default_ranges.h"
#include "diagrams/diagram_records.h"
#include "diagrams/diagram_setup.h"
#include "state/dialogs.h"
#include "thermo/eos_constants.h"

namespace orva::test {

// Keeps the messages for the test to read.
class RecordedDialogs : public Dialogs {
public:
    void Show(const Message& message) override { messages.push_back(message); }
    bool Ask(const Question&) override { return false; }
    std::optional<std::string> ChooseFile(const FileRequest&) override { return fileName; }
    std::optional<std::string> InputText(const TextRequest&) override { return std::nullopt; }

    std::vector<Message> messages;
    std::optional<std::string> fileName;
};

// Methane: Setzmann, Wagner, J. Phys. Chem. Ref. Data 20 (1991) 1061; acentric factor from its vapour
// pressure.
inline SubstanceData MethaneData() {
    SubstanceData methane;
    methane.name = "Methan";
    methane.formula = "CH4         ";
    methane.formulaCompact = "CH4";
    methane.cas = "74-82-8     ";
    methane.molarMass = 16.0428F;
    methane.Tb = 111.67F;
    methane.Ttrip = 90.69F;
    methane.ptrip = 11.696F;
    methane.Tc = 190.564;
    methane.pc = 4599.2;
    methane.rhoc = 162.66;
    methane.vcDatabase = 16.0428F / 162.66;
    methane.omega = 0.01142;
    return methane;
}

inline SubstanceModel ModelWith(const SubstanceData& substance, int eos) {
    SubstanceModel model;
    model.substance = substance;
    model.selection.eos = static_cast<std::int16_t>(eos);
    model.selection.nonCubic = eos == eosIdealGas || eos > 9;
    DetermineEosParameters(model, eos);
    return model;
}

// Methane with one equation of state, and every record that a diagram needs, ready for the p-v diagram.
struct MethaneDiagram {
    SubstanceModel model;
    Options options;
    DiagramRanges ranges;
    CurveRequest request;
    SessionState session;
    double diagramTemperature = 298.15;
    NameTables names = FillNameTables();
    RecordedDialogs dialogs;
    DiagramSpec spec;

    explicit MethaneDiagram(int eos = eosPengRobinson, int volumeBasis = 0)
        : model(ModelWith(MethaneData(), eos)) {
        options.volumeBasis = static_cast<std::int16_t>(volumeBasis);
        SetDefaultRanges(model, options, ranges);
        session.rangesStale = true;
        DiagramRecords records = Records();
        SelectDiagram(records, *FindDiagram(1), spec);
    }
    MethaneDiagram(const MethaneDiagram&) = delete;
    MethaneDiagram& operator=(const MethaneDiagram&) = delete;

    DiagramRecords Records() {
        return {model, options, ranges, request, session, diagramTemperature, names, {}};
    }
};

} // namespace orva::test
