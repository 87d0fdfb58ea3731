// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "substance/record_fields.h"

namespace orva {

namespace {

Json Block(const AntoineBlock& block) {
    return Json{{"A", double(block.A)},
                {"B", double(block.B)},
                {"C", double(block.C)},
                {"Tlo", block.Tlo},
                {"Thi", block.Thi}};
}

Json Block(const AugustBlock& block) {
    return Json{{"A", double(block.A)}, {"B", double(block.B)}};
}

Json Block(const FrostKalkwarfBlock& block) {
    Json json;
    char name[] = "c1";
    for (const float c :
         {block.c1, block.c2, block.c3, block.c4, block.c5, block.c6, block.c7, block.c8, block.c9}) {
        json[name] = double(c);
        ++name[1];
    }
    json["Tlo"] = block.Tlo;
    json["Thi"] = block.Thi;
    json["cExtra"] = double(block.cExtra);
    return json;
}

using S = SubstanceData;

// Fields that no record holds: texts, and what is computed from others.
struct ComputedField {
    std::string_view name;
    Json (*get)(const S&);
};

constexpr ComputedField computedFields[] = {
    {"name", [](const S& s) { return Json(s.name); }},
    {"formula", [](const S& s) { return Json(s.formula); }},
    {"formulaCompact", [](const S& s) { return Json(s.formulaCompact); }},
    {"cas", [](const S& s) { return Json(s.cas); }},
    {"sFormation", [](const S& s) { return Json(double(s.sFormation)); }},
    {"vcDatabase", [](const S& s) { return Json(s.vcDatabase); }},
    {"august", [](const S& s) { return Block(s.august); }},
    {"kfw", [](const S& s) { return Block(s.kfw); }},
    {"kfr", [](const S& s) { return Block(s.kfr); }},
    {"thompson", [](const S& s) { return Block(s.thompson); }},
    {"cpPolynomialValid", [](const S& s) { return Json(s.cpPolynomialValid); }},
    {"cpSinhCoshValid", [](const S& s) { return Json(s.cpSinhCoshValid); }},
    {"cpLiquidValid", [](const S& s) { return Json(s.cpLiquidValid); }},
    {"cpSolidValid", [](const S& s) { return Json(s.cpSolidValid); }},
};

// All fields and blocks in the order of SubstanceData.
constexpr std::string_view fieldOrder[] = {"name",
                                           "formula",
                                           "formulaCompact",
                                           "cas",
                                           "molarMass",
                                           "Tb",
                                           "Ttrip",
                                           "ptrip",
                                           "extra1",
                                           "extra2",
                                           "hFormation",
                                           "gFormation",
                                           "sFormation",
                                           "sConventional",
                                           "gFormationAlt",
                                           "Tc",
                                           "pc",
                                           "rhoc",
                                           "vcDatabase",
                                           "omega",
                                           "antoineLow",
                                           "august",
                                           "antoineHigh",
                                           "frostKalkwarf",
                                           "wagner",
                                           "kfw",
                                           "kfr",
                                           "thompson",
                                           "rhoLiquid",
                                           "rhoLb",
                                           "rhoSolid",
                                           "hVapFunction",
                                           "hVapRef",
                                           "TVapRef",
                                           "cpPolynomial",
                                           "cpSinhCosh",
                                           "cpLiquid",
                                           "cpSolid",
                                           "cpPolynomialValid",
                                           "cpSinhCoshValid",
                                           "cpLiquidValid",
                                           "cpSolidValid"};

Json StoredValue(const RecordField& field, const S& substance) {
    const double value = field.get(substance);
    return field.isLimit ? Json(static_cast<int>(value)) : Json(value);
}

// The value of a field of the record, or the object of a block.
Json StoredField(std::string_view name, const S& substance) {
    Json block;
    for (const RecordField& field : RecordFields()) {
        if (field.name == name)
            return StoredValue(field, substance);
        const std::size_t dot = field.name.find('.');
        if (dot != field.name.npos && field.name.substr(0, dot) == name)
            block.emplace(field.name.substr(dot + 1), StoredValue(field, substance));
    }
    return block;
}

Json FieldJson(std::string_view name, const S& substance) {
    for (const ComputedField& field : computedFields)
        if (field.name == name)
            return field.get(substance);
    return StoredField(name, substance);
}

} // namespace

Answer ShowCommand(Workspace& workspace, const std::string& substance) {
    workspace.StartFresh();
    const std::optional<Failure> failure = workspace.TakeSubstance(substance);
    // A substance without critical data is refused for calculations only; its data can be looked at.
    if (failure && workspace.Records().state.substanceIndex == 0)
        return AnswerFor(*failure);
    Answer answer;
    answer.json = Json::object();
    for (const std::string_view name : fieldOrder)
        answer.json[std::string(name)] = FieldJson(name, workspace.Records().model.substance);
    answer.messages = workspace.Messages();
    answer.json["messages"] = MessagesJson(answer.messages);
    return answer;
}

} // namespace orva
