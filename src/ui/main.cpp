// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "platform/program_number.h"
#include "platform/qt_machine.h"
#include "platform/qt_program_runner.h"
#include "platform/qt_settings.h"
#include "text/text_file.h"
#include "ui/qt_dialogs.h"
#include "ui/shell/main_window.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORVA"));
    QApplication::setApplicationName(QStringLiteral("ORVA-6"));
    QTranslator toolkitTexts;
    if (toolkitTexts.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&toolkitTexts);

    const orva::QtMachine machine;
    orva::QtDialogs dialogs;
    orva::QtProgramRunner runner;
    orva::QtSettings settings;
    orva::Session session(machine, dialogs, &runner, &settings);
    const orva::ProgramNumber number(machine.WritableFolder(), [&machine](int candidate) {
        return orva::FileExists(orva::ProtocolRecoveryFile(machine, candidate));
    });
    session.protocol.programNumber = number.Number();
    orva::mdiORVA window(session);
    window.show();
    QTimer::singleShot(0, &window, &orva::mdiORVA::StartUp);
    return QApplication::exec();
}
