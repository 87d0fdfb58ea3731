// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/coordinate_input_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cmath>

#include "text/number_input.h"

namespace orva {

namespace {

constexpr std::array<const char*, 4> fieldNames = {"xMin", "xMax", "yMin", "yMax"};

QLabel* Heading(const std::string& title, QWidget* parent) {
    return new QLabel(QString::fromStdString(title).replace("^3", "³"), parent);
}

} // namespace

frmCoord::frmCoord(DiagramWindow& theWindow, QWidget* parent) : QDialog(parent), window(theWindow) {
    setObjectName("frmCoord");
    setWindowTitle(tr("Koordinatenfenster"));
    const ChartDocument& chart = window.Chart();
    const std::array<double, 4> values = {chart.window.xMin, chart.window.xMax, chart.window.yMin,
                                          chart.window.yMax};
    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel(tr("von"), this), 0, 1, Qt::AlignHCenter);
    grid->addWidget(new QLabel(tr("bis"), this), 0, 2, Qt::AlignHCenter);
    grid->addWidget(Heading(chart.xTitle, this), 1, 0);
    grid->addWidget(Heading(chart.yTitle, this), 2, 0);
    for (std::size_t i = 0; i < limits.size(); ++i) {
        const std::string text = General(static_cast<float>(values[i]), window.Records().style);
        limits[i] = new QLineEdit(QString::fromStdString(text), this);
        limits[i]->setObjectName(fieldNames[i]);
        limits[i]->setAlignment(Qt::AlignRight);
        grid->addWidget(limits[i], 1 + static_cast<int>(i) / 2, 1 + static_cast<int>(i) % 2);
    }
    auto* ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName("cmdCoord_OK");
    ok->setDefault(true);
    auto* cancel = new QPushButton(tr("&Abbrechen"), this);
    cancel->setObjectName("cmdCoord_Cancel");
    grid->addWidget(ok, 3, 1);
    grid->addWidget(cancel, 3, 2);
    connect(ok, &QPushButton::clicked, this, &frmCoord::Take);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmCoord::Take() {
    std::array<double, 4> values{};
    for (std::size_t i = 0; i < limits.size(); ++i) {
        const std::string text = limits[i]->text().toStdString();
        values[i] = IsNumber(text) ? ParseNumber(text) : std::nan(""); // below no limit
    }
    if (window.cmdCoord_OK({values[0], values[1], values[2], values[3]}))
        accept();
}

} // namespace orva
