// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the windows of the workbench as a user does, for n-butane, and saves what they show as the pictures
// of the help pages and of the README: orva-help-pictures INSTALLATION_FOLDER OUTPUT_FOLDER SCREENSHOT_FILE.
// Exit status 1 if a picture fails.
#include <cstdio>
#include <filesystem>
#include <functional>
#include <optional>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "shell/project_file.h"
#include "substance/substance_choice.h"
#include "text/paths.h"
#include "text/text_file.h"
#include "ui/shell/main_window.h"
#include "ui/substance/substance_list_view.h"
#include "ui/substance/virial_input_window.h"
#include "ui/text.h"

namespace {

using namespace orva;

class FolderMachine : public Machine {
public:
    FolderMachine(std::filesystem::path installation, std::filesystem::path written)
        : folder(std::move(installation)), writable(std::move(written)) {}
    std::filesystem::path InstallationFolder() const override { return folder; }
    std::filesystem::path WritableFolder() const override { return writable; }
    bool DecimalComma() const override { return false; }
    // A picture must not change with the day it is made.
    std::chrono::year_month_day Today() const override {
        return {std::chrono::year(2026), std::chrono::January, std::chrono::day(1)};
    }
    std::string ShortDate() const override { return "01.01.2026"; }

private:
    std::filesystem::path folder, writable;
};

// A user who opens one file and is asked nothing else.
class OneFile : public Dialogs {
public:
    explicit OneFile(std::string file) : path(std::move(file)) {}
    void Show(const Message& message) override { std::fprintf(stderr, "%s\n", message.text.c_str()); }
    bool Ask(const Question&) override { return false; }
    std::optional<std::string> ChooseFile(const FileRequest&) override { return path; }
    std::optional<std::string> InputText(const TextRequest&) override { return std::nullopt; }

private:
    std::string path;
};

class Photographer {
public:
    Photographer(const Session& records, mdiORVA& mainWindow, Dialogs& boxes, QString outputFolder,
                 QString screenshotFile)
        : session(records), window(mainWindow), dialogs(boxes), folder(std::move(outputFolder)),
          screenshot(std::move(screenshotFile)), desktop(1240, 830) {
        desktop.fill(QColor(206, 214, 224));
    }

    bool TakeAll() {
        TakeChoices();
        TakeSettings();
        TakeProjects();
        TakePoint();
        TakeDiagram();
        TakeFamilies();
        TakeEquilibrium();
        TakeFunctions();
        TakeVessel();
        Write(desktop, screenshot);
        return good;
    }

private:
    static constexpr int smallestFile = 0; // quality of PNG: the longest search for a short file
    static constexpr int titleHeight = 28;

    static void Settle() {
        for (int i = 0; i < 5; ++i) {
            QApplication::processEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    QWidget* Form(const char* name) {
        Settle();
        for (QWidget* form : QApplication::topLevelWidgets())
            if (form->objectName() == QLatin1String(name) && form->isVisible())
                return form;
        Fail(name, "is not open");
        return &window;
    }

    void Fail(const char* name, const char* what) {
        std::fprintf(stderr, "orva-help-pictures: %s %s\n", name, what);
        good = false;
    }

    void Save(QWidget* widget, const char* name) {
        Settle();
        if (QWidget* focused = QApplication::focusWidget())
            focused->clearFocus();
        Settle();
        Write(widget->grab(), QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name)));
    }

    void Write(const QPixmap& picture, const QString& file) {
        if (!picture.save(file, "PNG", smallestFile))
            Fail(qPrintable(file), "cannot be written");
    }

