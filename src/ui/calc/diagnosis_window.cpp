// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/diagnosis_window.h"

#include <cmath>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <qcustomplot.h>

#include "ui/calc/isotherm_plot.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr double twipsPerInch = 1440;
constexpr int startWidth = 960;
constexpr QSize smallestPlot(380, 260);
constexpr int plotFontSize = 10;

} // namespace

frmCEOSDiagnose::frmCEOSDiagnose(Session& ownSession, QWidget* parent)
    : QDialog(parent), session(ownSession), style{session.style.decimal, plotFontSize, 1},
      lblEOSType(AddLabel(QStringLiteral("lblEOSType"), false)),
      lblixk(AddLabel(QStringLiteral("lblixk"), false)), lblA_x(AddLabel(QStringLiteral("lblA_x"), true)),
      lblA_u(AddLabel(QStringLiteral("lblA_u"), true)), lblA_o(AddLabel(QStringLiteral("lblA_o"), true)),
      plot(new QCustomPlot(this)) {
    setObjectName(QStringLiteral("frmCEOSDiagnose"));
    setWindowTitle(QStringLiteral("Diagnose kubische EOS"));
    setAttribute(Qt::WA_DeleteOnClose);
    plot->setObjectName(QStringLiteral("chart"));
    plot->setMinimumSize(smallestPlot);
    plot->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    PreparePlot(*plot, style);
    auto* row = new QHBoxLayout;
    row->addWidget(LabelFrame());
    row->addWidget(plot, 1);
    auto* close = new QPushButton(QStringLiteral("&Schließen"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* column = new QVBoxLayout(this);
    column->addLayout(row, 1);
    column->addWidget(close, 0, Qt::AlignRight);
    Show();
    SizeToRoots();
}

QLabel* frmCEOSDiagnose::AddLabel(const QString& name, bool fixedPitch) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (fixedPitch)
        label->setFont(FixedPitchFont());
    return label;
}

QGroupBox* frmCEOSDiagnose::LabelFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Lösungen v/(m^3/kmol) der kubischen Gleichung"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* column = new QVBoxLayout(frame);
    auto* head = new QFormLayout;
    QFont bold = lblEOSType->font();
    bold.setBold(true);
    lblEOSType->setFont(bold);
    head->addRow(QStringLiteral("Zustandsgleichung:"), lblEOSType);
    head->addRow(QStringLiteral("Anzahl reeller Lösungen:"), lblixk);
    column->addLayout(head);
    column->addSpacing(10);
    for (std::size_t i = 0; i < lblLoesungen.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        lblLoesungen[i] = AddLabel(ControlName("lblLoesungen", number), true);
        lblStab[i] = AddLabel(ControlName("lblStab", number), false);
        column->addWidget(lblLoesungen[i]);
        column->addWidget(lblStab[i]);
        column->addSpacing(6);
    }
    column->addStretch(1);
    for (QLabel* label : {lblA_x, lblA_u, lblA_o})
        column->addWidget(label);
    return frame;
}

void frmCEOSDiagnose::Show() {
    diagnosis = DiagnoseEos(session.calculation.eosState, session.model, session.names, session.style);
    ShowLabels();
    ShowPicture();
}

void frmCEOSDiagnose::ShowLabels() {
    lblEOSType->setText(ToQt(diagnosis.lblEOSType));
    lblixk->setText(ToQt(diagnosis.lblixk));
    for (std::size_t i = 0; i < lblLoesungen.size(); ++i) {
        const DiagnosisLine& line = diagnosis.lines[i];
        lblLoesungen[i]->setText(ToQt(line.solution));
        lblStab[i]->setText(ToQt(line.stability));
        lblLoesungen[i]->setVisible(line.visible);
        lblStab[i]->setVisible(line.visible);
    }
    lblA_x->setText(ToQt(diagnosis.lblA_x));
    lblA_u->setText(ToQt(diagnosis.lblA_u));
    lblA_o->setText(ToQt(diagnosis.lblA_o));
    for (QLabel* label : {lblA_x, lblA_u, lblA_o})
        label->setVisible(diagnosis.threeRoots);
    ColourStability();
}

void frmCEOSDiagnose::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && lblStab.back() != nullptr)
        ColourStability();
}

void frmCEOSDiagnose::ColourStability() {
    for (std::size_t i = 0; i < lblStab.size(); ++i) {
        QPalette colours = palette();
        colours.setColor(QPalette::WindowText, ColourOf(diagnosis.lines[i].kind, colours));
        lblStab[i]->setPalette(colours);
    }
}

void frmCEOSDiagnose::ShowPicture() {
    const IsothermPicture picture = DrawIsotherm(diagnosis, session.model);
    plot->setVisible(!picture.curve.empty());
    if (!picture.curve.empty())
        ShowIsotherm(*plot, diagnosis, picture, session.model.substance.name, style);
}

void frmCEOSDiagnose::SizeToRoots() {
    resize(startWidth, static_cast<int>(std::lround(diagnosis.windowHeight / twipsPerInch * logicalDpiY())));
}

} // namespace orva
