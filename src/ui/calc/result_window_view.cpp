// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/result_window_view.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "calc/result_list.h"
#include "text/paths.h"
#include "ui/calc/result_list_printer.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr QSize startSize(860, 700);
constexpr QColor diagnosisColour(192, 255, 192);

constexpr const char* extensionTexts[] = {
    "diff. Joule-Thomson-Koeffizient, Fugazitätskoeffizienten, mechanische Koeffizienten, "
    "Residualfunktionen",
    "Ableitungen nach T, p, v"};

// Light green with dark text whatever the colours of the desktop.
QString DiagnosisStyle() {
    return QStringLiteral("background-color: %1; color: black;").arg(diagnosisColour.name());
}

} // namespace

frmCalcOut::frmCalcOut(Session& ownSession, BusyCursor& cursor, QWidget* parent)
    : QWidget(parent, Qt::Window), session(ownSession), busy(cursor), model(session.Calculation()),
      par1(AddLabel("par1")), par2(AddLabel("par2")), co1(AddLabel("co1")), co2(AddLabel("co2")),
      statusZeile(MutedLabel(ToQt(model.StatusLine()), this)), report(new ReportView(this)) {
    setObjectName(QStringLiteral("frmCalcOut"));
    setWindowTitle(ToQt(model.Caption()));
    setAttribute(Qt::WA_DeleteOnClose);
    statusZeile->setObjectName(QStringLiteral("statusZeile"));
    statusZeile->setWordWrap(true);
    statusZeile->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(8);
    inputFrame = InputFrame();
    column->addWidget(inputFrame);
    column->addWidget(co1);
    column->addWidget(co2);
    column->addWidget(report, 1);
    column->addWidget(ExtensionFrame());
    column->addWidget(OutputFrame());
    column->addWidget(ProtocolFrame());
    column->addLayout(ButtonRow());
    column->addWidget(statusZeile);
    ConnectControls();
    ShowControls();
    resize(std::max(sizeHint().width(), startSize.width()), startSize.height());
}

QLabel* frmCalcOut::AddLabel(const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1); // a number of 300 digits must not widen the window
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPushButton* frmCalcOut::AddButton(const char* name, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true);
    return button;
}

QGroupBox* frmCalcOut::InputFrame() {
    auto* frame = new QGroupBox(ToQt(model.InputCaption()), this);
    frame->setObjectName(QStringLiteral("fraBatchVorgabe"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(par1);
    row->addSpacing(32);
    row->addWidget(par2);
    row->addStretch(1);
    cmdRueck = AddButton("cmdRueck", QStringLiteral("< &Zurück"));
    cmdVor = AddButton("cmdVor", QStringLiteral("&Vor >"));
    for (QPushButton* step : {cmdRueck, cmdVor})
        row->addWidget(step);
    return frame;
}

QGroupBox* frmCalcOut::ExtensionFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Erweiterte Ausgabe"), this);
    frame->setObjectName(QStringLiteral("fraCalcErweitert"));
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(2);
    const auto add = [&](const QString& name, const char* text) {
        auto* box = new QCheckBox(QString::fromUtf8(text), frame);
        box->setObjectName(name);
        column->addWidget(box);
        return box;
    };
    chkUHS = add(QStringLiteral("chkUHS"), "thermodynamische Funkt. h. s, g, u, a, ...");
    for (std::size_t i = 0; i < ResPlus.size(); ++i)
        ResPlus[i] = add(ControlName("ResPlus", static_cast<int>(i) + 1), extensionTexts[i]);
    return frame;
}

QGroupBox* frmCalcOut::OutputFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Ergebnisliste"), this);
    frame->setObjectName(QStringLiteral("fraResultOutput"));
    auto* row = new QHBoxLayout(frame);
    const char* const texts[] = {"keine", "Drucker", "File"};
    for (std::size_t i = 0; i < optResultPrint.size(); ++i) {
        optResultPrint[i] = new QRadioButton(QLatin1String(texts[i]), frame);
        optResultPrint[i]->setObjectName(ControlName("optResultPrint", static_cast<int>(i)));
        row->addWidget(optResultPrint[i]);
    }
    chkFuncPrint = new QCheckBox(QStringLiteral("mit Ableitungen und Funktionen"), frame);
    chkFuncPrint->setObjectName(QStringLiteral("chkFuncPrint"));
    row->addWidget(chkFuncPrint);
    row->addStretch(1);
    return frame;
}