    // A window as it stands on a desktop, with its title.
    void Arrange(QWidget* form, QPoint place) {
        Settle();
        const QPixmap picture = form->grab();
        QPainter painter(&desktop);
        const QRect title(place, QSize(picture.width(), titleHeight));
        painter.fillRect(title, QColor(70, 78, 90));
        painter.setPen(Qt::white);
        painter.drawText(title.adjusted(10, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, form->windowTitle());
        painter.drawPixmap(title.bottomLeft() + QPoint(0, 1), picture);
        painter.setPen(QColor(70, 78, 90));
        painter.drawRect(title.adjusted(0, 0, -1, picture.height()));
    }

    void Click(QWidget* form, const char* name) {
        if (auto* button = form->findChild<QAbstractButton*>(QLatin1String(name)))
            button->click();
        else
            Fail(name, "is no button");
        Settle();
    }

    void Type(QWidget* form, const char* name, const char* text) {
        if (auto* field = form->findChild<QLineEdit*>(QLatin1String(name)))
            field->setText(QLatin1String(text));
        else
            Fail(name, "is no field");
    }

    void Trigger(QWidget* form, const char* name) {
        if (auto* action = form->findChild<QAction*>(QLatin1String(name)))
            action->trigger();
        else
            Fail(name, "is no command");
        Settle();
    }

    void TakeChoices() {
        window.RunCommand(FindCommand("mnuData_OpenBank"));
        QWidget* substances = Form("frmStoffWahl");
        if (auto* list = substances->findChild<SubstanceListView*>())
            list->SelectRow(FindByCas(session.List(), "106-97-8") - 1);
        substances->resize(620, 460);
        Save(substances, "substance-window");
        Click(substances, "StoffOK");
        QWidget* models = Form("frmQModell");
        Save(models, "model-window");
        frmBParInput byHand({0.0758, 2.31e4, 1.75}, dialogs);
        byHand.show();
        Save(&byHand, "virial-input");
        byHand.close();
        Click(models, "OKModell");
        window.resize(1060, 560);
        Save(&window, "main-window");
    }

    void TakeSettings() {
        window.RunCommand(FindCommand("mnuOptions"));
        QWidget* options = Form("frmOptions");
        Save(options, "options-window");
        Click(options, "Command1");
        QWidget* reference = Form("frmReferenz");
        Save(reference, "reference-window");
        Click(reference, "Esc");
        window.RunCommand(FindCommand("mnuHilfe_Tip"));
        QWidget* tips = Form("frmTip");
        Click(tips, "cmdTipsZeigen");
        SeekFirstTip(tips);
        Save(tips, "tips-window");
        tips->close();
    }

    void TakeProjects() {
        ProjectFile project;
        project.comment = "Lagertank 3, Füllung bei 20 °C";
        project.database = "ORVA.Q05";
        project.cas = session.model.substance.cas;
        for (const char* name : {"Butan-Lager.QCF", "Flüssiggas.QCF", "Kreisprozess.QCF"})
            if (!WriteFile(PathOf(session.state.dirProject) / PathOf(name), WriteProject(project)))
                Fail(name, "cannot be written");
        window.RunCommand(FindCommand("mnuData_LoadProject"));
        QWidget* open = Form("frmCmnDlg");
        if (auto* files = open->findChild<QListWidget*>(QStringLiteral("filOpenList")))
            files->setCurrentRow(0);
        if (auto* path = open->findChild<QLabel*>(QStringLiteral("lblPath")))
            path->setText(QStringLiteral("Projekte")); // the real folder is another one each time
        open->resize(620, 440);
        Save(open, "project-window");
        open->close();
    }

    // The window begins with any tip; a picture must not change with it.
    void SeekFirstTip(QWidget* tips) {
        auto* text = tips->findChild<QLabel*>(QStringLiteral("lblTip"));
        if (text == nullptr)
            return Fail("lblTip", "is not there");
        for (int i = 0; i < 30 && !text->text().startsWith(QStringLiteral("Jede Arbeit")); ++i)
            Click(tips, "cmdNextTip");
    }

    // Enters T and p, as far as the calculation asks for them, and returns the window of the result.
    QWidget* Calculate(const char* T, const char* p) {
        QWidget* input = Form("frmParinput");
        if (T != nullptr)
            Type(input, "par(0)", T);
        if (p != nullptr)
            Type(input, "par(1)", p);
        Click(input, "cmdParameter_OK");
        return Form("frmCalcOut");
    }

    void TakePoint() {
        window.RunCommand(FindCommand("mnuCalc", 2));
        QWidget* input = Form("frmParinput");
        Type(input, "par(0)", "300");
        Type(input, "par(1)", "100");
        Save(input, "point-input");
        Click(input, "cmdParameter_OK");
        QWidget* result = Form("frmCalcOut");
        result->resize(result->minimumSizeHint().width(), 600);
        Save(result, "result-window");
        input->close();
        result->close();
    }

    void TakeEquilibrium() {
        window.RunCommand(FindCommand("mnuCalc", 5));
        QWidget* method = Form("frmCalcIn");
        Click(method, "opt_glob(1)");
        Save(method, "method-window");
        Click(method, "opt_glob(0)");
        Click(method, "OK");
        QWidget* result = Calculate("350", nullptr);
        result->resize(result->minimumSizeHint().width(), 720);
        Save(result, "equilibrium-result");
        Click(result, "cmdProtokoll");
        Arrange(result, {510, 60});
        Click(result, "cmdCEOSDiagnose");
        QWidget* diagnosis = Form("frmCEOSDiagnose");
        Save(diagnosis, "diagnosis-window");
        diagnosis->close();
        CloseResult();
    }

    void CloseResult() {
        Form("frmParinput")->close();
        Form("frmCalcOut")->close();
    }

    void TakeFunctions() {
        window.RunCommand(FindCommand("mnuCalc", 11));
        QWidget* result = Calculate("300", "100");
        Click(result, "cmdProtokoll");
        Calculate("350", "100");
        Click(result, "cmdProtokoll");
        if (auto* frame = result->findChild<QWidget*>(QStringLiteral("fraProtokoll")))
            Save(frame, "protocol-frame");
        Click(result, "cmdIsoCalc");
        QWidget* inversion = Form("frmIsoCalc");
        Type(inversion, "txtTpVorgabe", "500");
        Click(inversion, "cmdCalc");
        Save(inversion, "inversion-window");
        inversion->close();
        CloseResult();
    }

    void TakeVessel() {
        window.RunCommand(FindCommand("mnuCalc", 15));
        QWidget* input = Form("frmParinput");
        Type(input, "par(0)", "0.1");
        Type(input, "par(1)", "20");
        Type(input, "par(3)", "300");
        Save(input, "vessel-input");
        Click(input, "cmdParameter_OK");
        QWidget* vessel = Form("frmKessel");
        vessel->resize(340, 450);
        Save(vessel, "vessel-window");
        vessel->resize(290, 370);
        Arrange(vessel, {190, 410});
        vessel->close();
        Form("frmCalcOut")->close();
    }

    void Draw(QWidget* box, const char* value, const char* button) {
        Type(box, "txtValue", value);
        Click(box, button);
    }

    // The box waits for its answer, so it is filled from within.
    void SetLimits(QWidget* graph, const std::function<void(QWidget*)>& fill) {
        QTimer::singleShot(0, [&] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                fill(box);
                Click(box, "cmdCoord_OK");
            } else
                Fail("frmCoord", "is not open");
        });
        Trigger(graph, "mnuCoord");
    }

