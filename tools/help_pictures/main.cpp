// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the windows of the workbench as a user does, for n-butane, and saves what they show as the pictures
// of the help pages: orva-help-pictures INSTALLATION_FOLDER OUTPUT_FOLDER. Exit status 1 if a picture fails.
#include <cstdio>
#include <filesystem>
#include <functional>
#include <optional>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "substance/substance_choice.h"
#include "ui/shell/main_window.h"
#include "ui/substance/substance_list_view.h"
#include "ui/substance/virial_input_window.h"
#include "ui/text.h"

namespace {

using namespace orva;

class FolderMachine : public Machine {
public:
    explicit FolderMachine(std::filesystem::path installation) : folder(std::move(installation)) {}
    std::filesystem::path InstallationFolder() const override { return folder; }
    std::filesystem::path WritableFolder() const override { return std::filesystem::temp_directory_path(); }
    bool DecimalComma() const override { return false; }
    // A picture must not change with the day it is made.
    std::chrono::year_month_day Today() const override {
        return {std::chrono::year(2026), std::chrono::January, std::chrono::day(1)};
    }
    std::string ShortDate() const override { return "01.01.2026"; }

private:
    std::filesystem::path folder;
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
    Photographer(const Session& records, mdiORVA& mainWindow, Dialogs& boxes, QString outputFolder)
        : session(records), window(mainWindow), dialogs(boxes), folder(std::move(outputFolder)) {}

    bool TakeAll() {
        TakeChoices();
        TakePoint();
        TakeDiagram();
        return good;
    }

private:
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
        if (!widget->grab().save(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name)), "PNG"))
            Fail(name, "cannot be written");
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
        window.resize(860, 560);
        Save(&window, "main-window");
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

    const Session& session;
    mdiORVA& window;
    Dialogs& dialogs;
    QString folder;
    bool good = true;
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: orva-help-pictures INSTALLATION_FOLDER OUTPUT_FOLDER\n");
        return 2;
    }
    const QTemporaryDir settings; // the settings of the user stay out of it
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication::setOrganizationName(QStringLiteral("ORVA"));
    QApplication::setApplicationName(QStringLiteral("ORVA-6-pictures"));
    const QString output = QDir::fromNativeSeparators(QString::fromLocal8Bit(argv[2]));
    if (!QDir().mkpath(output)) {
        std::fprintf(stderr, "orva-help-pictures: %s cannot be made\n", argv[2]);
        return 1;
    }
    const FolderMachine machine(argv[1]);
    OneFile dialogs("ORVA.Q05"); // of the installation folder
    Session session(machine, dialogs);
    mdiORVA window(session);
    window.show();
    return Photographer(session, window, dialogs, output).TakeAll() ? 0 : 1;
}
