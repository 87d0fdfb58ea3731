// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/report_view.h"

#include <cmath>

#include <QScrollBar>
#include <QTextDocument>
#include <QVBoxLayout>

#include "calc/report_text.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

// Character columns of the report: the values of the liquid, of the vapour, and the gap between both heads.
constexpr int columnL = 34;
constexpr int columnV = 54;
constexpr int columnSame = 43;
constexpr int visibleColumns = 78;
constexpr int visibleLines = 14;

} // namespace

ReportView::ReportView(QWidget* parent)
    : QWidget(parent), heads(new QWidget(this)), lblLphase(AddHead(QStringLiteral("lblLphase"))),
      lblVphase(AddHead(QStringLiteral("lblVphase"))), lblGleich(AddHead(QStringLiteral("lblGleich"))),
      Liste(new QPlainTextEdit(this)) {
    lblGleich->setText(QStringLiteral("identisch"));
    Liste->setObjectName(QStringLiteral("Liste"));
    Liste->setAccessibleName(QStringLiteral("Ergebnis"));
    Liste->setReadOnly(true);
    Liste->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Liste->setLineWrapMode(QPlainTextEdit::NoWrap);
    Liste->setFont(FixedPitchFont());
    Liste->setTabChangesFocus(true);
    const QFontMetricsF metrics(Liste->font());
    Liste->setMinimumSize(static_cast<int>(metrics.horizontalAdvance(u'0') * visibleColumns) + 30,
                          static_cast<int>(metrics.lineSpacing() * visibleLines));
    heads->setFixedHeight(static_cast<int>(std::ceil(metrics.height())) + 4);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(heads);
    column->addWidget(Liste, 1);
    connect(Liste->horizontalScrollBar(), &QScrollBar::valueChanged, this, &ReportView::PlaceHeads);
}

QLabel* ReportView::AddHead(const QString& name) {
    auto* head = new QLabel(heads);
    head->setObjectName(name);
    QFont font = FixedPitchFont();
    font.setBold(true);
    head->setFont(font);
    head->hide();
    return head;
}

void ReportView::PlaceHeads() {
    const QFontMetricsF metrics(Liste->font());
    const double left =
        Liste->frameWidth() + Liste->document()->documentMargin() - Liste->horizontalScrollBar()->value();
    const auto place = [&](QLabel* head, int column) {
        head->adjustSize();
        head->move(static_cast<int>(std::lround(left + column * metrics.horizontalAdvance(u'0'))), 2);
    };
    place(lblLphase, columnL);
    place(lblVphase, columnV);
    place(lblGleich, columnSame);
}

// Who reads the derivatives of one data set after the other stays at their place.
void ReportView::ShowText(const QString& text) {
    QScrollBar* const bars[] = {Liste->verticalScrollBar(), Liste->horizontalScrollBar()};
    const int places[] = {bars[0]->value(), bars[1]->value()};
    Liste->setPlainText(text);
    for (std::size_t i = 0; i < std::size(bars); ++i)
        bars[i]->setValue(places[i]);
}

void ReportView::Show(const PointResult& result) {
    lblLphase->setText(ToQt(result.lblLphase));
    lblVphase->setText(ToQt(result.lblVphase));
    lblLphase->setVisible(result.lblLphaseVisible);
    lblVphase->setVisible(result.lblVphaseVisible);
    lblGleich->setVisible(result.lblGleichVisible);
    QPalette colours = palette();
    colours.setColor(QPalette::Text, ReportColour(result.reportColour, colours));
    Liste->setPalette(colours);
    ShowText(ToQt(WithVisibleRules(result.report)).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    PlaceHeads();
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceHeads();
}

} // namespace orva
