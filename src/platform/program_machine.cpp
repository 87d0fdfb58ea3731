// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_machine.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include "platform/qt_machine.h"

namespace orva {

ProgramMachine::ProgramMachine(int argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("ORVA"));
    const QCoreApplication application(argc, argv);
    const QtMachine machine;
    installationFolder = machine.InstallationFolder();
    ownFolder = std::make_unique<QTemporaryDir>();
    decimalComma = machine.DecimalComma();
}

ProgramMachine::~ProgramMachine() = default;

std::filesystem::path ProgramMachine::WritableFolder() const {
    return ownFolder->path().toStdU16String();
}

std::chrono::year_month_day ProgramMachine::Today() const {
    return QtMachine().Today();
}

std::string ProgramMachine::ShortDate() const {
    return QtMachine().ShortDate();
}

} // namespace orva
