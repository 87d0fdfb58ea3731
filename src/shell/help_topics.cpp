// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/help_topics.h"

#include <algorithm>
#include <array>
#include <string>

namespace orva {

namespace {

using enum HelpChapter;

// clang-format off
constexpr HelpTopic topics[] = {
    {100, Start, "index.html", "", "Willkommen", "Welcome", "mnuHilfe mnuHilfe_Index"},
    {110, Start, "first-steps.html", "", "Erste Schritte", "First steps", "Picture1 cmdErstnutzer"},
    {111, Start, "first-steps.html", "database", "Eine Datenbank öffnen", "Open a database", ""},
    {112, Start, "first-steps.html", "substance", "Einen Stoff wählen", "Choose a substance", ""},
    {113, Start, "first-steps.html", "models", "Die Modelle bestätigen", "Confirm the models", ""},
    {114, Start, "first-steps.html", "first-result", "Das erste Ergebnis", "The first result", ""},
    {115, Start, "first-steps.html", "first-diagram", "Das erste Diagramm", "The first diagram", ""},
    {120, Start, "main-window.html", "", "Das Hauptfenster", "The main window", "mdiORVA frmPhantom"},
    {121, Start, "main-window.html", "menu", "Menü", "Menu", "mnuData mnuWindow"},
    {122, Start, "main-window.html", "toolbar", "Symbolleiste", "Toolbar", "toolbar"},
    {123, Start, "main-window.html", "status", "Statuszeile und Ladezustand", "Status bar and what is loaded", "mnuData_Status statusPanel"},
    {124, Start, "main-window.html", "tips", "Tipps", "Tips", "frmTip mnuHilfe_Tip"},
    {125, Start, "main-window.html", "about", "Über das Programm", "About the program", "mnuHilfe_About mnuHilfe_AboutText"},
    {126, Start, "main-window.html", "exit", "Beenden", "Leaving the program", "mnuData_Exit"},
    {130, Start, "help-window.html", "", "Die Hilfe benutzen", "Using the help", "helpWindow"},
    {131, Start, "help-window.html", "search", "Suchen", "Searching", "helpSearch helpResults"},
    {140, Start, "not-yet.html", "", "Was noch nicht enthalten ist", "What is not there yet", "mnu3D mnu3DSub mnuFitting mnuJOBACK mnuData_BatchInput mnuData_BatchEdit mnuData_EditStoffdaten mnuData_EditXY mnuCalc(13)"},
    {150, Start, "projects.html", "", "Projekte und letzte Sitzung", "Projects and the last session", ""},
    {151, Start, "projects.html", "save", "Ein Projekt speichern", "Saving a project", "mnuData_SaveProject toolbar(7)"},
    {152, Start, "projects.html", "load", "Ein Projekt laden", "Loading a project", "frmCmnDlg mnuData_LoadProject toolbar(6)"},
    {153, Start, "projects.html", "last-session", "Die letzte Sitzung", "The last session", "mnuData_LoadLastSession toolbar(4)"},
    {154, Start, "projects.html", "stored", "Was im Projekt steht", "What a project holds", ""},

    {200, Substances, "substance-window.html", "", "Stoffwahl", "Choosing a substance", "frmStoffWahl frmStoffWahl.Hilfe mnuStoff"},
    {201, Substances, "substance-window.html", "list", "Die Stoffliste", "The list of substances", "StoffListe"},
    {202, Substances, "substance-window.html", "name", "Name, Synonym oder CAS-Nummer", "Name, synonym or CAS number", "NameCombo"},
    {203, Substances, "substance-window.html", "number", "Laufende Nummer", "Serial number", "Text1"},
    {204, Substances, "substance-window.html", "spelling", "Schreibregeln der Suche", "Spelling rules of the search", ""},
    {205, Substances, "substance-window.html", "accept", "Den Stoff übernehmen", "Taking the substance", "StoffOK cmdDaten"},
    {210, Substances, "model-window.html", "", "Berechnungsmodelle", "Calculation models", "frmQModell mnuModel"},
    {211, Substances, "model-window.html", "eos", "Zustandsgleichung wählen", "Choosing the equation of state", "EOSHilfe EOSKombi"},
    {212, Substances, "model-window.html", "vapour-pressure", "Dampfdruckgleichung wählen", "Choosing the vapour-pressure equation", "pHilfe pKombi"},
    {213, Substances, "model-window.html", "priority", "Priorität beim Phasengleichgewicht", "Priority in phase equilibrium", "PriorHilfe PriorOpt fraPrior"},
    {214, Substances, "model-window.html", "vaporisation", "Modell der Verdampfungsenthalpie wählen", "Choosing the enthalpy of vaporisation", "HLVHilfe HLVKombi WatsonKombi"},
    {215, Substances, "model-window.html", "heat-capacity", "Wärmekapazität wählen", "Choosing the heat capacity", "cpHilfe cpKombi"},
    {216, Substances, "model-window.html", "liquid-density", "Flüssigkeitsdichte", "Liquid density", "RhoLHilfe"},
    {217, Substances, "model-window.html", "accept", "Annehmen oder abbrechen", "Accepting or cancelling", "OKModell cmdEsc"},
    {220, Substances, "virial-input.html", "", "Virialkoeffizient von Hand", "Virial coefficient by hand", "frmBParInput"},
    {230, Substances, "database.html", "", "Datenbank und Datenquellen", "Database and sources of data", "mnuData_OpenBank"},
    {231, Substances, "database.html", "content", "Was ein Stoff enthält", "What a substance holds", ""},
    {232, Substances, "database.html", "quality", "Herkunft und Güte", "Origin and quality", ""},
    {233, Substances, "database.html", "missing", "Fehlende Daten", "Missing data", ""},

    {300, Equations, "eos-overview.html", "", "Zustandsgleichungen im Vergleich", "Equations of state compared", ""},
    {310, Equations, "eos-cubic.html", "", "Die kubische Zustandsgleichung", "The cubic equation of state", ""},
    {311, Equations, "eos-cubic.html", "roots", "Lösungen für das Volumen", "Solutions for the volume", ""},
    {312, Equations, "eos-cubic.html", "parameters", "Parameter und kritisches Volumen", "Parameters and critical volume", "mnuData_ParameterEOS"},
    {320, Equations, "eos-van-der-waals.html", "", "van der Waals und Berthelot", "van der Waals and Berthelot", ""},
    {330, Equations, "eos-redlich-kwong.html", "", "Redlich/Kwong", "Redlich/Kwong", ""},
    {340, Equations, "eos-soave.html", "", "Soave/Redlich/Kwong", "Soave/Redlich/Kwong", ""},
    {350, Equations, "eos-peng-robinson.html", "", "Peng/Robinson", "Peng/Robinson", ""},
    {360, Equations, "eos-vo-halme.html", "", "Vo/Halme I und II", "Vo/Halme I and II", ""},
    {370, Equations, "eos-virial.html", "", "Virialgleichungen", "Virial equations", ""},
    {371, Equations, "eos-virial.html", "pitzer-curl", "Pitzer/Curl", "Pitzer/Curl", ""},
    {380, Equations, "eos-ideal-gas.html", "", "Ideales Gas", "Ideal gas", ""},

    {400, Correlations, "vapour-pressure.html", "", "Dampfdruckgleichungen", "Vapour-pressure equations", ""},
    {401, Correlations, "vapour-pressure.html", "wagner", "Wagner", "Wagner", ""},
    {402, Correlations, "vapour-pressure.html", "frost-kalkwarf", "Frost/Kalkwarf", "Frost/Kalkwarf", ""},
    {403, Correlations, "vapour-pressure.html", "antoine", "Antoine", "Antoine", ""},
    {404, Correlations, "vapour-pressure.html", "correlated", "Korrelierte Gleichungen", "Correlated equations", ""},
    {405, Correlations, "vapour-pressure.html", "range", "Gültigkeitsbereich und Warnung", "Range of validity and warning", ""},
    {410, Correlations, "vaporisation.html", "", "Verdampfungsenthalpie", "Enthalpy of vaporisation", ""},
    {420, Correlations, "heat-capacity.html", "", "Wärmekapazitäten", "Heat capacity", ""},
    {430, Correlations, "density.html", "", "Dichte von Flüssigkeit und Feststoff", "Density of liquid and solid", ""},
    {440, Correlations, "accuracy.html", "", "Was man erwarten darf", "What to expect", ""},

    {500, Equilibrium, "equilibrium.html", "", "Phasengleichgewicht", "Phase equilibrium", ""},
    {501, Equilibrium, "equilibrium.html", "areas", "Gleiche Flächen", "Equal areas", ""},
    {502, Equilibrium, "equilibrium.html", "phase", "Welche Phase liegt vor?", "Which phase is it?", ""},
    {510, Equilibrium, "priority.html", "", "Priorität: EOS oder Dampfdruckgleichung", "Priority: EOS or vapour-pressure equation", ""},
    {520, Equilibrium, "global-partial.html", "", "Global- und Partialmethode", "Global and partial method", "GlobHilfe"},
    {521, Equilibrium, "global-partial.html", "window", "Das Fenster der Methode", "The window of the method", "frmCalcIn opt_glob GlobalSit"},
    {530, Equilibrium, "benson.html", "", "Benson-Methode und Bezugspunkt", "Benson method and reference point", "BENSON_HELP optPartialBenson"},
    {531, Equilibrium, "benson.html", "reference-point", "Der zweite Bezugspunkt", "The second reference point", "Ref_opt RefInput"},

    {600, Caloric, "caloric.html", "", "Kalorische Funktionen", "Caloric functions", ""},
    {601, Caloric, "caloric.html", "residual", "Residualfunktionen", "Residual functions", ""},
    {602, Caloric, "caloric.html", "derivatives", "Ableitungen und Koeffizienten", "Derivatives and coefficients", ""},
    {610, Caloric, "reference.html", "", "Normierung von h und s", "Normalisation of h and s", "cmdRefHelp cmdReferenzHelp"},
    {611, Caloric, "reference.html", "kinds", "Arten der Normierung", "Kinds of normalisation", "opt_HNull"},
    {612, Caloric, "reference.html", "environment", "Umgebungszustand", "Ambient state", ""},
    {613, Caloric, "reference.html", "window", "Das Fenster der Normierung", "The window of the normalisation", "frmReferenz Command1 toolbar(11)"},
    {620, Caloric, "exergy.html", "", "Exergie", "Exergy", ""},

    {700, Calculations, "calculations.html", "", "Berechnungsarten", "Kinds of calculation", "mnuCalcMain mnuCalc"},
    {701, Calculations, "calculations.html", "states", "Zustände: T, rho; T, p; p, rho", "States: T, rho; T, p; p, rho", "mnuCalc(0) mnuCalc(1) mnuCalc(2) mnuCalc(3)"},
    {702, Calculations, "calculations.html", "assume", "Die Frage nach dem Gleichgewicht", "The question on equilibrium", ""},
    {703, Calculations, "calculations.html", "equilibrium", "Gleichgewicht aus T oder p", "Equilibrium from T or p", "mnuCalc(5) mnuCalc(6)"},
    {704, Calculations, "calculations.html", "vaporisation", "Verdampfungsenthalpie rechnen", "Calculating the enthalpy of vaporisation", "mnuCalc(8) mnuCalc(9)"},
    {705, Calculations, "calculations.html", "functions", "Thermodynamische Funktionen", "Thermodynamic functions", "mnuCalc(11)"},
    {706, Calculations, "calculations.html", "virial", "Vergleich der Virialkoeffizienten", "Virial coefficients compared", "mnuCalc(18)"},
    {707, Calculations, "calculations.html", "database", "Datenbankfunktionen", "Database functions", "mnuCalc(20) mnuCalc_sub_database mnuCalc_sub_sub_database"},
    {710, Calculations, "point-input.html", "", "Eingabe eines Punktes", "Input of a point", "frmParinput"},
    {711, Calculations, "point-input.html", "density", "Dichte oder Volumen", "Density or volume", "optRhoV"},
    {720, Calculations, "result-window.html", "", "Das Ergebnisfenster", "The result window", "frmCalcOut"},
    {721, Calculations, "result-window.html", "labels", "Kopfzeilen", "Head lines", "par1 par2 co1 co2 fraBatchVorgabe"},
    {722, Calculations, "result-window.html", "extended", "Erweiterte Ausgabe", "Extended output", "fraCalcErweitert chkUHS ResPlus"},
    {723, Calculations, "result-window.html", "buttons", "Protokoll und Schaltflächen", "Protocol and buttons", "cmdVor cmdRueck cmdCalc_OK cmdShowManuInput"},
    {724, Calculations, "result-window.html", "list", "Ergebnisliste", "Result list", "fraResultOutput optResultPrint chkFuncPrint"},
    {725, Calculations, "result-window.html", "status", "Statuszeile", "Status line", "statusZeile"},
    {730, Calculations, "report.html", "", "Der Bericht Zeile für Zeile", "The report line by line", "Liste"},
    {731, Calculations, "report.html", "mixture", "Zwei Phasen zugleich", "Two phases at once", ""},
    {732, Calculations, "report.html", "functions", "Die Funktionsliste", "The list of functions", ""},
    {733, Calculations, "report.html", "vaporisation", "Bericht der Verdampfungsenthalpie", "Report of the enthalpy of vaporisation", ""},
    {734, Calculations, "report.html", "coefficients", "Koeffizienten und Residualfunktionen", "Coefficients and residual functions", ""},
    {735, Calculations, "report.html", "derivatives", "Ableitungen nach T, p, v", "Derivatives by T, p, v", ""},
    {736, Calculations, "report.html", "parameters", "Parameter der Gleichung", "Parameters of the equation", ""},
    {740, Calculations, "vessel.html", "", "Behälter", "Vessel", "mnuCalc(15) mnuCalc(16) toolbar(15)"},
    {741, Calculations, "vessel.html", "input", "Eingabe des Behälters", "Input of the vessel", "optm_n"},
    {742, Calculations, "vessel.html", "picture", "Das Bild des Behälters", "The picture of the vessel", "frmKessel"},
    {743, Calculations, "vessel.html", "full", "Wenn der Behälter voll ist", "When the vessel is full", ""},
    {750, Calculations, "inversion.html", "", "Iso-Rechner", "Function inversion", "frmIsoCalc cmdIsoHelp cmdIsoCalc"},
    {751, Calculations, "inversion.html", "example", "Ein Beispiel: Verdichtung", "An example: compression", ""},
    {752, Calculations, "inversion.html", "fails", "„keine Lösung“", "“keine Lösung” (no solution)", "txtTpCalc"},
    {760, Calculations, "diagnosis.html", "", "Diagnose der kubischen Gleichung", "Diagnosis of the cubic equation", "frmCEOSDiagnose cmdCEOSDiagnose"},
    {761, Calculations, "diagnosis.html", "areas", "Die beiden Flächen", "The two areas", ""},
    {770, Calculations, "protocol.html", "", "Das Protokoll", "The protocol", "fraProtokoll cmbSep cmdProtokoll cmdOpenNew lblProtText2"},
    {771, Calculations, "protocol.html", "columns", "Spalten des Protokolls", "Columns of the protocol", ""},
    {772, Calculations, "protocol.html", "recovery", "Nach einem Absturz", "After a crash", ""},
    {780, Calculations, "options.html", "", "Optionen und Einheiten", "Options and units", "frmOptions mnuOptions"},
    {781, Calculations, "options.html", "units", "Molare, spezifische, reduzierte Größen", "Molar, specific, reduced quantities", "optMolarSpez chkReduziert"},
    {782, Calculations, "options.html", "mode", "Direkt- und Stapel-Berechnung", "Direct and batch calculation", "OptCalcMode"},
    {783, Calculations, "options.html", "real-range", "Physikalisch realer Bereich", "Physically real range", "cmdRealBreichHelp chkCurveTpRestricted"},
    {784, Calculations, "options.html", "diagram", "Weitere Diagramm-Optionen", "Other options of diagrams", "chkSKurveOhneKonnode chkPartialKurve Slider1_punktdichte"},

    {800, Diagrams, "diagrams.html", "", "2D-Diagramme", "2D diagrams", "mnu2D mnuGraf"},
    {801, Diagrams, "diagrams.html", "isotherm", "Isotherme p - v", "Isotherm p - v", "mnuGraf_sub_cut(1)"},
    {802, Diagrams, "diagrams.html", "sections", "Schnitte isotherm, isobar, isochor", "Sections at constant T, p, v", "mnuGraf(0) mnuGraf_sub_cut"},
    {803, Diagrams, "diagrams.html", "functions", "Funktionen über T, p, v", "Functions over T, p, v", "mnuGraf(1) mnuGraf(2) mnuGraf(3) mnuGraf(4) mnuGraf(5) mnuGraf_sub_FuT mnuGraf_sub_Fup mnuGraf_sub_FuV mnuGraf_sub_res_FuT mnuGraf_sub_res_Fup"},
    {804, Diagrams, "diagrams.html", "pairs", "Mollier-Diagramm und Exergie", "Mollier diagram and exergy", "mnuGraf(6) mnuGraf(7) mnuGraf(8) mnuGraf_sub_HS mnuGraf_sub_ES mnuGraf_sub_EH"},
    {805, Diagrams, "diagrams.html", "projections", "Projektionen", "Projections", "mnuGraf(9) mnuGraf_sub_proj"},
    {806, Diagrams, "diagrams.html", "database", "Diagramme der Datenbankfunktionen", "Diagrams of the database functions", "mnuGraf(10) mnuGraf_sub_database mnuGraf_sub_sub_database"},
    {810, Diagrams, "diagram-window.html", "", "Das Diagrammfenster", "The diagram window", "frmGraph2D cmdGraphHelp cmdTypeHelp"},
    {811, Diagrams, "diagram-window.html", "mouse", "Maus und Lupe", "Mouse and magnifier", "chart"},
    {812, Diagrams, "diagram-window.html", "coordinates", "Koordinatenfenster", "Coordinate window", "frmCoord"},
    {813, Diagrams, "diagram-window.html", "output", "Speichern, Kopieren, Drucken", "Saving, copying, printing", ""},
    {814, Diagrams, "diagram-window.html", "keys", "Tasten", "Keys", ""},
    {820, Diagrams, "value-input.html", "", "Werteingabe für Kurven", "Input of a value for a curve", "frmTpVSInputBox"},
    {821, Diagrams, "value-input.html", "limits", "Eingabe mit Grenzen", "Input with limits", "frmInputProzessLinien"},
    {830, Diagrams, "diagram-marks.html", "", "Konnode, S-Kurve und Marken", "Tie line, S-curve and marks", ""},
    {831, Diagrams, "diagram-marks.html", "coexistence", "Koexistenz- und Inversionskurve", "Coexistence and inversion curve", ""},

    {900, Automation, "command-line.html", "", "Die Kommandozeile", "The command line", ""},
    {901, Automation, "command-line.html", "points", "Punkte", "Points", ""},
    {902, Automation, "command-line.html", "vessel", "Behälter und Umkehrung", "Vessel and inversion", ""},
    {903, Automation, "command-line.html", "curves", "Kurven und Bilder", "Curves and images", ""},
    {904, Automation, "command-line.html", "run", "Viele Anfragen", "Many requests", ""},
    {910, Automation, "files.html", "", "Dateien und Formate", "Files and formats", "fileDialog"},

    {950, Reference, "messages.html", "", "Meldungen und was zu tun ist", "Messages and what to do", "messageBox questionBox inputDialog"},
    {960, Reference, "glossary.html", "", "Begriffe", "Terms", ""},
    {970, Reference, "symbols.html", "", "Formelzeichen und Einheiten", "Symbols and units", ""},
    {980, Reference, "literature.html", "", "Literatur", "Literature", ""},
};
// clang-format on

struct ChapterTitles {
    std::string_view german, english;
};

constexpr std::array<ChapterTitles, 10> chapterTitles = {{
    {"Einstieg", "Getting started"},
    {"Stoff und Modelle", "Substance and models"},
    {"Zustandsgleichungen", "Equations of state"},
    {"Stoffgleichungen", "Correlations"},
    {"Phasengleichgewicht", "Phase equilibrium"},
    {"Kalorische Größen", "Caloric quantities"},
    {"Berechnungen", "Calculations"},
    {"Diagramme", "Diagrams"},
    {"Skripte und Dateien", "Scripts and files"},
    {"Nachschlagen", "Reference"},
}};

bool IsNamed(std::string_view names, std::string_view name) {
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(' '), names.size());
        if (names.substr(0, end) == name)
            return true;
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return false;
}

const HelpTopic* TopicOpenedBy(std::string_view name) {
    const auto row =
        std::ranges::find_if(topics, [name](const HelpTopic& topic) { return IsNamed(topic.openers, name); });
    return name.empty() || row == std::end(topics) ? nullptr : &*row;
}

} // namespace

