// SPDX-License-Identifier: GPL-3.0-or-later
// What people type into the search, and the substance that they mean, on the files that the tables make.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

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
    const char* text;
    const char* cas;
};

constexpr Expected inDatabase[] = {
    {"Wasser", "7732-18-5"},
    {"water", "7732-18-5"},
    {"H2O", "7732-18-5"},
    {"R718", "7732-18-5"},
    {"R-718", "7732-18-5"},
    {"Dampf", "7732-18-5"},
    {"Wasserdampf", "7732-18-5"},
    {"Eis", "7732-18-5"},
    {"dest. Wasser", "7732-18-5"},
    {"destilliertes Wasser", "7732-18-5"},
    {"steam", "7732-18-5"},
    {"Aqua", "7732-18-5"},
    {"WASSER", "7732-18-5"},
    {"7732-18-5", "7732-18-5"},
    {"schweres Wasser", "7789-20-0"},
    {"D2O", "7789-20-0"},
    {"heavy water", "7789-20-0"},
    {"Deuteriumoxid", "7789-20-0"},
    {"Aethanol", "64-17-5"},
    {"Äthanol", "64-17-5"},
    {"Ethanol", "64-17-5"},
    {"Alkohol", "64-17-5"},
    {"Äthylalkohol", "64-17-5"},
    {"Aethylalkohol", "64-17-5"},
    {"Ethylalkohol", "64-17-5"},
    {"Weingeist", "64-17-5"},
    {"Spiritus", "64-17-5"},
    {"Sprit", "64-17-5"},
    {"ethyl alcohol", "64-17-5"},
    {"C2H5OH", "64-17-5"},
    {"EtOH", "64-17-5"},
    {"alcohol", "64-17-5"},
    {"64-17-5", "64-17-5"},
    {"Essigsaeure", "64-19-7"},
    {"Essigsäure", "64-19-7"},
    {"Eisessig", "64-19-7"},
    {"Äthansäure", "64-19-7"},
    {"acetic acid", "64-19-7"},
    {"CH3COOH", "64-19-7"},
    {"Essig", "64-19-7"},
    {"Ethansäure", "64-19-7"},
    {"CO2", "124-38-9"},
    {"Kohlendioxid", "124-38-9"},
    {"Kohlendioxyd", "124-38-9"},
    {"Kohlensäure", "124-38-9"},
    {"Kohlensaeure", "124-38-9"},
    {"Kohlenstoffdioxid", "124-38-9"},
    {"carbon dioxide", "124-38-9"},
    {"R744", "124-38-9"},
    {"R-744", "124-38-9"},
    {"Trockeneis", "124-38-9"},
    {"dry ice", "124-38-9"},
    {"CO", "630-08-0"},
    {"Kohlenmonoxid", "630-08-0"},
    {"Kohlenoxid", "630-08-0"},
    {"Kohlenstoffmonoxid", "630-08-0"},
    {"carbon monoxide", "630-08-0"},
    {"Kohlenmonoxyd", "630-08-0"},
    {"R134a", "811-97-2"},
    {"R-134a", "811-97-2"},
    {"r134a", "811-97-2"},
    {"R 134 a", "811-97-2"},
    {"HFC-134a", "811-97-2"},
    {"HFKW-134a", "811-97-2"},
    {"Freon 134a", "811-97-2"},
    {"Norfluran", "811-97-2"},
    {"Tetrafluorethan", "811-97-2"},
    {"1,1,1,2-Tetrafluorethan", "811-97-2"},
    {"1,1,1,2-Tetrafluoräthan", "811-97-2"},
    {"NH3", "7664-41-7"},
    {"Ammoniak", "7664-41-7"},
    {"ammonia", "7664-41-7"},
    {"R717", "7664-41-7"},
    {"R-717", "7664-41-7"},
    {"Salmiakgeist", "7664-41-7"},
    {"Propan", "74-98-6"},
    {"propane", "74-98-6"},
    {"R290", "74-98-6"},
    {"R-290", "74-98-6"},
    {"C3H8", "74-98-6"},
    {"n-Propan", "74-98-6"},
    {"n-Butan", "106-97-8"},
    {"Butan", "106-97-8"},
    {"butane", "106-97-8"},
    {"R600", "106-97-8"},
    {"R-600", "106-97-8"},
    {"iso-Butan", "75-28-5"},
    {"i-Butan", "75-28-5"},
    {"Isobutan", "75-28-5"},
    {"isobutane", "75-28-5"},
    {"R600a", "75-28-5"},
    {"R-600a", "75-28-5"},
    {"2-Methylpropan", "75-28-5"},
    {"Methylpropan", "75-28-5"},
    {"Aceton", "67-64-1"},
    {"Azeton", "67-64-1"},
    {"acetone", "67-64-1"},
    {"Propanon", "67-64-1"},
    {"2-Propanon", "67-64-1"},
    {"Dimethylketon", "67-64-1"},
    {"Glykol", "107-21-1"},
    {"Glycol", "107-21-1"},
    {"Äthylenglykol", "107-21-1"},
    {"Aethylenglykol", "107-21-1"},
    {"Ethylenglykol", "107-21-1"},
    {"ethylene glycol", "107-21-1"},
    {"MEG", "107-21-1"},
    {"1,2-Ethandiol", "107-21-1"},
    {"Ethandiol", "107-21-1"},
    {"Monoethylenglykol", "107-21-1"},
    {"Frostschutzmittel", "107-21-1"},
    {"Glycerin", "56-81-5"},
    {"Glyzerin", "56-81-5"},
    {"Glycerol", "56-81-5"},
    {"1,2,3-Propantriol", "56-81-5"},
    {"Glycerine", "56-81-5"},
    {"Toluol", "108-88-3"},
    {"toluene", "108-88-3"},
    {"Methylbenzol", "108-88-3"},
    {"Toluen", "108-88-3"},
    {"Benzol", "71-43-2"},
    {"benzene", "71-43-2"},
    {"Benzen", "71-43-2"},
    {"C6H6", "71-43-2"},
    {"o-Xylol", "95-47-6"},
    {"ortho-Xylol", "95-47-6"},
    {"o-xylene", "95-47-6"},
    {"1,2-Dimethylbenzol", "95-47-6"},
    {"m-Xylol", "108-38-3"},
    {"meta-Xylol", "108-38-3"},
    {"p-Xylol", "106-42-3"},
    {"para-Xylol", "106-42-3"},
    {"p-Xylen", "106-42-3"},
    {"1,4-Dimethylbenzol", "106-42-3"},
    {"Tetra", "56-23-5"},
    {"Tetrachlorkohlenstoff", "56-23-5"},
    {"CCl4", "56-23-5"},
    {"Tetrachlormethan", "56-23-5"},
    {"carbon tetrachloride", "56-23-5"},
    {"R10", "56-23-5"},
    {"Chloroform", "67-66-3"},
    {"Trichlormethan", "67-66-3"},
    {"CHCl3", "67-66-3"},
    {"R20", "67-66-3"},
    {"Äther", "60-29-7"},
    {"Aether", "60-29-7"},
    {"Ether", "60-29-7"},
    {"Diäthyläther", "60-29-7"},
    {"Diethylether", "60-29-7"},
    {"diethyl ether", "60-29-7"},
    {"Schwefeläther", "60-29-7"},
    {"Diaethylaether", "60-29-7"},
    {"Schwefeldioxid", "7446-09-5"},
    {"Schwefeldioxyd", "7446-09-5"},
    {"Schweflige Säure", "7446-09-5"},
    {"SO2", "7446-09-5"},
    {"sulphur dioxide", "7446-09-5"},
    {"sulfur dioxide", "7446-09-5"},
    {"R764", "7446-09-5"},
    {"Lachgas", "10024-97-2"},
    {"N2O", "10024-97-2"},
    {"Distickstoffoxid", "10024-97-2"},
    {"Stickoxydul", "10024-97-2"},
    {"nitrous oxide", "10024-97-2"},
    {"Distickstoffmonoxid", "10024-97-2"},
    {"Stickstoffoxydul", "10024-97-2"},
    {"Blausäure", "74-90-8"},
    {"Blausaeure", "74-90-8"},
    {"HCN", "74-90-8"},
    {"Cyanwasserstoff", "74-90-8"},
    {"hydrogen cyanide", "74-90-8"},
    {"MEK", "78-93-3"},
    {"Methylethylketon", "78-93-3"},
    {"Methyläthylketon", "78-93-3"},
    {"Butanon", "78-93-3"},
    {"2-Butanon", "78-93-3"},
    {"MTBE", "1634-04-4"},
    {"ETBE", "637-92-3"},
    {"DMSO", "67-68-5"},
    {"THF", "109-99-9"},
    {"Tetrahydrofuran", "109-99-9"},
    {"DMF", "68-12-2"},
    {"DME", "115-10-6"},
    {"Dimethyläther", "115-10-6"},
    {"Dimethylether", "115-10-6"},
    {"Dimethylaether", "115-10-6"},
    {"MIBK", "108-10-1"},
    {"MEA", "141-43-5"},
    {"Ethanolamin", "141-43-5"},
    {"DEG", "111-46-6"},
    {"Diglykol", "111-46-6"},
    {"TEG", "112-27-6"},
    {"Triglykol", "112-27-6"},
    {"Methan", "74-82-8"},
    {"CH4", "74-82-8"},
    {"Grubengas", "74-82-8"},
    {"methane", "74-82-8"},
    {"R50", "74-82-8"},
    {"Sumpfgas", "74-82-8"},
    {"Ethan", "74-84-0"},
    {"Äthan", "74-84-0"},
    {"Aethan", "74-84-0"},
    {"ethane", "74-84-0"},
    {"R170", "74-84-0"},
    {"C2H6", "74-84-0"},
    {"Ethen", "74-85-1"},
    {"Ethylen", "74-85-1"},
    {"Äthylen", "74-85-1"},
    {"Aethylen", "74-85-1"},
    {"ethylene", "74-85-1"},
    {"C2H4", "74-85-1"},
    {"R1150", "74-85-1"},
    {"Propen", "115-07-1"},
    {"Propylen", "115-07-1"},
    {"propylene", "115-07-1"},
    {"R1270", "115-07-1"},
    {"Acetylen", "74-86-2"},
    {"Azetylen", "74-86-2"},
    {"Ethin", "74-86-2"},
    {"C2H2", "74-86-2"},
    {"acetylene", "74-86-2"},
    {"Pentan", "109-66-0"},
    {"n-Pentan", "109-66-0"},
    {"i-Pentan", "78-78-4"},
    {"iso-Pentan", "78-78-4"},
    {"Isopentan", "78-78-4"},
    {"Neopentan", "463-82-1"},
    {"Hexan", "110-54-3"},
    {"n-Hexan", "110-54-3"},
    {"Heptan", "142-82-5"},
    {"n-Heptan", "142-82-5"},
    {"Oktan", "111-65-9"},
    {"Octan", "111-65-9"},
    {"n-Oktan", "111-65-9"},
    {"Isooktan", "540-84-1"},
    {"Isooctan", "540-84-1"},
    {"i-Octan", "540-84-1"},
    {"Dekan", "124-18-5"},
    {"n-Dekan", "124-18-5"},
    {"Decan", "124-18-5"},
    {"Undecan", "1120-21-4"},
    {"Undekan", "1120-21-4"},
    {"Dodecan", "112-40-3"},
    {"Dodekan", "112-40-3"},
    {"Hexadecan", "544-76-3"},
    {"Hexadekan", "544-76-3"},
    {"Cetan", "544-76-3"},
    {"Cyclohexan", "110-82-7"},
    {"Zyklohexan", "110-82-7"},
    {"Cyklohexan", "110-82-7"},
    {"Methanol", "67-56-1"},
    {"Methylalkohol", "67-56-1"},
    {"Holzgeist", "67-56-1"},
    {"CH3OH", "67-56-1"},
    {"MeOH", "67-56-1"},
    {"CH4O", "67-56-1"},
    {"methyl alcohol", "67-56-1"},
    {"Isopropanol", "67-63-0"},
    {"2-Propanol", "67-63-0"},
    {"i-Propanol", "67-63-0"},
    {"IPA", "67-63-0"},
    {"Isopropylalkohol", "67-63-0"},
    {"n-Propanol", "71-23-8"},
    {"1-Propanol", "71-23-8"},
    {"Propanol", "71-23-8"},
    {"n-Butanol", "71-36-3"},
    {"Butanol", "71-36-3"},
    {"1-Butanol", "71-36-3"},
    {"tert-Butanol", "75-65-0"},
    {"t-Butanol", "75-65-0"},
    {"tert.-Butanol", "75-65-0"},
    {"sek-Butanol", "78-92-2"},
    {"sek.-Butanol", "78-92-2"},
    {"Stickstoff", "7727-37-9"},
    {"N2", "7727-37-9"},
    {"nitrogen", "7727-37-9"},
    {"R728", "7727-37-9"},
    {"Sauerstoff", "7782-44-7"},
    {"O2", "7782-44-7"},
    {"oxygen", "7782-44-7"},
    {"Wasserstoff", "1333-74-0"},
    {"H2", "1333-74-0"},
    {"hydrogen", "1333-74-0"},
    {"Helium", "7440-59-7"},
    {"He", "7440-59-7"},
    {"Argon", "7440-37-1"},
    {"Ar", "7440-37-1"},
    {"Chlor", "7782-50-5"},
    {"Cl2", "7782-50-5"},
    {"chlorine", "7782-50-5"},
    {"Jod", "7553-56-2"},
    {"Iod", "7553-56-2"},
    {"iodine", "7553-56-2"},
    {"Chlorwasserstoff", "7647-01-0"},
    {"HCl", "7647-01-0"},
    {"Salzsäure", "7647-01-0"},
    {"Fluorwasserstoff", "7664-39-3"},
    {"Flußsäure", "7664-39-3"},
    {"Flusssäure", "7664-39-3"},
    {"HF", "7664-39-3"},
    {"Schwefelwasserstoff", "7783-06-4"},
    {"H2S", "7783-06-4"},
    {"hydrogen sulfide", "7783-06-4"},
    {"Quecksilber", "7439-97-6"},
    {"Hg", "7439-97-6"},
    {"mercury", "7439-97-6"},
    {"Stickstoffmonoxid", "10102-43-9"},
    {"Stickoxid", "10102-43-9"},
    {"NO", "10102-43-9"},
    {"Schwefelhexafluorid", "2551-62-4"},
    {"SF6", "2551-62-4"},
    {"Schwefelkohlenstoff", "75-15-0"},
    {"CS2", "75-15-0"},
    {"Salpetersäure", "7697-37-2"},
    {"HNO3", "7697-37-2"},
    {"Scheidewasser", "7697-37-2"},
    {"Wasserstoffperoxid", "7722-84-1"},
    {"Wasserstoffsuperoxid", "7722-84-1"},
    {"H2O2", "7722-84-1"},
    {"R11", "75-69-4"},
    {"Freon 11", "75-69-4"},
    {"Frigen 11", "75-69-4"},
    {"R12", "75-71-8"},
    {"R-12", "75-71-8"},
    {"Freon 12", "75-71-8"},
    {"Frigen 12", "75-71-8"},
    {"F12", "75-71-8"},
    {"R13", "75-72-9"},
    {"R14", "75-73-0"},
    {"R21", "75-43-4"},
    {"R22", "75-45-6"},
    {"R 22", "75-45-6"},
    {"Freon 22", "75-45-6"},
    {"R23", "75-46-7"},
    {"R32", "75-10-5"},
    {"R115", "76-15-3"},
    {"R116", "76-16-4"},
    {"R123", "306-83-2"},
    {"R124", "2837-89-0"},
    {"R125", "354-33-6"},
    {"R141b", "1717-00-6"},
    {"R142b", "75-68-3"},
    {"R143a", "420-46-2"},
    {"R152a", "75-37-6"},
    {"R227ea", "431-89-0"},
    {"R236fa", "690-39-1"},
    {"R245fa", "460-73-1"},
    {"R1234yf", "754-12-1"},
    {"R-1234yf", "754-12-1"},
    {"HFO-1234yf", "754-12-1"},
    {"R1234ze(E)", "29118-24-9"},
    {"R1234ze", "29118-24-9"},
    {"R1233zd", "102687-65-0"},
    {"RC318", "115-25-3"},
    {"Phenol", "108-95-2"},
    {"Karbolsäure", "108-95-2"},
    {"Carbolsäure", "108-95-2"},
    {"Anilin", "62-53-3"},
    {"Naphthalin", "91-20-3"},
    {"Styrol", "100-42-5"},
    {"Styren", "100-42-5"},
    {"Kumol", "98-82-8"},
    {"Cumol", "98-82-8"},
    {"o-Kresol", "95-48-7"},
    {"o-Cresol", "95-48-7"},
    {"Ethylbenzol", "100-41-4"},
    {"Äthylbenzol", "100-41-4"},
    {"Aethylbenzol", "100-41-4"},
    {"Chlorbenzol", "108-90-7"},
    {"Monochlorbenzol", "108-90-7"},
    {"Formaldehyd", "50-00-0"},
    {"Formalin", "50-00-0"},
    {"Methanal", "50-00-0"},
    {"Acetaldehyd", "75-07-0"},
    {"Azetaldehyd", "75-07-0"},
    {"Ameisensäure", "64-18-6"},
    {"Ameisensaeure", "64-18-6"},
    {"Acrylsäure", "79-10-7"},
    {"Akrylsäure", "79-10-7"},
    {"Acrylnitril", "107-13-1"},
    {"Acetonitril", "75-05-8"},
    {"Azetonitril", "75-05-8"},
    {"Essigester", "141-78-6"},
    {"Essigäther", "141-78-6"},
    {"Ethylacetat", "141-78-6"},
    {"Äthylazetat", "141-78-6"},
    {"Essigsäureethylester", "141-78-6"},
    {"Vinylchlorid", "75-01-4"},
    {"VC", "75-01-4"},
    {"Tri", "79-01-6"},
    {"Trichlorethylen", "79-01-6"},
    {"Trichloräthylen", "79-01-6"},
    {"Per", "127-18-4"},
    {"Perchloräthylen", "127-18-4"},
    {"Perchlorethylen", "127-18-4"},
    {"Methylenchlorid", "75-09-2"},
    {"Dichlormethan", "75-09-2"},
    {"Äthylenoxid", "75-21-8"},
    {"Ethylenoxyd", "75-21-8"},
    {"Butadien", "106-99-0"},
    {"1,3-Butadien", "106-99-0"},
    {"Furfurol", "98-01-1"},
    {"Propylenglykol", "57-55-6"},
    {"Phosgen", "75-44-5"},
    {"COCl2", "75-44-5"},
    {"Chloräthyl", "75-00-3"},
    {"Ethylchlorid", "75-00-3"},
    {"Ölsäure", "112-80-1"},
    {"Oelsaeure", "112-80-1"},
    {"Limonen", "5989-27-5"},
    {"Novec 649", "756-13-8"},
    {"Novec649", "756-13-8"},
    {"MDM", "107-51-7"},
};

