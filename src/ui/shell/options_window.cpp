// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/options_window.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include "ui/button_row.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

// A note under a button, standing under its text.
QLabel* Note(const char* text, QWidget* parent) {
    QLabel* note = MutedLabel(QString::fromUtf8(text), parent);
    const QStyle* style = parent->style();
    const int indent = style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth)
                       + style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    QMargins margins = note->contentsMargins();
    margins.setLeft(indent);
    note->setContentsMargins(margins);
    return note;
}

} // namespace

frmOptions::frmOptions(OptionsChoice optionsChoice, QWidget* parent)
    : QDialog(parent), choice(optionsChoice) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("   Optionen"));
    auto* grid = new QGridLayout;
    grid->setSpacing(10);
    grid->addWidget(ModeFrame(), 0, 0, 1, 2);
    grid->addWidget(UnitFrame(), 1, 0);
    grid->addWidget(ReducedFrame(), 1, 1);
    grid->addWidget(ResolutionFrame(), 2, 0);
    grid->addWidget(ReferenceFrame(), 2, 1);
    grid->addWidget(DiagramFrame(), 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addLayout(grid);
    column->addLayout(TakeOrCancel(*this, "cmdOK", "cmdClose", [this] { Accept(); }));
    column->setSizeConstraint(QLayout::SetFixedSize);
    ShowChoice();
    OptCalcMode[static_cast<std::size_t>(choice.OptCalcMode)]->setFocus();
}

void frmOptions::AddOptions(QGroupBox& frame, const char* name, const std::array<OptionRow, 2>& rows,
                            std::array<QRadioButton*, 2>& options) {
    auto* group = new QButtonGroup(&frame);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        options[i] = new QRadioButton(QString::fromUtf8(rows[i].text), &frame);
        options[i]->setObjectName(ControlName(name, static_cast<int>(i)));
        group->addButton(options[i], static_cast<int>(i));
        frame.layout()->addWidget(options[i]);
        frame.layout()->addWidget(Note(rows[i].note, &frame));
    }
}

QCheckBox* frmOptions::AddBox(QGroupBox& frame, const char* name, const char* text) {
    auto* box = new QCheckBox(QString::fromUtf8(text), &frame);
    box->setObjectName(QLatin1String(name));
    return box;
}

QGroupBox* frmOptions::ModeFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Modus für Berechnungen"), this);
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(2);
    column->addWidget(MutedLabel(QStringLiteral("(betrifft nur Menüpunkt \"Berechnungen\")"), frame));
    AddOptions(*frame, "OptCalcMode",
               {{{"&Direkt-Berechnung", " Einzeleingabe T, p, ... => Berechnung "},
                 {"&Stapel-Berechnung", " Abarbeitung einer \"Stapel-Liste\" mit Vorgabewerten T, p, ...; "
                                        "Eingabe unter \"Daten/exper. Daten...\"  "}}},
               OptCalcMode);
    column->addStretch(1);
    return frame;
}

QGroupBox* frmOptions::UnitFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Einheiten für berechnete Größen"), this);
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(2);
    AddOptions(*frame, "optMolarSpez",
               {{{"&molare Größen", " z. B. kJ/kmol oder m^3/kmol "},
                 {"s&pezifische Größen", " z. B. kJ/kg oder m^3/kg "}}},
               optMolarSpez);
    column->addStretch(1);
    return frame;
}

QGroupBox* frmOptions::ReducedFrame() {
    auto* frame = new QGroupBox(QStringLiteral("reduzierte Größen für T, p, V"), this);
    auto* column = new QVBoxLayout(frame);
    chkReduziert = AddBox(*frame, "chkReduziert", "&reduzierte Größen  z(red) = z / z(cr)");
    column->addWidget(chkReduziert);
    column->addStretch(1);
    return frame;
}

QGroupBox* frmOptions::ResolutionFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Kurven-Auflösung"), this);
    Slider1_punktdichte = new QSlider(Qt::Horizontal, frame);
    Slider1_punktdichte->setObjectName(QStringLiteral("Slider1_punktdichte"));
    Slider1_punktdichte->setAccessibleName(QStringLiteral("Punkte pro Kurve"));
    Slider1_punktdichte->setRange(fewestCurvePoints, mostCurvePoints);
    Slider1_punktdichte->setSingleStep(smallCurvePointStep);
    Slider1_punktdichte->setPageStep(largeCurvePointStep);
    Slider1_punktdichte->setTickInterval(largeCurvePointStep);
    Slider1_punktdichte->setTickPosition(QSlider::TicksBelow);
    auto* caption = new QLabel(QStringLiteral("Pu&nkte pro Kurve"), frame);
    caption->setBuddy(Slider1_punktdichte);
    Label54 = new QLabel(QString::number(mostCurvePoints), frame);
    Label54->setObjectName(QStringLiteral("Label54"));
    Label54->setAlignment(Qt::AlignRight);
    Label54->setMinimumWidth(Label54->sizeHint().width());
    auto* low = MutedLabel(QString::number(fewestCurvePoints), frame);
    low->setObjectName(QStringLiteral("lblSlideMin"));
    auto* high = MutedLabel(QString::number(mostCurvePoints), frame);
    high->setObjectName(QStringLiteral("lblSlideMax"));
    auto* grid = new QGridLayout(frame);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(Label54, 0, 1);
    grid->addWidget(Slider1_punktdichte, 1, 0, 1, 2);
    grid->addWidget(low, 2, 0);
    grid->addWidget(high, 2, 1, Qt::AlignRight);
    grid->setRowStretch(3, 1);
    connect(Slider1_punktdichte, &QSlider::valueChanged, Label54, qOverload<int>(&QLabel::setNum));
    return frame;
}