std::span<const HelpTopic> HelpTopics() {
    return topics;
}

const HelpTopic& HelpIndexTopic() {
    return topics[0];
}

const HelpTopic* FindHelpTopic(int number) {
    const auto row = std::ranges::find(topics, number, &HelpTopic::number);
    return row == std::end(topics) ? nullptr : &*row;
}

const HelpTopic* FindHelpTopic(std::string_view page, std::string_view anchor) {
    const HelpTopic* found = nullptr;
    for (const HelpTopic& topic : topics) {
        if (topic.page != page)
            continue;
        if (topic.anchor == anchor)
            return &topic;
        if (topic.anchor.empty())
            found = &topic;
    }
    return found;
}

const HelpTopic* HelpTopicOf(std::string_view window, std::string_view control) {
    if (control.empty())
        return TopicOpenedBy(window);
    const std::string_view array = control.substr(0, control.find('('));
    for (const std::string_view name : {control, array}) {
        if (const HelpTopic* topic = TopicOpenedBy(std::string(window).append(".").append(name)))
            return topic;
        if (const HelpTopic* topic = TopicOpenedBy(name))
            return topic;
    }
    return nullptr;
}

std::string_view TitleOf(const HelpTopic& topic, HelpLanguage language) {
    return language == HelpLanguage::German ? topic.titleGerman : topic.titleEnglish;
}

std::string_view TitleOf(HelpChapter chapter, HelpLanguage language) {
    const ChapterTitles& titles = chapterTitles.at(static_cast<std::size_t>(chapter));
    return language == HelpLanguage::German ? titles.german : titles.english;
}

std::string_view HelpFolderOf(HelpLanguage language) {
    return language == HelpLanguage::German ? "de" : "en";
}

} // namespace orva