// Substances and mixtures that the database lacks: the search says what was meant.
constexpr Expected byNameOnly[] = {
    {"Xylol", "1330-20-7"},
    {"xylene", "1330-20-7"},
    {"Kresol", "1319-77-3"},
    {"Salmiak", "12125-02-9"},
    {"NH4Cl", "12125-02-9"},
    {"NMP", "872-50-4"},
    {"N-Methylpyrrolidon", "872-50-4"},
    {"Stickstoffdioxid", "10102-44-0"},
    {"NO2", "10102-44-0"},
    {"Schwefelsäure", "7664-93-9"},
    {"H2SO4", "7664-93-9"},
    {"Schwefelsaeure", "7664-93-9"},
    {"Natronlauge", "1310-73-2"},
    {"Ätznatron", "1310-73-2"},
    {"NaOH", "1310-73-2"},
    {"Kochsalz", "7647-14-5"},
    {"NaCl", "7647-14-5"},
    {"Soda", "497-19-8"},
    {"R1336mzz(Z)", "692-49-9"},
    {"Oxalsäure", "144-62-7"},
    {"Kleesäure", "144-62-7"},
    {"Dowtherm A", "8004-13-5"},
    {"Zitronensäure", "77-92-9"},
    {"Citronensäure", "77-92-9"},
    {"Traubenzucker", "50-99-7"},
    {"Glucose", "50-99-7"},
    {"Glukose", "50-99-7"},
    {"Rohrzucker", "57-50-1"},
    {"Saccharose", "57-50-1"},
    {"Harnstoff", "57-13-6"},
    {"Koffein", "58-08-2"},
    {"Campher", "76-22-2"},
    {"Kampfer", "76-22-2"},
    {"Stearinsäure", "57-11-4"},
    {"Luft", "132259-10-0"},
    {"air", "132259-10-0"},
    {"Erdgas", "8006-14-2"},
    {"Kupfer", "7440-50-8"},
    {"Schwefel", "7704-34-9"},
    {"sulfur", "7704-34-9"},
    {"Aspirin", "50-78-2"},
};

class RealSearch : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = std::filesystem::path(testing::TempDir()) / "orva-real-search";
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
    for (const auto& [text, cas] : inDatabase) {
        const SearchResult result = window.FindSubstance(text);
        if (!result.found) {
            ADD_FAILURE() << text << " is not found, meant is " << cas;
            continue;
        }
        EXPECT_EQ(CasOf(result), cas) << text;
    }
    for (const Message& message : dialogs.shown)
        ADD_FAILURE() << message.text;
}

TEST_F(RealSearch, SaysWhatWasMeantWhereTheDatabaseHasNoData) {
    window.Open();
    for (const auto& [text, cas] : byNameOnly) {
        dialogs.shown.clear();
        EXPECT_FALSE(window.FindSubstance(text).found) << text;
        ASSERT_EQ(dialogs.shown.size(), 1u) << text;
        EXPECT_NE(dialogs.shown[0].text.find("\n\nCAS-Nr. " + std::string(cas) + "\n"), std::string::npos)
            << text << ": " << dialogs.shown[0].text;
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
