// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "platform/qt_machine.h"
#include "platform/qt_program_runner.h"
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
    orva::Session session(machine, dialogs, &runner);
    orva::mdiORVA window(session);
    window.show();
    return QApplication::exec();
}