QGroupBox* frmCalcOut::ProtocolFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Protokoll"), this);
    frame->setObjectName(QStringLiteral("fraProtokoll"));
    cmbSep = new QComboBox(frame);
    cmbSep->setObjectName(QStringLiteral("cmbSep"));
    cmbSep->setToolTip(QStringLiteral("Trennzeichen der Datei"));
    cmbSep->addItems({QStringLiteral("Semikolon"), QStringLiteral("Komma"), QStringLiteral("Tab")});
    cmdProtokoll = AddButton("cmdProtokoll", QStringLiteral("Ergebnis &protokollieren"));
    cmdOpenNew =
        AddButton("cmdOpenNew",
                  QStringLiteral("&File schließen / neues File öffnen  und Protokoll in Clipboard kopieren"));
    lblProtText2 = MutedLabel(QString(), frame);
    lblProtText2->setObjectName(QStringLiteral("lblProtText2"));
    auto* row = new QHBoxLayout;
    row->addWidget(cmbSep);
    row->addWidget(cmdProtokoll);
    row->addWidget(cmdOpenNew);
    row->addStretch(1);
    lblProtRows = MutedLabel(QString(), frame);
    lblProtRows->setObjectName(QStringLiteral("lblProtRows"));
    auto* state = new QHBoxLayout;
    state->setSpacing(24);
    state->addWidget(lblProtText2);
    state->addWidget(lblProtRows);
    state->addStretch(1);
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(4);
    column->addLayout(row);
    column->addLayout(state);
    return frame;
}

// How many rows the protocol holds, and the file that they go to.
void frmCalcOut::ShowProtocol() {
    const Protocol& protocol = session.protocol;
    const int rows = protocol.protocolRows();
    cmbSep->setCurrentIndex(ListSeparatorIndex(session.options.listSeparator));
    cmdOpenNew->setEnabled(protocol.protocolOpen());
    lblProtText2->setText(ToQt(protocol.protocolFile));
    lblProtRows->setText(QStringLiteral("%1 %2").arg(rows).arg(rows == 1 ? QStringLiteral("Zeile")
                                                                         : QStringLiteral("Zeilen")));
    lblProtRows->setVisible(rows > 0);
}

void frmCalcOut::RecordResult() {
    session.protocol.Record(model.Result().results, session.Calculation());
    ShowProtocol();
}

void frmCalcOut::CloseProtocol() {
    const std::optional<std::string> text = session.protocol.OpenNew(session.Calculation());
    if (text)
        QGuiApplication::clipboard()->setText(ToQt(*text));
    ShowProtocol();
}

QLayout* frmCalcOut::ButtonRow() {
    auto* row = new QHBoxLayout;
    cmdIsoCalc = AddButton("cmdIsoCalc", QStringLiteral("&Iso-Rechner"));
    cmdCEOSDiagnose = AddButton("cmdCEOSDiagnose", QStringLiteral("CEOS-&Diagnose"));
    QPushButton* editor = AddButton("cmdShowManuInput", QStringLiteral("XY-Daten- Editor"));
    editor->setEnabled(false);
    for (QPushButton* button : {cmdIsoCalc, cmdCEOSDiagnose, editor})
        row->addWidget(button);
    row->addStretch(1);
    QPushButton* close = AddButton("cmdCalc_OK", ToQt(model.CloseText()));
    connect(close, &QPushButton::clicked, this, &frmCalcOut::Finish);
    row->addWidget(close);
    return row;
}

void frmCalcOut::ConnectControls() {
    connect(cmdRueck, &QPushButton::clicked, this, [this] { Step(model.StepBack()); });
    connect(cmdVor, &QPushButton::clicked, this, [this] { Step(model.StepForward()); });
    connect(chkUHS, &QCheckBox::clicked, this, [this](bool on) {
        model.SetFunctionList(on);
        Calculate();
    });
    for (int i = 0; i < static_cast<int>(ResPlus.size()); ++i)
        connect(ResPlus[static_cast<std::size_t>(i)], &QCheckBox::clicked, this, [this, i](bool on) {
            model.SetExtension(i + 1, on);
            Calculate();
        });
    for (int i = 0; i < static_cast<int>(optResultPrint.size()); ++i)
        connect(optResultPrint[static_cast<std::size_t>(i)], &QRadioButton::clicked, this, [this, i] {
            model.SetOutput(static_cast<ResultOutput>(i));
            ShowControls();
        });
    connect(chkFuncPrint, &QCheckBox::clicked, this, [this](bool on) { model.SetPrintFunctions(on); });
    connect(cmbSep, &QComboBox::activated, this, [this](int index) {
        session.options.listSeparator = listSeparators.at(static_cast<std::size_t>(index));
        ShowProtocol(); // the list of choices may have been a window of its own
    });
    connect(cmdProtokoll, &QPushButton::clicked, this, &frmCalcOut::RecordResult);
    connect(cmdOpenNew, &QPushButton::clicked, this, &frmCalcOut::CloseProtocol);
    connect(cmdIsoCalc, &QPushButton::clicked, this, &frmCalcOut::IsoCalcWanted);
    connect(cmdCEOSDiagnose, &QPushButton::clicked, this, &frmCalcOut::DiagnosisWanted);
}

