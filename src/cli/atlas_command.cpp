// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>

#include "cli/commands.h"
#include "cli/diagram_options.h"
#include "cli/drawing.h"
#include "cli/main_output.h"
#include "diagrams/chart_text.h"
#include "diagrams/diagram_conditions.h"
#include "diagrams/diagram_window.h"
#include "state/constants.h"
#include "text/columns.h"
#include "text/text_file.h"

namespace orva {

namespace {

constexpr int barWidth = 40;
constexpr double subcritical = 0.9, supercritical = 1.05; // of T(cr), of the isotherms
constexpr double atHalfPressure = 0.5;                    // of p(cr), of the isobars
constexpr double denseIsochor = 0.4, thinIsochor = 2.5;   // of v(cr)

// One page of the atlas.
struct Page {
    const DiagramRow* row;
    std::string title;
    int curves = 0;
    std::string file; // name without its ending
};

std::string Escaped(std::string_view text) {
    std::string html;
    for (const char c : text)
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += c;
        }
    return html;
}

// "type-004.svg": the number in three digits, so that the folder sorts as the catalogue does.
std::string FileName(int type) {
    const std::string digits = std::to_string(type);
    return "type-" + std::string(3 - std::min<std::size_t>(digits.size(), 3), '0') + digits;
}

// Inversion curves reach far beyond the windows of the other diagrams: to about 5 T(cr) and 14 p(cr).
ChartWindow InversionWindow(const DiagramRow& row, const Session& session) {
    const double T = 6 * session.model.substance.Tc * session.options.TFactor;
    const double p = 15 * session.model.substance.pc * session.options.pFactor;
    if (row.x.quantity == Quantity::Temperature)
        return {0, T, 0, p};
    const double gasLimit = gasConstant * 6 * session.model.substance.Tc;
    return {0, p, 0, gasLimit * session.options.pFactor * session.options.volumeFactor};
}

// Two or three typical curves, and the boundaries of the two-phase region with them.
void DrawTypicalCurves(DiagramWindow& window, const DiagramRow& row, Session& session) {
    if (row.curveKind == curveInversion)
        window.cmdCoord_OK(InversionWindow(row, session));
    if (row.curveKind == curveInversion || row.curveKind == curveProjection
        || row.curveKind == curveFunctionOfT) {
        window.DrawAtOnce();
        return;
    }
    const SubstanceData& substance = session.model.substance;
    CurveRequest& request = session.curve;
    const bool cubic = !session.model.selection.nonCubic;
    const double vCrit = cubic ? session.model.eos.vCritCalc : substance.vcDatabase;
    if (row.curveKind == curveIsotherm) {
        for (const double part : {subcritical, 1.0, supercritical}) {
            request.curveT = part * substance.Tc;
            window.cmdDraw();
        }
    } else if (row.curveKind == curveIsobar) {
        for (const double p : {101.325, atHalfPressure * substance.pc, 1.1 * substance.pc}) {
            request.curveP = p;
            window.cmdDraw();
        }
    } else {
        for (const double part : {denseIsochor, 1.0, thinIsochor}) {
            request.curveV = part * vCrit;
            window.cmdDraw();
        }
    }
    if (cubic && CoexistenceTypeOf(row.type) != row.type)
        window.mnuMarkKoex();
}

std::string IndexPage(const std::string& substance, const std::vector<Page>& pages) {
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + Escaped(substance)
        + " – Diagramme</title>\n<style>\nbody { font-family: sans-serif; margin: 2rem; color: #222; }\n"
          "main { display: grid; grid-template-columns: repeat(auto-fill, minmax(22rem, 1fr)); gap: 1.5rem; "
          "}\n"
          "figure { margin: 0; border: 1px solid #ddd; padding: .75rem; }\nimg { width: 100%; height: auto; "
          "}\n"
          "figcaption { font-size: .9rem; }\n</style>\n</head>\n<body>\n<h1>"
        + Escaped(substance) + "</h1>\n<main>\n";
    for (const Page& page : pages) {
        html += "<figure><a href=\"" + page.file + ".svg\"><img src=\"" + page.file + ".png\" alt=\""
                + Escaped(page.title) + "\" loading=\"lazy\"></a><figcaption>"
                + std::to_string(page.row->type) + ": " + Escaped(page.title) + " – <a href=\"" + page.file
                + ".csv\">CSV</a>, <a href=\"" + page.file + ".png\">PNG</a></figcaption></figure>\n";
    }
    return html + "</main>\n</body>\n</html>\n";
}

void ShowProgress(std::size_t done, std::size_t all) {
    const std::size_t full = done * barWidth / all;
    std::cerr << "\r[" << std::string(full, '#') << std::string(barWidth - full, ' ') << "] " << done << "/"
              << all << std::flush;
    if (done == all)
        std::cerr << "\r\033[K" << std::flush;
}

Json PagesJson(const std::vector<Page>& pages) {
    Json::array_t array;
    for (const Page& page : pages)
        array.push_back(
            Json{{"type", page.row->type},
                 {"title", page.title},
                 {"curves", page.curves},
                 {"files", Json::array({page.file + ".svg", page.file + ".png", page.file + ".csv"})}});
    return Json(std::move(array));
}

} // namespace

Answer AtlasCommand(Workspace& workspace, const Request& request, Drawing& drawing) {
    if (const std::optional<Failure> failure = workspace.Prepare(request.context))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    ApplyDiagramOptions(request.curve, session.options);
    const std::filesystem::path folder(std::u8string(request.outFolder.begin(), request.outFolder.end()));
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error))
        return AnswerFor({exitDataError, "the folder " + request.outFolder + " cannot be made", {}});
    const auto write = [&](const std::string& name, const std::string& bytes) {
        return WriteFile(folder / std::filesystem::path(std::u8string(name.begin(), name.end())), bytes);
    };

    const CurveRequest start = session.curve;
    const auto catalogue = Catalogue();
    const bool progress = IsErrorTerminal();
    std::vector<Page> pages;
    std::string substance;
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        const DiagramRow& row = catalogue[i];
        if (progress)
            ShowProgress(i, catalogue.size());
        if (!MayDraw(row, session.model, session.dialogs))
            continue;
        session.curve = start;
        DiagramWindow window(DiagramRecordsOf(session), session.dialogs);
        window.Open(&row);
        DrawTypicalCurves(window, row, session);
        if (window.Chart().curveCount == 0)
            continue;
        substance = window.Spec().headingText;
        Page page{&row, std::string(Trim(window.Spec().typeTitle)), window.Chart().curveCount,
                  FileName(row.type)};
        CurveOptions files;
        files.svgFile = request.outFolder + "/" + page.file + ".svg";
        files.pngFile = request.outFolder + "/" + page.file + ".png";
        if (const std::optional<Failure> failure = drawing.Write(window.Chart(), files, session.style))
            return AnswerFor(*failure);
        if (!write(page.file + ".csv", CurveTableText(window.Chart(), ';', session.style)))
            return AnswerFor({exitDataError, "the file " + page.file + ".csv cannot be written", {}});
        pages.push_back(std::move(page));
    }
    if (progress)
        ShowProgress(catalogue.size(), catalogue.size());
    if (!write("index.html", IndexPage(substance, pages)))
        return AnswerFor({exitDataError, "the file index.html cannot be written", {}});

    Answer answer;
    answer.messages = workspace.Messages();
    answer.json =
        Json{{"folder", request.outFolder}, {"index", "index.html"}, {"diagrams", PagesJson(pages)}};
    answer.json["messages"] = MessagesJson(answer.messages);
    return answer;
}

} // namespace orva
