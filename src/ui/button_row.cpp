// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/button_row.h"

#include <QPushButton>

namespace orva {

QHBoxLayout* TakeOrCancel(QDialog& window, const char* takeName, const char* cancelName,
                          std::function<void()> take) {
    auto* ok = new QPushButton(QStringLiteral("&OK"), &window);
    ok->setObjectName(QLatin1String(takeName));
    ok->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("&Abbrechen"), &window);
    cancel->setObjectName(QLatin1String(cancelName));
    QObject::connect(ok, &QPushButton::clicked, &window, std::move(take));
    QObject::connect(cancel, &QPushButton::clicked, &window, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

} // namespace orva
