// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

#include "tools/mini_tables.h"

namespace orva {
namespace {

// A record written by hand: blanks in the texts, zeros in the numbers.
class HandMadeRecord {
public:
    HandMadeRecord() : bytes(684, '\0') { std::fill_n(bytes.begin(), 186, ' '); }
    void Text(std::size_t offset, std::string_view text) {
        std::ranges::copy(text, bytes.begin() + static_cast<std::ptrdiff_t>(offset));
    }
    void Number(unsigned char low, unsigned char high) { Put(186, {low, high}); }
    void Value(std::size_t position, std::initializer_list<int> single) { Put(188 + 4 * position, single); }

    std::string bytes;

private:
    void Put(std::size_t offset, std::initializer_list<int> values) {
        for (const int value : values)
            bytes[offset++] = static_cast<char>(value);
    }
};

std::string HandMadeDatabase() {
    HandMadeRecord header;
    header.Text(0, "2026-11-21");
    header.Text(12, "ORVA substance data");
    header.Number(2, 0);

    HandMadeRecord acid;
    acid.Text(0, "C2H4O2");
    acid.Text(12, "Acetic acid");
    acid.Text(52, "Essigs\xE4ure; Eisessig");
    acid.Text(92, "64-19-7");
    acid.Number(1, 0);
    acid.Value(0, {0x3F, 0x35, 0x70, 0x42});   // 60.052
    acid.Value(6, {0xCD, 0xFC, 0x13, 0x44});   // Tc 591.95
    acid.Value(7, {0x00, 0xD0, 0xB4, 0x45});   // pc 5786
    acid.Value(10, {0x66, 0x86, 0xC3, 0x43});  // Tb 391.05
    acid.Value(85, {0x40, 0x0F, 0xD3, 0xC8});  // hFormation -432250
    acid.Value(93, {0x8F, 0xE2, 0x90, 0x43});  // Tmelt 289.77
    acid.Value(105, {0x00, 0x80, 0xB6, 0x46}); // hVapRef 23360
    acid.Value(106, {0x33, 0x13, 0x95, 0x43}); // TVapRef 298.15
    acid.Value(107, {0x00, 0x28, 0xB9, 0x46}); // hVapTb 23700
    acid.Value(108, {0x66, 0x86, 0xC3, 0x43}); // TVapTb 391.05

    HandMadeRecord nitrogen;
    nitrogen.Text(0, "N2");
    nitrogen.Text(12, "Nitrogen");
    nitrogen.Text(52, "Stickstoff");
    nitrogen.Text(92, "7727-37-9");
    nitrogen.Number(2, 0);
    nitrogen.Value(0, {0xAC, 0x1C, 0xE0, 0x41});  // 28.014
    nitrogen.Value(6, {0x4E, 0x62, 0xFC, 0x42});  // Tc 126.192
    nitrogen.Value(7, {0xCD, 0x3C, 0x54, 0x45});  // pc 3395.8
    nitrogen.Value(10, {0xC3, 0xB5, 0x9A, 0x42}); // Tb 77.355
    nitrogen.Value(12, {0x66, 0x86, 0x49, 0x44}); // rho(L) at Tb 806.1
    nitrogen.Value(14, {0x00, 0x00, 0xB4, 0x42}); // rho(L): 90
    nitrogen.Value(15, {0x98, 0x6E, 0x92, 0x3E}); // 0.286
    nitrogen.Value(16, {0x29, 0x5C, 0x8F, 0x3E}); // 0.28
    nitrogen.Value(20, {0x66, 0x66, 0xFC, 0x42}); // its T(cr) 126.2
    nitrogen.Value(21, {0x00, 0x00, 0x80, 0x42}); // 64
    nitrogen.Value(22, {0x00, 0x00, 0xFC, 0x42}); // 126
    nitrogen.Value(36, {0xB3, 0xD2, 0xB3, 0x40}); // Antoine 5.61947
    nitrogen.Value(37, {0x14, 0xAE, 0x7F, 0x43}); // 255.68
    nitrogen.Value(38, {0x66, 0x46, 0x85, 0x43}); // 266.55
    nitrogen.Value(39, {0x00, 0x00, 0x7C, 0x42}); // 63
    nitrogen.Value(40, {0x00, 0x00, 0xA8, 0x42}); // 84
    nitrogen.Value(85, {0xEA, 0x1C, 0x08, 0x02}); // hFormation, a true zero: 1E-37
    nitrogen.Value(89, {0xE7, 0x9B, 0x3F, 0x43}); // sConventional 191.609
    return header.bytes + acid.bytes + nitrogen.bytes;
}

TEST(MiniDatabase, IsTheDatabaseMadeByHand) {
    const std::string database = BuildDatabase(MiniTables()).database;
    const std::string expected = HandMadeDatabase();
    ASSERT_EQ(database.size(), 3u * 684u);
    for (std::size_t i = 0; i < expected.size(); ++i)
        ASSERT_EQ(database[i], expected[i]) << "record " << i / 684 + 1 << ", offset " << i % 684;
}

TEST(MiniDatabase, HasTheSynonymFileMadeByHand) {
    const DatabaseBuild build = BuildDatabase(MiniTables());
    EXPECT_EQ(build.substances, 2);
    EXPECT_EQ(build.names, 4);
    EXPECT_EQ(build.synonymFile, "64-19-7\r\n"
                                 " Essigs\x84ure_C2H4O2_Acetic acid\r\n"
                                 "ESSIGS\x8EURE\r\n"
                                 "EISESSIG\r\n"
                                 "ACETICACID\r\n"
                                 "ETHANS\x8EURE\r\n"
                                 "AETHANS\x8EURE\r\n"
                                 "C2H4O2\r\n"
                                 "\r\n"
                                 "7727-37-9\r\n"
                                 " Stickstoff_N2_Nitrogen\r\n"
                                 "STICKSTOFF\r\n"
                                 "NITROGEN\r\n"
                                 "N2\r\n"
                                 "\r\n"
                                 "107-31-3\r\n"
                                 " Methylformiat_C2H4O2_Methyl formate\r\n"
                                 "METHYLFORMIAT\r\n"
                                 "METHYLFORMATE\r\n"
                                 "AMEISENS\x8EUREMETHYLESTER\r\n"
                                 "\r\n"
                                 "74-90-8\r\n"
                                 " Blaus\x84ure_CHN_Hydrogen cyanide\r\n"
                                 "BLAUS\x8EURE\r\n"
                                 "HYDROGENCYANIDE\r\n"
                                 "CYANWASSERSTOFF\r\n"
                                 "HCN\r\n"
                                 "ZYANWASSERSTOFF\r\n"
                                 "CHN\r\n"
                                 "\r\n");
}

std::string GroupOf(const SourceFiles& files, const std::string& cas) {
    const std::string& text = BuildDatabase(files).synonymFile;
    const auto begin = text.find(cas + "\r\n");
    return begin == text.npos ? "" : text.substr(begin, text.find("\r\n\r\n", begin) - begin);
}

TEST(MiniDatabase, AddsOtherSpellingsOfTheNames) {
    SourceFiles files =
        MiniTablesAnd("synonyms.tsv", "60-29-7\t0\tC4H10O\tDiethyl ether\tDiethylether\tSchwefeläther");
    files.find("synonyms.tsv")->second +=
        "540-67-0\t0\tC3H8O\tMethoxyethane\tEthylmethylether\tLöß\n"
        "106-98-9\t0\tC4H8\tButene\t1-Buten\t\n"
        "4050-45-7\t0\tC6H12\tHexene\ttrans-2-Hexen\tn-Octan, Merkaptan|Acrolein\n"
        "108-38-3\t0\tC8H10\tXylene\t1,3-Xylol\t\n";
    EXPECT_EQ(GroupOf(files, "60-29-7"), "60-29-7\r\n Diethylether_C4H10O_Diethyl ether\r\nDIETHYLETHER\r\n"
                                         "SCHWEFELETHER\r\nSCHWEFELAETHER\r\nDIAETHYLAETHER\r\nC4H10O");
    EXPECT_EQ(GroupOf(files, "540-67-0"),
              "540-67-0\r\n Ethylmethylether_C3H8O_Methoxyethane\r\nETHYLMETHYLETHER\r\n"
              "METHOXYETHANE\r\nL\x99\xE1\r\nLOESS\r\nAETHYLMETHYLAETHER\r\nC3H8O");
    EXPECT_EQ(GroupOf(files, "106-98-9"),
              "106-98-9\r\n 1-Buten_C4H8_Butene\r\n1BUTEN\r\nBUTENE\r\nBUTEN1\r\nC4H8");
    EXPECT_EQ(GroupOf(files, "4050-45-7"),
              "4050-45-7\r\n trans-2-Hexen_C6H12_Hexene\r\nTRANS2HEXEN\r\nHEXENE\r\nNOCTAN,MERKAPTAN\r\n"
              "ACROLEIN\r\nTRANSHEXEN2\r\nNOKTAN,MERKAPTAN\r\nAKROLEIN\r\nC6H12");
    EXPECT_EQ(GroupOf(files, "108-38-3"),
              "108-38-3\r\n 1,3-Xylol_C8H10_Xylene\r\n1,3XYLOL\r\nXYLENE\r\nC8H10");
}

TEST(MiniDatabase, LeavesAMadeUpKeyToTheSubstanceThatHasItAsAName) {
    SourceFiles files = MiniTablesAnd("synonyms.tsv", "60-29-7\t0\tC4H10O\tDiethyl ether\tDiethylether\tKöl");
    files.find("synonyms.tsv")->second += "540-67-0\t0\tC3H8O\tKoel\tEthylmethylether\tDiaethylaether\n";
    EXPECT_EQ(GroupOf(files, "60-29-7"),
              "60-29-7\r\n Diethylether_C4H10O_Diethyl ether\r\nDIETHYLETHER\r\nK\x99L\r\nC4H10O");
    EXPECT_NE(GroupOf(files, "540-67-0").find("\r\nKOEL\r\n"), std::string::npos);
    EXPECT_NE(GroupOf(files, "540-67-0").find("\r\nDIAETHYLAETHER\r\n"), std::string::npos);
}

// Broken bytes are refused, or they hit a place where any text may stand.
TEST(MiniDatabase, SurvivesAnyBytesInAnyFile) {
    const SourceFiles good = MiniTables();
    for (const auto& [name, bytes] : good) {
        for (std::size_t at = 0; at < bytes.size(); at += 3) {
            for (const char broken : {'\0', '\t', '\n', '\xFF', '9'}) {
                SourceFiles files = good;
                files.find(name)->second[at] = broken;
                const DatabaseBuild build = BuildDatabase(files);
                ASSERT_TRUE(!build.refusals.empty() || build.database.size() == 3u * 684u)
                    << name << " " << at;
            }
            SourceFiles cut = good;
            cut.find(name)->second.resize(at);
            const DatabaseBuild build = BuildDatabase(cut);
            ASSERT_TRUE(!build.refusals.empty() || build.database.size() % 684u == 0) << name << " " << at;
        }
    }
}

} // namespace
} // namespace orva
