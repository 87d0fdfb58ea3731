// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/iso_window.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMetaMethod>
#include <QRadioButton>

#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr std::array<const char*, isoFunctionCount> functionNames = {
    "Volumen",        "Enthalpie",     "Entropie",      "Freie Enthalpie",
    "Innere Energie", "Freie Energie", "Exergie von H", "Exergie von U"};

} // namespace

QValidator::State PlainNumberValidator::validate(QString& input, int& position) const {
    return input.contains(u'e', Qt::CaseInsensitive) ? Invalid : NumberValidator::validate(input, position);
}

frmIsoCalc::frmIsoCalc(Session& ownSession, BusyCursor& cursor, QWidget* parent)
    : QDialog(parent), session(ownSession), busy(cursor), model(session.Calculation(), session.batch),
      lblTpVorgabe(new QLabel(this)), lblFuConst(new QLabel(this)), lblFuUnit(MutedLabel(QString(), this)),
      txtTpVorgabe(AddField("txtTpVorgabe")), txtFuConst(AddField("txtFuConst")),
      txtTpCalc(new QLineEdit(this)), cmdCalc(new QPushButton(QStringLiteral("&Berechnen"), this)),
      cmdShowManuInput(new QPushButton(QStringLiteral("XY-Daten- Editor"), this)) {
    setObjectName(QStringLiteral("frmIsoCalc"));
    setWindowTitle(QStringLiteral("Iso-Rechner"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    auto* choices = new QHBoxLayout;
    choices->addWidget(ChoiceFrame(QStringLiteral("Gesucht"), "optIsoTp",
                                   {QStringLiteral("T bei gegebenem p"), QStringLiteral("p bei gegebenem T")},
                                   model.IsoVariable(), &IsoCalculation::optIsoTp));
    choices->addWidget(ChoiceFrame(QStringLiteral("Phase"), "optIsoPhase",
                                   {QStringLiteral("V-Phase"), QStringLiteral("L-Phase")}, model.IsoPhase(),
                                   &IsoCalculation::optIsoPhase));
    column->addLayout(choices);
    column->addWidget(FunctionFrame());
    column->addWidget(ValueFrame());
    AddButtons(*column);
    OrderTabs();
    column->setSizeConstraint(QLayout::SetFixedSize);
    ShowFields();
    txtTpVorgabe->setFocus();
    txtTpVorgabe->selectAll();
}

NumberField* frmIsoCalc::AddField(const char* name) {
    auto* field = new NumberField(this);
    field->setObjectName(QLatin1String(name));
    field->setValidator(new PlainNumberValidator(field));
    return field;
}

QGroupBox* frmIsoCalc::ChoiceFrame(const QString& title, const char* array, const QStringList& texts,
                                   int chosen, void (IsoCalculation::*choose)(int)) {
    auto* frame = new QGroupBox(title, this);
    auto* group = new QButtonGroup(frame);
    auto* column = new QVBoxLayout(frame);
    for (int i = 0; i < texts.size(); ++i) {
        auto* option = new QRadioButton(texts[i], frame);
        option->setObjectName(ControlName(array, i));
        option->setChecked(i == chosen);
        group->addButton(option, i);
        column->addWidget(option);
    }
    connect(group, &QButtonGroup::idClicked, this, [this, choose](int id) {
        (model.*choose)(id);
        ShowFields();
    });
    return frame;
}

// Each function with its value at the working point.
QGroupBox* frmIsoCalc::FunctionFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Funktion"), this);
    auto* group = new QButtonGroup(frame);
    auto* grid = new QGridLayout(frame);
    grid->setVerticalSpacing(3);
    const QFontMetrics metrics(FixedPitchFont());
    for (int i = 0; i < isoFunctionCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* option = new QRadioButton(QLatin1String(isoFunctionLabels[at]), frame);
        option->setObjectName(ControlName("OptIsoFu", i));
        option->setFont(FixedPitchFont());
        option->setAccessibleName(QLatin1String(functionNames[at]));
        option->setChecked(i == model.IsoFunction());
        group->addButton(option, i);
        values[at] = new QLabel(frame);
        values[at]->setObjectName(ControlName("lblFu", i));
        values[at]->setFont(FixedPitchFont());
        values[at]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        values[at]->setMinimumWidth(metrics.horizontalAdvance(QStringLiteral("-1.234567E-12")));
        grid->addWidget(option, i, 0);
        grid->addWidget(values[at], i, 1);
        units[at] = new QLabel(frame);
        units[at]->setObjectName(ControlName("lblUnit", i));
        grid->addWidget(units[at], i, 2);
        grid->addWidget(MutedLabel(QLatin1String(functionNames[at]), frame), i, 3);
    }
    grid->setColumnStretch(3, 1);
    connect(group, &QButtonGroup::idClicked, this, [this](int id) {
        model.OptIsoFu(id);
        ShowFields();
    });
    return frame;
}

QGroupBox* frmIsoCalc::ValueFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Vorgabe und Lösung"), this);
    auto* grid = new QGridLayout(frame);
    lblTpVorgabe->setObjectName(QStringLiteral("lblTpVorgabe"));
    lblFuConst->setObjectName(QStringLiteral("lblFuConst"));
    for (QLabel* label : {lblTpVorgabe, lblFuConst})
        label->setFont(FixedPitchFont());
    lblTpVorgabe->setMinimumWidth(
        QFontMetrics(FixedPitchFont()).horizontalAdvance(QStringLiteral("p/kPa = ")));
    txtTpCalc->setObjectName(QStringLiteral("txtTpCalc"));
    txtTpCalc->setReadOnly(true);
    QFont bold = FixedPitchFont();
    bold.setBold(true);
    txtTpCalc->setFont(bold);
    txtTpCalc->setAccessibleName(QStringLiteral("Lösung"));
    grid->addWidget(lblTpVorgabe, 0, 0, Qt::AlignRight);
    grid->addWidget(txtTpVorgabe, 0, 1);
    grid->addWidget(lblFuConst, 1, 0, Qt::AlignRight);
    grid->addWidget(txtFuConst, 1, 1);
    grid->addWidget(lblFuUnit, 1, 2);
    grid->addWidget(txtTpCalc, 2, 1);
    grid->setColumnMinimumWidth(2, lblFuUnit->fontMetrics().horizontalAdvance(QStringLiteral("kJ/(kmol K)")));
    grid->setColumnStretch(1, 1);
    return frame;
}