QGroupBox* frmOptions::DiagramFrame() {
    auto* frame = new QGroupBox(QStringLiteral("2D-Diagramm-Optionen"), this);
    chkCurveTpRestricted = AddBox(*frame, "chkCurveTpRestricted",
                                  "physikalisch realen &Bereich zeichnen (T>T(trip) bzw. p> p(trip))");
    chkSKurveOhneKonnode = AddBox(*frame, "chkSKurveOhneKonnode",
                                  "für kubische EOS: Bei T < T(cr) nur S-&Kurve ohne Konnode zeichnen");
    chkPartialKurve = AddBox(*frame, "chkPartialKurve",
                             "Partialkurve \"&Gasphase\" z(T), isobar oder z(p), isotherm, d. h. nur Kurve "
                             "für T > T(LV) bzw. p < p(LV)  zeichnen ");
    auto* column = new QVBoxLayout(frame);
    auto* first = new QHBoxLayout;
    first->addWidget(chkCurveTpRestricted);
    first->addStretch(1);
    first->addWidget(HelpButton(QStringLiteral("cmdRealBreichHelp"), frame));
    column->addLayout(first);
    column->addWidget(chkSKurveOhneKonnode);
    column->addWidget(chkPartialKurve);
    column->addWidget(Note(" vorerst nur wirksam für Virial-EOS ", frame));
    return frame;
}

QGroupBox* frmOptions::ReferenceFrame() {
    auto* frame = new QGroupBox(this);
    auto* open = new QPushButton(QStringLiteral("&Einstellen / Sichten"), frame);
    open->setObjectName(QStringLiteral("Command1"));
    connect(open, &QPushButton::clicked, this, &frmOptions::OpenReference);
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(2);
    for (const char* text : {"Normierung für thermodynamische ", "Funktionen "})
        column->addWidget(new QLabel(QString::fromUtf8(text), frame));
    auto* row = new QHBoxLayout;
    row->addWidget(open);
    row->addStretch(1);
    row->addWidget(HelpButton(QStringLiteral("cmdReferenzHelp"), frame));
    column->addStretch(1);
    column->addLayout(row);
    return frame;
}

void frmOptions::ShowChoice() {
    OptCalcMode[static_cast<std::size_t>(choice.OptCalcMode)]->setChecked(true);
    optMolarSpez[static_cast<std::size_t>(choice.optMolarSpez)]->setChecked(true);
    chkReduziert->setChecked(choice.chkReduziert);
    chkReduziert->setEnabled(choice.chkReduziertEnabled);
    chkCurveTpRestricted->setChecked(choice.chkCurveTpRestricted);
    chkSKurveOhneKonnode->setChecked(choice.chkSKurveOhneKonnode);
    chkSKurveOhneKonnode->setEnabled(choice.chkSKurveOhneKonnodeEnabled);
    chkPartialKurve->setChecked(choice.chkPartialKurve);
    Slider1_punktdichte->setValue(choice.Slider1_punktdichte);
    Label54->setNum(choice.Slider1_punktdichte);
}

void frmOptions::Accept() {
    choice.OptCalcMode = OptCalcMode[1]->isChecked() ? 1 : 0;
    choice.optMolarSpez = optMolarSpez[1]->isChecked() ? 1 : 0;
    choice.chkReduziert = chkReduziert->isChecked();
    choice.chkCurveTpRestricted = chkCurveTpRestricted->isChecked();
    choice.chkSKurveOhneKonnode = chkSKurveOhneKonnode->isChecked();
    choice.chkPartialKurve = chkPartialKurve->isChecked();
    choice.Slider1_punktdichte = Slider1_punktdichte->value();
    const OptionsChoice::Outcome outcome = choice.cmdOK();
    accept();
    emit Accepted(outcome);
}

void frmOptions::OpenReference() {
    reject();
    emit ReferenceWanted();
}

} // namespace orva
