// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/status_texts.h"

#include "state/constants.h"
#include "text/columns.h"

namespace orva {

namespace {

std::string DatabaseText(const SessionState& state) {
    if (state.databaseFile.empty())
        return "... noch keine Datenbank\n";
    return "... Datenbank " + state.databaseFile + "\n    mit " + std::to_string(state.substanceCount)
           + " Stoff(en)\n\n";
}

std::string SubstanceText(const Session& session) {
    const SessionState& state = session.state;
    if (state.substanceIndex == 0)
        return " ... noch kein Stoff\n";
    const SubstanceData& substance = session.model.substance;
    return "... Stoff: " + std::string(TrimRight(substance.formula)) + ", "
           + std::string(TrimRight(substance.cas)) + ", " + substance.name + " (#"
           + std::to_string(state.substanceIndex) + ")\n";
}

// Name of the substance of the data series, if the database has it.
std::string BatchSubstanceText(const Session& session) {
    for (const SubstanceListEntry& entry : session.List().entries)
        if (!TrimRight(entry.cas).empty() && TrimRight(entry.cas) == TrimRight(session.state.batchCas))
            return "\n    Stoff: " + std::string(TrimRight(entry.name));
    return "";
}

std::string BatchText(const Session& session) {
    const SessionState& state = session.state;
    if (state.batchRowCount == 0)
        return "... exper. T-p-rho-HLV-cp-Daten: keine\n";
    const std::string count = std::to_string(state.batchRowCount);
    if (state.batchFile.empty())
        return "... exper. T-p-rho-HLV-cp-Daten: " + count
               + (state.batchRowCount == 1 ? " Datensatz" : " Datensätze")
               + " verfügbar,\nnoch nicht gespeichert.\n";
    std::string text = "... Stapeldatei " + state.batchFile;
    if (CharacterCount(state.batchDate) > 2)
        text += "\n    vom " + state.batchDate;
    text += "\n    mit " + count + " Datensätzen" + BatchSubstanceText(session);
    return text + "\n    Dateikommentar:" + state.batchComment + "\n";
}

} // namespace

Message StatusMessage(const Session& session) {
    return {" geladen sind jetzt ... ",
            DatabaseText(session.state) + SubstanceText(session) + BatchText(session)
                + "\n(weitere geladene Projekt-Parameter s. unter \"Optionen\")",
            MessageIcon::Information};
}

Message EosParametersMessage(const Session& session) {
    const char* title = " Parameter der generalisierten Zustandsgleichung ";
    const ModelSelection& selection = session.model.selection;
    if (selection.eos <= 0)
        return {title, "Idealgasgleichung eingestellt", MessageIcon::Information};
    if (selection.eos == virialPitzerCurl)
        return {title, "Parameter der PITZER/CURL-Gleichung\n\nsiehe Hilfe im Fenster \"Berechnungsmodelle\"",
                MessageIcon::Information};
    const EosParameters& eos = session.model.eos;
    const auto single = [&](double x) { return General(static_cast<float>(x), session.style); };
    std::string text = "Parameter "
                       + std::string(Trim(session.names.EosNames.at(static_cast<std::size_t>(selection.eos))))
                       + "\nfür " + session.model.substance.name;
    text += "\na0 = " + single(eos.a0) + "\na1 = " + single(eos.nA);
    text += "\nb0 = " + single(eos.b0) + "\nb1 = " + single(eos.nB);
    text += "\nc0 = " + single(eos.c0) + "\nc1 = " + single(eos.nC);
    text += "\nd0 = " + single(eos.d0) + "\nd1 = " + single(eos.nD);
    text += "\nkrit. Volumen aus T(cr) und p(cr) berechnet:";
    text += "\n         v(cr)/m^3/kmol = " + single(eos.vCritCalc);
    text += "\n(entspr. rho(cr)/kg/m^3 = " + single(eos.rhoCritCalc) + ")";
    return {title, text, MessageIcon::Information};
}

} // namespace orva
