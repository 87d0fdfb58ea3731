// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/mini_tables.h"

#include <gtest/gtest.h>

namespace orva {

SourceFiles MiniTables() {
    const std::string polynomial = "cas\tname\tx0\tx1\tx2\tx3\tx4\tTlo\tThi\tsource\tnote\n";
    const std::string antoine = "# Antoine\ncas\tname\tA\tB\tC\tTlo\tThi\tsource\tnote\n";
    return {
        {"version.txt", "2026-11-21\n"},
        {"sources.md", "# Sources\n\n## Bibliography\n\n| key | source |\n|---|---|\n| AW | weights |\n"
                       "| CRC | handbook |\n| PGL | another |\n\n## More\n\n| XX | no key |\n"},
        {"identity.tsv", "# Identities\n"
                         "number\tcas\tformula\tname_en\tname_de\tmolar_mass\tmolar_mass_source\n"
                         "1\t64-19-7\tC2H4O2\tAcetic acid\tEssigsäure; Eisessig\t60.052\tAW\n"
                         "2\t7727-37-9\tN2\tNitrogen\tStickstoff\t28.014\tAW\n"},
        {"constants.tsv",
         "cas\tname\tTc\tTc_source\tpc\tpc_source\trhoc\trhoc_source\tomega\tomega_source\tTb\tTb_source\t"
         "Ttrip\tTtrip_source\tptrip\tptrip_source\tTmelt\tTmelt_source\trho_Tb\trho_Tb_source\t"
         "hVapRef\tTVapRef\thVapRef_source\thVapTb\tTVapTb\thVapTb_source\n"
         "64-19-7\tAcetic acid\t591.95\tCRC\t5786\tCRC\t\t\t\t\t391.05\tCRC\t\t\t\t\t289.77\tCRC\t\t\t"
         "23360\t298.15\tCRC\t23700\t391.05\tCRC\n"
         "7727-37-9\tNitrogen\t126.192\tPGL\t3395.8\tPGL\t\t\t\t\t77.355\tPGL\t\t\t\t\t\t\t806."
         "1\tPGL\t\t\t\t\t\t\n"},
        {"wagner.tsv", "cas\tname\ta\tb\tc\td\te\tf\tg\th\tTref\tpref\tTlo\tThi\tsource\tnote\n"},
        {"frost_kalkwarf.tsv", "cas\tname\tA\tB\tC\tD\tE\tF\tG\tH\tI\tTlo\tThi\tsource\tnote\n"},
        {"antoine_low.tsv",
         antoine + "7727-37-9\tNitrogen\t5.61947\t255.68\t266.55\t63\t84\tFIT:PGL\tfit max 1 %\n"},
        {"antoine_high.tsv", antoine},
        {"rho_liquid.tsv", "cas\tname\tc0\tc1\tc2\tc3\tc4\tc5\tc6\tH\tTlo\tThi\tsource\tnote\n"
                           "7727-37-9\tNitrogen\t0\t90\t0.286\t0.28\t0\t0\t0\t126.2\t64\t126\tPGL\t\n"},
        {"rho_solid.tsv", "cas\tname\ts0\ts1\ts2\ts3\tTlo\tThi\tsource\tnote\n"},
        {"h_vap.tsv", "cas\tname\tA\tB\tC\tD\tE\tF\tTv\tTlo\tThi\tsource\tnote\n"},
        {"cp_ideal_polynomial.tsv", polynomial},
        {"cp_ideal_sinh_cosh.tsv", "cas\tname\tq0\tq1\tq2\tq3\tq4\tTlo\tThi\tsource\tnote\n"},
        {"cp_liquid.tsv", polynomial},
        {"cp_solid.tsv", polynomial},
        {"formation.tsv", "cas\tname\thFormation\thFormation_source\tgFormation\tgFormation_source\t"
                          "sConventional\tsConventional_source\n"
                          "64-19-7\tAcetic acid\t-432250\tCRC\t\t\t\t\n"
                          "7727-37-9\tNitrogen\t0\tCRC\t\t\t191.609\tCRC\n"},
        {"accepted_deviations.tsv", "cas\tname\tcheck\tlimit\treason\n"},
        {"synonyms.tsv", "cas\tin_database\tformula\tname_en\tname_de\tsynonyms\n"
                         "64-19-7\t1\tC2H4O2\tAcetic acid\tEssigsäure\tEthansäure|Äthansäure|Essig-saeure\n"
                         "107-31-3\t0\tC2H4O2\tMethyl formate\tMethylformiat\tAmeisensäuremethylester\n"
                         "74-90-8\t0\tCHN\tHydrogen cyanide\tBlausäure\tCyanwasserstoff|[HCN]\n"},
    };
}

SourceFiles MiniTablesWith(std::string_view file, std::string_view from, std::string_view to) {
    SourceFiles files = MiniTables();
    std::string& bytes = files.find(file)->second;
    const auto at = bytes.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos)
        bytes.replace(at, from.size(), to);
    return files;
}

SourceFiles MiniTablesAnd(std::string_view file, std::string_view row) {
    SourceFiles files = MiniTables();
    files.find(file)->second.append(row).append("\n");
    return files;
}

std::vector<std::string> RefusalTexts(const SourceFiles& files) {
    const DatabaseBuild build = BuildDatabase(files);
    EXPECT_EQ(build.refusals.empty(), !build.database.empty());
    EXPECT_EQ(build.refusals.empty(), !build.synonymFile.empty());
    std::vector<std::string> texts;
    for (const Refusal& refusal : build.refusals)
        texts.push_back(RefusalText(refusal));
    return texts;
}

} // namespace orva
