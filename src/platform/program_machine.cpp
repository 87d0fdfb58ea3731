// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_machine.h"

#include <QCoreApplication>

#include "platform/qt_machine.h"

namespace orva {

ProgramMachine::ProgramMachine(int argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("ORVA"));
    const QCoreApplication application(argc, argv);
    const QtMachine machine;
    installationFolder = machine.InstallationFolder();
    writableFolder = machine.WritableFolder();
    decimalComma = machine.DecimalComma();
}

} // namespace orva