void frmCalcOut::ShowControls() {
    inputFrame->setTitle(ToQt(model.InputCaption()));
    inputFrame->setVisible(model.PointVisible());
    co1->setVisible(model.PointVisible());
    co2->setVisible(model.PointVisible());
    cmdRueck->setEnabled(model.StepsEnabled());
    cmdVor->setEnabled(model.StepsEnabled());
    findChild<QGroupBox*>(QStringLiteral("fraCalcErweitert"))->setVisible(model.ExtensionVisible());
    findChild<QGroupBox*>(QStringLiteral("fraCalcErweitert"))->setEnabled(model.ExtensionEnabled());
    chkUHS->setVisible(model.FunctionListVisible());
    chkUHS->setChecked(model.FunctionListChecked());
    findChild<QGroupBox*>(QStringLiteral("fraResultOutput"))->setVisible(model.OutputVisible());
    findChild<QGroupBox*>(QStringLiteral("fraProtokoll"))->setVisible(model.ProtocolVisible());
    optResultPrint[static_cast<std::size_t>(model.Output())]->setChecked(true);
    chkFuncPrint->setEnabled(model.PrintFunctionsEnabled());
    ShowProtocol();
    cmdIsoCalc->setEnabled(model.IsoCalcEnabled());
    const bool diagnosis = model.Result().diagnoseEnabled;
    cmdCEOSDiagnose->setEnabled(diagnosis);
    cmdCEOSDiagnose->setStyleSheet(diagnosis ? DiagnosisStyle() : QString());
}

void frmCalcOut::Step(StepResult step) {
    if (step == StepResult::Beep) {
        QApplication::beep();
        return;
    }
    Calculate();
}

// False when the user would rather stay.
bool frmCalcOut::PutOut() {
    ResultList list = MakeResultList(session.Calculation(), model.BatchResults());
    list.printFunctions = model.PrintFunctions();
    list.title = model.Title();
    list.date = session.machine.ShortDate();
    list.batchFile = session.state.batchFile;
    if (model.Output() == ResultOutput::Printer)
        return PrintResultList(ResultListForPaper(list), session.dialogs, this);
    const std::optional<std::string> file =
        session.dialogs.ChooseFile({"ORVA-Ergebnisliste speichern unter ...", "Ergebnis-Datei (*.LST)|*.LST",
                                    PathText(session.machine.WritableFolder()), "", ".LST", true});
    if (file)
        WriteResultList(*file, list, session.machine, session.dialogs);
    return file.has_value();
}

void frmCalcOut::Finish() {
    if (model.OutputVisible() && model.Output() != ResultOutput::None && !PutOut())
        return;
    model.SetOutput(ResultOutput::None);
    ShowControls();
    close();
    emit Finished();
}

// Other windows may have changed the separator or the point meanwhile.
void frmCalcOut::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    cmdIsoCalc->setEnabled(model.IsoCalcEnabled());
    ShowProtocol();
}

void frmCalcOut::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void frmCalcOut::Calculate() {
    Refresh();
    // A box may outlive the window.
    Dialogs& boxes = session.dialogs;
    const std::vector<Message> messages = model.Result().messages;
    for (const Message& message : messages)
        boxes.Show(message);
}

void frmCalcOut::Refresh() {
    {
        const BusyScope scope(busy);
        model.Calculate();
    }
    const PointResult result = model.Result();
    ShowResultLabel(*par1, result.par1);
    ShowResultLabel(*par2, result.par2);
    ShowResultLabel(*co1, result.co1);
    ShowResultLabel(*co2, result.co2);
    co2->setAutoFillBackground(result.co2.reportBackground);
    co2->setBackgroundRole(result.co2.reportBackground ? QPalette::Base : QPalette::NoRole);
    report->Show(result);
    ShowControls();
    emit Calculated();
}

} // namespace orva