void frmIsoCalc::AddButtons(QBoxLayout& column) {
    const auto name = [](QPushButton* button, const char* text) {
        button->setObjectName(QLatin1String(text));
        button->setAutoDefault(false);
        return button;
    };
    name(cmdCalc, "cmdCalc")->setDefault(true);
    name(cmdShowManuInput, "cmdShowManuInput");
    auto* reset = name(new QPushButton(QStringLiteral("&Zurücksetzen"), this), "cmdReset");
    auto* close = name(new QPushButton(QStringLiteral("&Schließen"), this), "cmdEsc");
    auto* row = new QHBoxLayout;
    row->addWidget(HelpButton(QStringLiteral("cmdIsoHelp"), this));
    row->addWidget(cmdShowManuInput);
    row->addStretch(1);
    for (QPushButton* button : {cmdCalc, reset, close})
        row->addWidget(button);
    column.addSpacing(6);
    column.addLayout(row);
    // Return in a field reaches the default button by itself.
    connect(cmdCalc, &QPushButton::clicked, this, &frmIsoCalc::CalculateNow);
    connect(reset, &QPushButton::clicked, this, &frmIsoCalc::ResetNow);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(cmdShowManuInput, &QPushButton::clicked, this, &frmIsoCalc::ManuInputWanted);
}

// The fields are made before the frames that hold them.
void frmIsoCalc::OrderTabs() {
    QWidget* before = findChild<QRadioButton*>(ControlName("OptIsoFu", isoFunctionCount - 1));
    const auto follow = [&](QWidget* next) {
        setTabOrder(before, next);
        before = next;
    };
    for (QWidget* field : std::initializer_list<QWidget*>{txtTpVorgabe, txtFuConst, txtTpCalc})
        follow(field);
    for (const char* name : {"cmdIsoHelp", "cmdShowManuInput", "cmdCalc", "cmdReset", "cmdEsc"})
        follow(findChild<QAbstractButton*>(QLatin1String(name)));
}

void frmIsoCalc::showEvent(QShowEvent* event) {
    cmdShowManuInput->setEnabled(isSignalConnected(QMetaMethod::fromSignal(&frmIsoCalc::ManuInputWanted)));
    QDialog::showEvent(event);
}

void frmIsoCalc::ShowFields() {
    lblTpVorgabe->setText(ToQt(model.GivenLabel()));
    lblFuConst->setText(ToQt(model.FunctionLabel()));
    lblFuUnit->setText(ToQt(model.FunctionUnit(model.IsoFunction())));
    txtTpVorgabe->setAccessibleName(ToQt(model.GivenLabel()).simplified());
    txtFuConst->setAccessibleName(ToQt(model.FunctionLabel()).simplified());
    txtTpVorgabe->setText(ToQt(model.txtTpVorgabe));
    txtFuConst->setText(ToQt(model.txtFuConst));
    ShowValues();
}

void frmIsoCalc::ShowValues() {
    for (int i = 0; i < isoFunctionCount; ++i) {
        values[static_cast<std::size_t>(i)]->setText(ToQt(model.CurrentValue(i)));
        units[static_cast<std::size_t>(i)]->setText(ToQt(model.FunctionUnit(i)));
    }
    txtTpCalc->setText(ToQt(model.txtTpCalc));
}

void frmIsoCalc::Follow() {
    if (!model.Follow())
        return;
    for (int i = 0; i < 2; ++i)
        findChild<QRadioButton*>(ControlName("optIsoPhase", i))->setChecked(i == model.IsoPhase());
    ShowFields();
}

void frmIsoCalc::CalculateNow() {
    model.txtTpVorgabe = FromQt(txtTpVorgabe->text());
    model.txtFuConst = FromQt(txtFuConst->text());
    std::optional<Message> refused;
    {
        const BusyScope scope(busy);
        refused = model.cmdCalc();
    }
    if (refused) {
        session.dialogs.Show(*refused);
        return;
    }
    ShowValues();
    emit WorkingPointChanged();
}

void frmIsoCalc::ResetNow() {
    {
        const BusyScope scope(busy);
        model.cmdReset();
    }
    ShowFields();
    emit WorkingPointChanged();
}

} // namespace orva
