// SPDX-License-Identifier: GPL-3.0-or-later
// What people type into the search, and the substance that they mean, on the files that the tables make.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <random>
#include <sstream>

#include "database/database_build.h"
#include "substance/name_search.h"
#include "substance/substance_choice.h"
#include "substance/synonym_file.h"
#include "support/scripted_dialogs.h"
#include "text/code_page.h"
#include "text/text_file.h"

namespace orva {
namespace {

struct Expected {
    const char* cas;
    const char* inputs; // separated by ";"
};

constexpr Expected inDatabase[] = {
    {"7732-18-5", "Wasser;water;H2O;R718;R-718;Dampf;Wasserdampf;Eis;dest. Wasser;destilliertes "
                  "Wasser;steam;Aqua;WASSER;7732-18-5"},
    {"7789-20-0", "schweres Wasser;D2O;heavy water;Deuteriumoxid"},
    {"64-17-5", "Aethanol;Äthanol;Ethanol;Alkohol;Äthylalkohol;Aethylalkohol;Ethylalkohol;Weingeist;Spiritus;"
                "Sprit;ethyl alcohol;C2H5OH;EtOH;alcohol;64-17-5"},
    {"64-19-7", "Essigsaeure;Essigsäure;Eisessig;Äthansäure;acetic acid;CH3COOH;Essig;Ethansäure"},
    {"124-38-9", "CO2;Kohlendioxid;Kohlendioxyd;Kohlensäure;Kohlensaeure;Kohlenstoffdioxid;carbon "
                 "dioxide;R744;R-744;Trockeneis;dry ice"},
    {"630-08-0", "CO;Kohlenmonoxid;Kohlenoxid;Kohlenstoffmonoxid;carbon monoxide;Kohlenmonoxyd"},
    {"811-97-2", "R134a;R-134a;r134a;R 134 a;HFC-134a;HFKW-134a;Freon "
                 "134a;Norfluran;Tetrafluorethan;1,1,1,2-Tetrafluorethan;1,1,1,2-Tetrafluoräthan"},
    {"7664-41-7", "NH3;Ammoniak;ammonia;R717;R-717;Salmiakgeist"},
    {"74-98-6", "Propan;propane;R290;R-290;C3H8;n-Propan"},
    {"106-97-8", "n-Butan;Butan;butane;R600;R-600"},
    {"75-28-5", "iso-Butan;i-Butan;Isobutan;isobutane;R600a;R-600a;2-Methylpropan;Methylpropan"},
    {"67-64-1", "Aceton;Azeton;acetone;Propanon;2-Propanon;Dimethylketon"},
    {"107-21-1", "Glykol;Glycol;Äthylenglykol;Aethylenglykol;Ethylenglykol;ethylene "
                 "glycol;MEG;1,2-Ethandiol;Ethandiol;Monoethylenglykol;Frostschutzmittel"},
    {"56-81-5", "Glycerin;Glyzerin;Glycerol;1,2,3-Propantriol;Glycerine"},
    {"108-88-3", "Toluol;toluene;Methylbenzol;Toluen"},
    {"71-43-2", "Benzol;benzene;Benzen;C6H6"},
    {"95-47-6", "o-Xylol;ortho-Xylol;o-xylene;1,2-Dimethylbenzol"},
    {"108-38-3", "m-Xylol;meta-Xylol"},
    {"106-42-3", "p-Xylol;para-Xylol;p-Xylen;1,4-Dimethylbenzol"},
    {"56-23-5", "Tetra;Tetrachlorkohlenstoff;CCl4;Tetrachlormethan;carbon tetrachloride;R10"},
    {"67-66-3", "Chloroform;Trichlormethan;CHCl3;R20"},
    {"60-29-7", "Äther;Aether;Ether;Diäthyläther;Diethylether;diethyl ether;Schwefeläther;Diaethylaether"},
    {"7446-09-5", "Schwefeldioxid;Schwefeldioxyd;Schweflige Säure;SO2;sulphur dioxide;sulfur dioxide;R764"},
    {"10024-97-2",
     "Lachgas;N2O;Distickstoffoxid;Stickoxydul;nitrous oxide;Distickstoffmonoxid;Stickstoffoxydul"},
    {"74-90-8", "Blausäure;Blausaeure;HCN;Cyanwasserstoff;hydrogen cyanide"},
    {"78-93-3", "MEK;Methylethylketon;Methyläthylketon;Butanon;2-Butanon"},
    {"1634-04-4", "MTBE"},
    {"637-92-3", "ETBE"},
    {"67-68-5", "DMSO"},
    {"109-99-9", "THF;Tetrahydrofuran"},
    {"68-12-2", "DMF"},
    {"115-10-6", "DME;Dimethyläther;Dimethylether;Dimethylaether"},
    {"108-10-1", "MIBK"},
    {"141-43-5", "MEA;Ethanolamin"},
    {"111-46-6", "DEG;Diglykol"},
    {"112-27-6", "TEG;Triglykol"},
    {"74-82-8", "Methan;CH4;Grubengas;methane;R50;Sumpfgas"},
    {"74-84-0", "Ethan;Äthan;Aethan;ethane;R170;C2H6"},
    {"74-85-1", "Ethen;Ethylen;Äthylen;Aethylen;ethylene;C2H4;R1150"},
    {"115-07-1", "Propen;Propylen;propylene;R1270"},
    {"74-86-2", "Acetylen;Azetylen;Ethin;C2H2;acetylene"},
    {"109-66-0", "Pentan;n-Pentan"},
    {"78-78-4", "i-Pentan;iso-Pentan;Isopentan"},
    {"463-82-1", "Neopentan"},
    {"110-54-3", "Hexan;n-Hexan"},
    {"142-82-5", "Heptan;n-Heptan"},
    {"111-65-9", "Oktan;Octan;n-Oktan"},
    {"540-84-1", "Isooktan;Isooctan;i-Octan"},
    {"124-18-5", "Dekan;n-Dekan;Decan"},
    {"1120-21-4", "Undecan;Undekan"},
    {"112-40-3", "Dodecan;Dodekan"},
    {"544-76-3", "Hexadecan;Hexadekan;Cetan"},
    {"110-82-7", "Cyclohexan;Zyklohexan;Cyklohexan"},
    {"67-56-1", "Methanol;Methylalkohol;Holzgeist;CH3OH;MeOH;CH4O;methyl alcohol"},
    {"67-63-0", "Isopropanol;2-Propanol;i-Propanol;IPA;Isopropylalkohol"},
    {"71-23-8", "n-Propanol;1-Propanol;Propanol"},
    {"71-36-3", "n-Butanol;Butanol;1-Butanol"},
    {"75-65-0", "tert-Butanol;t-Butanol;tert.-Butanol"},
    {"78-92-2", "sek-Butanol;sek.-Butanol"},
    {"7727-37-9", "Stickstoff;N2;nitrogen;R728"},
    {"7782-44-7", "Sauerstoff;O2;oxygen"},
    {"1333-74-0", "Wasserstoff;H2;hydrogen"},
    {"7440-59-7", "Helium;He"},
    {"7440-37-1", "Argon;Ar"},
    {"7782-50-5", "Chlor;Cl2;chlorine"},
    {"7553-56-2", "Jod;Iod;iodine"},
    {"7647-01-0", "Chlorwasserstoff;HCl;Salzsäure"},
    {"7664-39-3", "Fluorwasserstoff;Flußsäure;Flusssäure;HF"},
    {"7783-06-4", "Schwefelwasserstoff;H2S;hydrogen sulfide"},
    {"7439-97-6", "Quecksilber;Hg;mercury"},
    {"10102-43-9", "Stickstoffmonoxid;Stickoxid;NO"},
    {"2551-62-4", "Schwefelhexafluorid;SF6"},
    {"75-15-0", "Schwefelkohlenstoff;CS2"},
    {"7697-37-2", "Salpetersäure;HNO3;Scheidewasser"},
    {"7722-84-1", "Wasserstoffperoxid;Wasserstoffsuperoxid;H2O2"},
    {"75-69-4", "R11;Freon 11;Frigen 11"},
    {"75-71-8", "R12;R-12;Freon 12;Frigen 12;F12"},
    {"75-72-9", "R13"},
    {"75-73-0", "R14"},
    {"75-43-4", "R21"},
    {"75-45-6", "R22;R 22;Freon 22"},
    {"75-46-7", "R23"},
    {"75-10-5", "R32"},
    {"76-15-3", "R115"},
    {"76-16-4", "R116"},
    {"306-83-2", "R123"},
    {"2837-89-0", "R124"},
    {"354-33-6", "R125"},
    {"1717-00-6", "R141b"},
    {"75-68-3", "R142b"},
    {"420-46-2", "R143a"},
    {"75-37-6", "R152a"},
    {"431-89-0", "R227ea"},
    {"690-39-1", "R236fa"},
    {"460-73-1", "R245fa"},
    {"754-12-1", "R1234yf;R-1234yf;HFO-1234yf"},
    {"29118-24-9", "R1234ze(E);R1234ze"},
    {"102687-65-0", "R1233zd"},
    {"115-25-3", "RC318"},
    {"108-95-2", "Phenol;Karbolsäure;Carbolsäure"},
    {"62-53-3", "Anilin"},
    {"91-20-3", "Naphthalin"},
    {"100-42-5", "Styrol;Styren"},
    {"98-82-8", "Kumol;Cumol"},
    {"95-48-7", "o-Kresol;o-Cresol"},
    {"100-41-4", "Ethylbenzol;Äthylbenzol;Aethylbenzol"},
    {"108-90-7", "Chlorbenzol;Monochlorbenzol"},
    {"50-00-0", "Formaldehyd;Formalin;Methanal"},
    {"75-07-0", "Acetaldehyd;Azetaldehyd"},
    {"64-18-6", "Ameisensäure;Ameisensaeure"},
    {"79-10-7", "Acrylsäure;Akrylsäure"},
    {"107-13-1", "Acrylnitril"},
    {"75-05-8", "Acetonitril;Azetonitril"},
    {"141-78-6", "Essigester;Essigäther;Ethylacetat;Äthylazetat;Essigsäureethylester"},
    {"75-01-4", "Vinylchlorid;VC"},
    {"79-01-6", "Tri;Trichlorethylen;Trichloräthylen"},
    {"127-18-4", "Per;Perchloräthylen;Perchlorethylen"},
    {"75-09-2", "Methylenchlorid;Dichlormethan"},
    {"75-21-8", "Äthylenoxid;Ethylenoxyd"},
    {"106-99-0", "Butadien;1,3-Butadien"},
    {"98-01-1", "Furfurol"},
    {"57-55-6", "Propylenglykol"},
    {"75-44-5", "Phosgen;COCl2"},
    {"75-00-3", "Chloräthyl;Ethylchlorid"},
    {"112-80-1", "Ölsäure;Oelsaeure"},
    {"5989-27-5", "Limonen"},
    {"756-13-8", "Novec 649;Novec649"},
    {"107-51-7", "MDM"},
    {"106-98-9", "Buten-1;1-Buten;But-1-en"},
    {"590-18-1", "cis-Buten-2;cis-2-Buten"},
    {"109-67-1", "Penten-1;1-Penten"},
    {"111-87-5", "Oktanol;1-Oktanol;Octanol"},
    {"107-02-8", "Acrolein;Akrolein"},
    {"74-93-1", "Methylmercaptan;Methylmerkaptan"},
    {"7783-61-1", "Siliziumtetrafluorid;Siliciumtetrafluorid;SiF4"},
    {"69-72-7", "Salicylsäure;Salizylsäure;Salicylsaeure"},
    {"142-62-1", "Capronsäure;Kapronsäure"},
    {"120-80-9", "Brenzcatechin;Brenzkatechin"},
    {"460-19-5", "Dicyan;Dizyan;Cyan"},
    {"591-78-6", "2-Hexanon;Hexanon"},
    {"108-94-1", "Cyclohexanon;Zyklohexanon;Anon"},
    {"106-88-7", "Butylenoxid"},
    {"108-20-3", "DIPE;Diisopropyläther"},
    {"121-44-8", "Triäthylamin;Triaethylamin"},
    {"105-58-8", "Diethylcarbonat;Diäthylkarbonat"},
};

// Substances and mixtures that the database lacks: the search says what was meant.
constexpr Expected byNameOnly[] = {
    {"1330-20-7", "Xylol;xylene"},
    {"1319-77-3", "Kresol"},
    {"12125-02-9", "Salmiak;NH4Cl"},
    {"872-50-4", "NMP;N-Methylpyrrolidon"},
    {"10102-44-0", "Stickstoffdioxid;NO2"},
    {"7664-93-9", "Schwefelsäure;H2SO4;Schwefelsaeure"},
    {"1310-73-2", "Natronlauge;Ätznatron;NaOH"},
    {"7647-14-5", "Kochsalz;NaCl"},
    {"497-19-8", "Soda"},
    {"692-49-9", "R1336mzz(Z)"},
    {"144-62-7", "Oxalsäure;Kleesäure"},
    {"8004-13-5", "Dowtherm A"},
    {"77-92-9", "Zitronensäure;Citronensäure"},
    {"50-99-7", "Traubenzucker;Glucose;Glukose"},
    {"57-50-1", "Rohrzucker;Saccharose"},
    {"57-13-6", "Harnstoff"},
    {"58-08-2", "Koffein"},
    {"76-22-2", "Campher;Kampfer"},
    {"57-11-4", "Stearinsäure"},
    {"132259-10-0", "Luft;air"},
    {"8006-14-2", "Erdgas"},
    {"7440-50-8", "Kupfer"},
    {"7704-34-9", "Schwefel;sulfur"},
    {"50-78-2", "Aspirin"},
    {"25321-22-6", "Dichlorbenzol"},
    {"25167-67-3", "Butylen"},
    {"67762-38-3", "Biodiesel;Rapsölmethylester"},
    {"55-63-0", "Nitroglycerin;Nitroglyzerin"},
};

std::vector<std::string> Inputs(const Expected& expected) {
    std::vector<std::string> inputs;
    std::istringstream stream(expected.inputs);
    for (std::string input; std::getline(stream, input, ';');)
        inputs.push_back(input);
    return inputs;
}

class RealSearch : public testing::Test {
protected:
    static void SetUpTestSuite() {
        // Tests run in processes of their own, side by side.
        folder = std::filesystem::path(testing::TempDir())
                 / ("orva-real-search-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(folder);
        build = BuildDatabase(ReadSourceFiles(ORVA_SUBSTANCE_TABLES));
        ASSERT_TRUE(WriteFile(folder / "ORVA.Q05", build.database));
        ASSERT_TRUE(WriteFile(folder / "SYNOM.TXT", build.synonymFile));
    }
    static void TearDownTestSuite() { std::filesystem::remove_all(folder); }

    void SetUp() override {
        ASSERT_TRUE(database.LoadDatabase("ORVA.Q05", folder, false).Good());
        session.substanceCount = build.substances;
    }

    std::string CasOf(const SearchResult& result) const {
        const std::string& cas = database.List().At(result.index).cas;
        return cas.substr(0, cas.find(' '));
    }

    static inline std::filesystem::path folder;
    static inline DatabaseBuild build;
    test::ScriptedDialogs dialogs;
    Database database;
    SessionState session;
    SubstanceChoice window{database, session, dialogs, folder};
};

TEST_F(RealSearch, FindsWhatPeopleType) {
    window.Open();
    int asked = 0;
    for (const Expected& expected : inDatabase) {
        for (const std::string& text : Inputs(expected)) {
            ++asked;
            const SearchResult result = window.FindSubstance(text);
            if (!result.found) {
                ADD_FAILURE() << text << " is not found, meant is " << expected.cas;
                continue;
            }
            EXPECT_EQ(CasOf(result), expected.cas) << text;
        }
    }
    EXPECT_GT(asked, 400);
    for (const Message& message : dialogs.shown)
        ADD_FAILURE() << message.text;
}

TEST_F(RealSearch, SaysWhatWasMeantWhereTheDatabaseHasNoData) {
    window.Open();
    for (const Expected& expected : byNameOnly) {
        for (const std::string& text : Inputs(expected)) {
            dialogs.shown.clear();
            EXPECT_FALSE(window.FindSubstance(text).found) << text;
            ASSERT_EQ(dialogs.shown.size(), 1u) << text;
            EXPECT_NE(dialogs.shown[0].text.find("\n\nCAS-Nr. " + std::string(expected.cas) + "\n"),
                      std::string::npos)
                << text << ": " << dialogs.shown[0].text;
        }
    }
}

TEST_F(RealSearch, WordsTheAbsentSubstance) {
    window.Open();
    window.FindSubstance("Xylol");
    ASSERT_EQ(dialogs.shown.size(), 1u);
    EXPECT_EQ(dialogs.shown[0].title, "  dieser Stoff ist in der Datenbank nicht enthalten  ");
    EXPECT_EQ(dialogs.shown[0].text,
              "Xylol (Isomerengemisch)\nC8H10\n\nCAS-Nr. 1330-20-7\nXylene, mixed isomers");
}

TEST_F(RealSearch, DoesNotFindWhatNobodyKnows) {
    window.Open();
    for (const char* text : {"Gibtesnicht", "Gemisch", "UN 1170", "8006-14-3"}) {
        dialogs.shown.clear();
        EXPECT_FALSE(window.FindSubstance(text).found) << text;
        ASSERT_EQ(dialogs.shown.size(), 1u) << text;
        EXPECT_EQ(dialogs.shown[0].text, "Unter dieser Bezeichnung nichts gefunden.") << text;
    }
}

// Every line of every group by the reading rules of the search: the first group that answers to it must be
// its own. The search itself opens the file each time, so it is asked for one line in a hundred.
TEST_F(RealSearch, LeadsFromEverySynonymToItsOwnGroup) {
    const std::string text = Utf8FromOem(build.synonymFile);
    std::map<std::string, std::string> firstOwner; // key -> CAS number, in the order of the file
    std::vector<std::pair<std::string, std::string>> lines;
    std::string cas;
    int lineOfGroup = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        ASSERT_NE(end, std::string::npos);
        const std::string line = text.substr(at, end - at);
        at = end + 2;
        if (line.empty()) {
            lineOfGroup = 0;
            continue;
        }
        if (lineOfGroup == 0) {
            cas = line;
            EXPECT_TRUE(firstOwner.emplace(line, cas).second) << line;
        } else if (lineOfGroup > 1) {
            firstOwner.emplace(line, cas);
            lines.emplace_back(line, cas);
        }
        ++lineOfGroup;
    }
    EXPECT_GT(lines.size(), 30000u);
    int asked = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto& [line, owner] = lines[i];
        ASSERT_EQ(firstOwner.at(line), owner) << line;
        // A few keys only arise with their hyphens ("deoxy-D-"), so they cannot be typed as they stand.
        if (i % 100 == 0 && SearchKey(NormaliseName(line)) == line) {
            ASSERT_EQ(LookUpSynonym(line, folder, dialogs).cas, owner) << line;
            ++asked;
        }
    }
    EXPECT_GT(asked, 300);
}

// What no person types: codes of registries, and remarks of dealers.
TEST_F(RealSearch, HoldsNoCodesOfRegistries) {
    const std::string text = "\n" + Utf8FromOem(build.synonymFile);
    for (const char* code : {"\nUN1170\r", "\nBRN", "\nEINECS", "\nNSC", "\nHSDB", "\nCASWELL", "\nRCRA",
                             "NATURAL\r", "INHIBITED\r", "6CI", "9CI\r", "\nALPHA.", "MART\r", "IARC\r"})
        EXPECT_EQ(text.find(code), std::string::npos)
            << code << text.substr(std::min(text.find(code), text.size()), 40);
}

} // namespace
} // namespace orva
