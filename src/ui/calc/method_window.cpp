// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/method_window.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "ui/calc/point_input_window.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr int typedReference = 2;
constexpr int indent = 20;

void Check(QRadioButton* button, bool checked) {
    const QSignalBlocker quiet(button);
    button->setChecked(checked);
}

} // namespace

frmCalcIn::frmCalcIn(CalculationInput calculationInput, PointInputRecords inputRecords, Dialogs& boxes,
                     QWidget* parent)
    : QDialog(parent), input(std::move(calculationInput)), records(inputRecords), dialogs(boxes),
      GlobalSit(new QLabel(this)), Bz1(new QLabel(QStringLiteral("Bezugspunkt der BENSON-Methode:"), this)),
      referenceText(new QLabel(this)), RefInput(new QPushButton(QStringLiteral("&Eingabe ..."), this)),
      escButton(new QPushButton(QStringLiteral("&Abbrechen"), this)) {
    setObjectName(QStringLiteral("frmCalcIn"));
    setWindowTitle(input.OffersChoice() ? QStringLiteral("Berechnung des Phasengleichgewichts")
                                        : QStringLiteral("Berechnungs-Situation"));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addWidget(SituationFrame());
    methodFrame = MethodFrame();
    column->addWidget(methodFrame);
    referenceFrame = ReferenceFrame();
    column->addWidget(referenceFrame);
    column->addLayout(ButtonRow());
    column->setSizeConstraint(QLayout::SetFixedSize);
    ConnectControls();
    ShowInput();
}

QRadioButton* frmCalcIn::AddOption(const QString& name, const QString& text, QWidget* parent) {
    auto* option = new QRadioButton(text, parent);
    option->setObjectName(name);
    return option;
}

QGroupBox* frmCalcIn::SituationFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Berechnungs-Situation"), this);
    GlobalSit->setObjectName(QStringLiteral("GlobalSit"));
    GlobalSit->setTextFormat(Qt::PlainText);
    GlobalSit->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(GlobalSit, 1);
    return frame;
}

QGroupBox* frmCalcIn::MethodFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Methode"), this);
    opt_glob[0] = AddOption(ControlName("opt_glob", 0),
                            QStringLiteral("&Globalberechnung (L und V aus der EOS)"), frame);
    opt_glob[1] = AddOption(ControlName("opt_glob", 1),
                            QStringLiteral("&Partialberechnung (nur V aus der EOS)"), frame);
    globHelp = HelpButton(QStringLiteral("GlobHilfe"), frame);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(opt_glob[0]);
    row->addWidget(opt_glob[1]);
    row->addStretch(1);
    row->addWidget(globHelp);
    return frame;
}

QGroupBox* frmCalcIn::ReferenceFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Dichte der L-Phase bei Partialberechnung"), this);
    optPartialBenson[0] = AddOption(ControlName("optPartialBenson", 0),
                                    QStringLiteral("&Datenbankfunktion rho(L) = Fu(T)"), frame);
    optPartialBenson[1] =
        AddOption(ControlName("optPartialBenson", 1), QStringLiteral("&BENSON-Methode"), frame);
    const char* const referenceTexts[] = {"&Vorschlag für Bezugspunkt entsprechend Datensituation:",
                                          "&Normalsiedepunkt mit BENSON-Näherungsformel für rho(L)",
                                          "Bezugspunkt &selbst eingeben"};
    auto* densities = new QButtonGroup(this);
    auto* references = new QButtonGroup(this);
    auto* top = new QHBoxLayout;
    for (QRadioButton* option : optPartialBenson) {
        densities->addButton(option);
        top->addWidget(option);
    }
    top->addStretch(1);
    top->addWidget(HelpButton(QStringLiteral("BENSON_HELP"), frame));
    auto* column = new QVBoxLayout(frame);
    column->addLayout(top);
    column->addSpacing(6);
    Bz1->setObjectName(QStringLiteral("Bz1"));
    column->addWidget(Bz1);
    auto* choices = new QVBoxLayout;
    choices->setContentsMargins(indent, 0, 0, 0);
    for (std::size_t i = 0; i < Ref_opt.size(); ++i) {
        Ref_opt[i] = AddOption(ControlName("Ref_opt", static_cast<int>(i)),
                               QString::fromUtf8(referenceTexts[i]), frame);
        references->addButton(Ref_opt[i]);
        auto* row = new QHBoxLayout;
        row->addWidget(Ref_opt[i]);
        if (static_cast<int>(i) == typedReference) {
            RefInput->setObjectName(QStringLiteral("RefInput"));
            row->addWidget(RefInput);
        }
        row->addStretch(1);
        choices->addLayout(row);
    }
    column->addLayout(choices);
    referenceText->setObjectName(QStringLiteral("referenceText"));
    referenceText->setFont(FixedPitchFont());
    referenceText->setTextFormat(Qt::PlainText);
    referenceText->setContentsMargins(indent, 4, 0, 0);
    referenceText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(referenceText);
    return frame;
}

