// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/model_options.h"

#include "shell/road.h"
#include "substance/model_choice.h"

namespace orva {

namespace {

Failure NotOffered(std::string_view option, std::string_view value) {
    return {exitWrongUsage,
            "option " + std::string(option) + ": the model window does not offer " + std::string(value)
                + " for this substance and these models",
            {}};
}

std::optional<Failure> ChooseEos(ModelChoice& window, SubstanceModel& model, const ModelOptions& options) {
    if (options.eos) {
        const int row = window.EOSKombi.RowOf(*options.eos);
        if (row < 0)
            return NotOffered("eos", std::to_string(*options.eos));
        window.SelectEos(row);
    }
    const bool byHand = model.selection.eos == virialByHand;
    if (byHand != options.virial.has_value())
        return Failure{exitWrongUsage,
                       byHand ? "option eos: equation of state 10 needs the option virial"
                              : "option virial: only equation of state 10 takes constants by hand",
                       {}};
    if (options.virial)
        window.EnterVirialConstants(*options.virial);
    return std::nullopt;
}

std::optional<Failure> ChooseCorrelations(ModelChoice& window, const ModelOptions& options) {
    if (options.vaporPressureCode) {
        const int row = window.pKombi.RowOf(VaporPressureIndexOf(*options.vaporPressureCode));
        if (row < 0)
            return NotOffered("vapour-pressure", *options.vaporPressureCode);
        window.SelectVaporPressure(row);
    }
    if (options.vaporization) {
        const int row = window.HLVKombi.RowOf(*options.vaporization);
        if (row < 0)
            return NotOffered("vaporization", std::to_string(*options.vaporization));
        window.SelectVaporization(row);
    }
    if (options.watsonExponent)
        window.TypeWatsonExponent(JsonText(Json(*options.watsonExponent)));
    if (options.cp) {
        const int row = window.cpKombi.RowOf(*options.cp);
        if (row < 0)
            return NotOffered("cp", std::to_string(*options.cp));
        window.SelectCpModel(row);
    }
    return std::nullopt;
}

std::optional<Failure> ChoosePriority(ModelChoice& window, const ModelOptions& options) {
    if (!options.eosPriority)
        return std::nullopt;
    const int button = *options.eosPriority ? 0 : 1;
    if (!window.priorityEnabled && button != window.PriorOpt)
        return NotOffered("eos-priority", "on");
    window.ChoosePriority(button);
    return std::nullopt;
}

} // namespace

std::optional<Failure> AcceptModelOptions(Session& session, const ModelOptions& options) {
    ModelChoice window = MakeModelChoice(session);
    window.Open();
    if (std::optional<Failure> failure = ChooseEos(window, session.model, options))
        return failure;
    if (std::optional<Failure> failure = ChooseCorrelations(window, options))
        return failure;
    if (std::optional<Failure> failure = ChoosePriority(window, options))
        return failure;
    if (!window.OKModell(session.dialogs))
        return Failure{
            exitCalculationFailed, "the constants of the equation of state cannot be determined", {}};
    AcceptModels(session, window.Panels());
    return std::nullopt;
}

} // namespace orva