    void TakeDiagram() {
        window.RunCommand(FindCommand("mnuGraf_sub_cut", 1));
        QWidget* graph = Form("frmGraph2D");
        QWidget* box = Form("frmTpVSInputBox");
        auto* chart = graph->findChild<QWidget*>(QStringLiteral("chart"));
        if (chart == nullptr)
            return Fail("chart", "is not there");
        graph->resize(760, 560);
        for (const char* T : {"380", "425.1", "450"})
            Draw(box, T, "cmdOKAndDraw");
        Save(box, "value-input");
        Save(chart, "p-v-isotherms");
        Trigger(graph, "mnuMarkCritPointCalc");
        Save(graph, "diagram-window");
        Arrange(graph, {20, 20});
        Trigger(graph, "mnuDelTotal");
        SetLimits(graph, [this](QWidget* limits) {
            Save(limits, "coordinates");
            Type(limits, "xMin", "0.1");
            Type(limits, "xMax", "0.7");
            Type(limits, "yMin", "2400");
            Type(limits, "yMax", "3400");
        });
        Draw(box, "410", "cmdOK");
        Trigger(graph, "mnuMarkSKurve");
        Trigger(graph, "mnuMarkKonnode");
        Save(chart, "equal-areas");
        graph->close();
    }

    // A diagram with a curve for each value, where the type asks for one.
    QWidget* DrawDiagram(const char* command, int index, std::initializer_list<const char*> values) {
        window.RunCommand(FindCommand(command, index));
        QWidget* graph = Form("frmGraph2D");
        graph->resize(760, 560);
        if (values.size() > 0) {
            QWidget* box = Form("frmTpVSInputBox");
            for (const char* value : values)
                Draw(box, value, "cmdOKAndDraw");
            box->close();
        }
        return graph;
    }