QLayout* frmCalcIn::ButtonRow() {
    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("OK"));
    ok->setDefault(true);
    ok->setFocus();
    escButton->setObjectName(QStringLiteral("Esc"));
    connect(ok, &QPushButton::clicked, this, &frmCalcIn::AcceptInput);
    connect(escButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, [this] { input.Cancel(); });
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(ok);
    row->addWidget(escButton);
    return row;
}

void frmCalcIn::ConnectControls() {
    for (std::size_t i = 0; i < opt_glob.size(); ++i)
        connect(opt_glob[i], &QRadioButton::clicked, this, [this, i] {
            input.SetGlobal(i == 0);
            ShowInput();
        });
    for (std::size_t i = 0; i < optPartialBenson.size(); ++i)
        connect(optPartialBenson[i], &QRadioButton::clicked, this, [this, i] {
            input.SetBenson(i == 1);
            ShowInput();
        });
    for (std::size_t i = 0; i < Ref_opt.size(); ++i)
        connect(Ref_opt[i], &QRadioButton::clicked, this, [this, i] {
            input.SetReference(static_cast<int>(i));
            ShowInput();
        });
    connect(RefInput, &QPushButton::clicked, this, &frmCalcIn::TypeReference);
}

void frmCalcIn::ShowInput() {
    GlobalSit->setText(ToQt(input.SituationText()));
    methodFrame->setVisible(input.OffersChoice());
    globHelp->setVisible(input.GlobHelpVisible());
    Check(opt_glob[0], input.Global());
    Check(opt_glob[1], !input.Global());
    for (QRadioButton* option : opt_glob)
        option->setEnabled(input.GlobalOffered());
    referenceFrame->setVisible(input.ReferenceFrameVisible());
    optPartialBenson[0]->setEnabled(input.DatabaseDensityOffered());
    Check(optPartialBenson[0], !input.Benson());
    Check(optPartialBenson[1], input.Benson());
    Bz1->setEnabled(input.ReferenceEnabled());
    referenceText->setEnabled(input.ReferenceEnabled());
    referenceText->setText(ToQt(input.ReferenceText()));
    for (int i = 0; i < static_cast<int>(Ref_opt.size()); ++i) {
        QRadioButton* option = Ref_opt[static_cast<std::size_t>(i)];
        Check(option, input.Reference() == i);
        option->setEnabled(i == 1 ? input.ApproximationOffered() : input.ReferenceEnabled());
    }
    RefInput->setEnabled(input.ReferenceEnabled() && input.Reference() == typedReference);
    escButton->setVisible(input.EscVisible());
}

void frmCalcIn::TypeReference() {
    auto* form = new frmParinput(PointInput(inputContextReference, records), dialogs, this);
    connect(form, &frmParinput::Accepted, this, [this, form] {
        form->close();
        ShowInput();
    });
    form->setModal(true);
    form->show();
}

void frmCalcIn::AcceptInput() {
    input.Accept();
    accept();
}

} // namespace orva
