// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/result_window_view.h"

#include <algorithm>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

struct ExtensionRow {
    const char* name;
    int index;
    const char* text;
};

constexpr QSize startSize(860, 660);

const ExtensionRow extensions[] = {
    {"chkUHS", -1, "thermodynamische Funkt. h. s, g, u, a, ..."},
    {"ResPlus", 1,
     "diff. Joule-Thomson-Koeffizient, Fugazitätskoeffizienten, mechanische Koeffizienten, "
     "Residualfunktionen"},
    {"ResPlus", 2, "Ableitungen nach T, p, v"},
};

} // namespace

frmCalcOut::frmCalcOut(Session& ownSession, BusyCursor& cursor, QWidget* parent)
    : QWidget(parent, Qt::Window), session(ownSession), busy(cursor),
      model(session.Calculation(), session.model.substance), par1(AddLabel("par1")), par2(AddLabel("par2")),
      co1(AddLabel("co1")), co2(AddLabel("co2")), statusZeile(MutedLabel(ToQt(model.StatusLine()), this)),
      report(new ReportView(this)) {
    setObjectName(QStringLiteral("frmCalcOut"));
    setWindowTitle(ToQt(model.Caption()));
    setAttribute(Qt::WA_DeleteOnClose);
    statusZeile->setObjectName(QStringLiteral("statusZeile"));
    statusZeile->setWordWrap(true);
    statusZeile->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addWidget(InputFrame());
    column->addWidget(co1);
    column->addWidget(co2);
    column->addWidget(report, 1);
    column->addWidget(ExtensionFrame());
    column->addWidget(ProtocolFrame());
    column->addLayout(ButtonRow());
    column->addWidget(statusZeile);
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
    auto* frame = new QGroupBox(ToQt(model.InputCaption()).trimmed(), this);
    frame->setObjectName(QStringLiteral("fraBatchVorgabe"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(par1);
    row->addSpacing(32);
    row->addWidget(par2);
    row->addStretch(1);
    for (const auto& [name, text] : {std::pair{"cmdRueck", "< Zurück"}, {"cmdVor", "Vor >"}}) {
        QPushButton* step = AddButton(name, QString::fromUtf8(text));
        step->setEnabled(false);
        row->addWidget(step);
    }
    return frame;
}

// The blocks that extend the report are no part of it yet, so their boxes cannot be ticked.
QGroupBox* frmCalcOut::ExtensionFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Erweiterte Ausgabe"), this);
    frame->setObjectName(QStringLiteral("fraCalcErweitert"));
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(2);
    for (const ExtensionRow& row : extensions) {
        auto* box = new QCheckBox(QString::fromUtf8(row.text), frame);
        box->setObjectName(row.index < 0 ? QString(QLatin1String(row.name))
                                         : ControlName(row.name, row.index));
        box->setEnabled(false);
        column->addWidget(box);
    }
    return frame;
}

QGroupBox* frmCalcOut::ProtocolFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Protokoll"), this);
    frame->setObjectName(QStringLiteral("fraProtokoll"));
    auto* separator = new QComboBox(frame);
    separator->setObjectName(QStringLiteral("cmbSep"));
    separator->addItems({QStringLiteral("Semikolon"), QStringLiteral("Komma"), QStringLiteral("Tab")});
    auto* add = AddButton("cmdProtokoll", QStringLiteral("Ergebnis protokollieren"));
    auto* next =
        AddButton("cmdOpenNew",
                  QStringLiteral("File schließen / neues File öffnen  und Protokoll in Clipboard kopieren"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(separator);
    row->addWidget(add);
    row->addWidget(next);
    row->addStretch(1);
    frame->setEnabled(false);
    return frame;
}

QLayout* frmCalcOut::ButtonRow() {
    auto* row = new QHBoxLayout;
    for (const auto& [name, text] : {std::pair{"cmdIsoCalc", "Iso-Rechner"},
                                     {"cmdCEOSDiagnose", "CEOS-Diagnose"},
                                     {"cmdShowManuInput", "XY-Daten- Editor"}}) {
        QPushButton* button = AddButton(name, QString::fromUtf8(text));
        button->setEnabled(false);
        row->addWidget(button);
    }
    row->addStretch(1);
    QPushButton* close = AddButton("cmdCalc_OK", ToQt(model.CloseText()));
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    row->addWidget(close);
    return row;
}

void frmCalcOut::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void frmCalcOut::Calculate() {
    Refresh();
    for (const Message& message : model.Result().messages)
        session.dialogs.Show(message);
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
    report->Show(result);
}

} // namespace orva
