// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/common_fluids.h"

#include <algorithm>

#include "substance/record_fields.h"

namespace orva {
namespace {

constexpr std::string_view fluids[] = {
    // inorganic
    "7732-18-5", "7789-20-0", "7664-41-7", "124-38-9", "630-08-0", "7446-09-5", "7783-06-4", "7727-37-9",
    "7782-44-7", "7440-37-1", "7440-59-7", "1333-74-0", "7782-39-0", "7440-01-9", "7439-90-9", "7440-63-3",
    "2551-62-4", "7782-50-5", "7647-01-0", "10102-43-9", "10024-97-2", "7782-41-4", "463-58-1", "75-15-0",
    "7439-97-6", "74-90-8", "7664-39-3", "10035-10-6", "10034-85-2", "7726-95-6", "302-01-2", "7697-37-2",
    "7722-84-1", "10028-15-6", "7446-11-9", "10544-72-6",
    // hydrocarbons
    "74-82-8", "74-84-0", "74-98-6", "106-97-8", "75-28-5", "109-66-0", "78-78-4", "463-82-1", "110-54-3",
    "142-82-5", "111-65-9", "540-84-1", "111-84-2", "124-18-5", "1120-21-4", "112-40-3", "544-76-3",
    "74-85-1", "115-07-1", "106-98-9", "590-18-1", "624-64-6", "115-11-7", "106-99-0", "78-79-5", "74-86-2",
    "74-99-7", "75-19-4", "287-92-3", "110-82-7", "108-87-2", "71-43-2", "108-88-3", "100-41-4", "95-47-6",
    "108-38-3", "106-42-3", "100-42-5", "98-82-8", "91-20-3",
    // with oxygen, nitrogen, sulphur
    "67-56-1", "64-17-5", "71-23-8", "67-63-0", "71-36-3", "107-21-1", "57-55-6", "56-81-5", "67-64-1",
    "78-93-3", "64-19-7", "64-18-6", "60-29-7", "115-10-6", "1634-04-4", "109-99-9", "123-91-1", "141-78-6",
    "50-00-0", "75-07-0", "75-21-8", "108-95-2", "62-53-3", "110-86-1", "75-05-8", "68-12-2", "67-68-5",
    "141-43-5", "74-89-5", "107-13-1",
    // halogens, refrigerants
    "75-69-4", "75-71-8", "75-72-9", "75-73-0", "75-43-4", "75-45-6", "75-46-7", "75-10-5", "74-87-3",
    "593-53-3", "75-63-8", "76-13-1", "76-14-2", "76-15-3", "76-16-4", "306-83-2", "2837-89-0", "354-33-6",
    "811-97-2", "1717-00-6", "75-68-3", "420-46-2", "75-37-6", "353-36-6", "75-00-3", "76-19-7", "431-89-0",
    "431-63-0", "690-39-1", "460-73-1", "406-58-6", "754-12-1", "29118-24-9", "29118-25-0", "102687-65-0",
    "115-25-3", "75-09-2", "67-66-3", "56-23-5", "107-06-2", "79-01-6", "127-18-4", "71-55-6", "75-01-4",
    "108-90-7"};

constexpr float missing = 1e-6F;

} // namespace

std::span<const std::string_view> CommonFluids() {
    return fluids;
}

std::vector<std::string> MissingOfCommonFluid(const CompiledSubstance& substance) {
    const auto value = [&](std::string_view field) {
        return substance.record.values[static_cast<std::size_t>(RecordPosition(field))];
    };
    const auto has = [&](std::string_view block) { return substance.Has(std::string(block) + ".tsv"); };
    const struct {
        std::string_view name;
        bool present;
    } wanted[] = {
        {"rhoc", value("rhoc") >= missing},
        {"omega", value("omega") != 0},
        {"Tb", value("Tb") >= missing},
        {"vapour pressure",
         has("wagner") || has("frost_kalkwarf") || (has("antoine_low") && has("antoine_high"))},
        {"rho liquid", has("rho_liquid")},
        {"hVap", has("h_vap") || value("hVapRef") >= missing
                     || substance.record.values[positionHVapSecond] >= missing},
        {"cp ideal gas", has("cp_ideal_polynomial") || has("cp_ideal_sinh_cosh")},
        {"hFormation", value("hFormation") != 0},
        {"gFormation", value("gFormation") != 0},
        {"cp liquid", has("cp_liquid")},
    };
    std::vector<std::string> list;
    for (const auto& [name, present] : wanted) {
        if (!present)
            list.emplace_back(name);
    }
    return list;
}

std::string IncompleteFluids(const std::vector<CompiledSubstance>& substances) {
    std::string text;
    for (const std::string_view cas : fluids) {
        const auto found = std::find_if(substances.begin(), substances.end(),
                                        [&](const CompiledSubstance& s) { return s.cas == cas; });
        if (found == substances.end()) {
            text += std::string(cas) + ": not in the database\n";
            continue;
        }
        std::string list;
        for (const std::string& name : MissingOfCommonFluid(*found))
            list += (list.empty() ? "" : ", ") + name;
        if (!list.empty())
            text += found->cas + " " + found->nameEnglish + ": " + list + "\n";
    }
    return text;
}

} // namespace orva