    void SaveChart(QWidget* graph, const char* name) {
        if (auto* chart = graph->findChild<QWidget*>(QStringLiteral("chart")))
            Save(chart, name);
        else
            Fail("chart", "is not there");
    }

    void SetWindow(QWidget* graph, const char* xMin, const char* xMax, const char* yMin, const char* yMax) {
        SetLimits(graph, [=, this](QWidget* limits) {
            Type(limits, "xMin", xMin);
            Type(limits, "xMax", xMax);
            Type(limits, "yMin", yMin);
            Type(limits, "yMax", yMax);
        });
    }

    // The Mollier diagram asks for two limits besides its pressure.
    void TakeMollierDiagram() {
        QWidget* graph = DrawDiagram("mnuGraf_sub_HS", 1, {});
        SetWindow(graph, "-150", "120", "-40000", "40000");
        QWidget* box = Form("frmInputProzessLinien");
        for (const char* p : {"100", "1000", "2500", "5000"}) {
            Type(box, "txtValue", p);
            Type(box, "txtFrom", "200");
            Type(box, "txtTo", "550");
            Click(box, "cmdDraw");
        }
        box->close();
        Trigger(graph, "mnuMarkKoex");
        SaveChart(graph, "h-s-isobars");
    }

    // One diagram of each menu.
    void TakeFamilies() {
        QWidget* graph = DrawDiagram("mnuGraf_sub_cut", 5, {"500", "1500", "3796", "6000"});
        Trigger(graph, "mnuMarkKoex");
        SaveChart(graph, "T-v-isobars");
        graph = DrawDiagram("mnuGraf_sub_FuT", 3, {"100", "1000", "2500", "5000"});
        SetWindow(graph, "200", "470", "-35000", "25000");
        Trigger(graph, "mnuMarkKoex");
        SaveChart(graph, "h-T-isobars");
        graph = DrawDiagram("mnuGraf_sub_res_Fup", 1, {"350", "400", "425.1", "460"});
        SetWindow(graph, "0", "6000", "-22000", "1000");
        SaveChart(graph, "residual-enthalpy");
        TakeMollierDiagram();
        SaveChart(DrawDiagram("mnuGraf_sub_proj", 5, {}), "densities");
        graph = DrawDiagram("mnuGraf_sub_database", 5, {});
        SaveChart(graph, "database-function");
        graph->close();
    }

    const Session& session;
    mdiORVA& window;
    Dialogs& dialogs;
    QString folder, screenshot;
    QPixmap desktop; // some windows together
    bool good = true;
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: orva-help-pictures INSTALLATION_FOLDER OUTPUT_FOLDER SCREENSHOT_FILE\n");
        return 2;
    }
    const QTemporaryDir settings, written; // the settings and files of the user stay out of it
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication::setOrganizationName(QStringLiteral("ORVA"));
    QApplication::setApplicationName(QStringLiteral("ORVA-6-pictures"));
    const QString output = QDir::fromNativeSeparators(QString::fromLocal8Bit(argv[2]));
    if (!QDir().mkpath(output)) {
        std::fprintf(stderr, "orva-help-pictures: %s cannot be made\n", argv[2]);
        return 1;
    }
    const FolderMachine machine(argv[1], written.path().toStdString());
    OneFile dialogs("ORVA.Q05"); // of the installation folder
    Session session(machine, dialogs);
    mdiORVA window(session);
    window.show();
    const QString screenshot = QString::fromLocal8Bit(argv[3]);
    return Photographer(session, window, dialogs, output, screenshot).TakeAll() ? 0 : 1;
}
