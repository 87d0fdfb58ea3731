// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/result_list_printer.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>

#include "ui/text.h"

namespace orva {

namespace {

constexpr double fontSize = 10;         // points, where the paper is wide enough
constexpr int charactersAcross = 90;    // of the widest line
constexpr double singleRuleWidth = 0.5; // points
constexpr double doubleRuleWidth = 1.2;
constexpr QMarginsF paperMargins(20, 15, 15, 15); // mm

QFont ListFont(double size) {
    QFont font(QStringLiteral("COURIER"));
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPointSizeF(size);
    return font;
}

// The width of a line of so many characters.
double WidthOf(const QFontMetricsF& metrics, std::size_t characters) {
    return metrics.horizontalAdvance(QString(static_cast<qsizetype>(characters), u'X'));
}

// One list on its way to the paper, from the top of the first page downwards.
class PaperList {
public:
    PaperList(QPrinter& ownPrinter, QPainter& ownPainter)
        : printer(ownPrinter), painter(ownPainter),
          page(printer.pageLayout().paintRectPixels(printer.resolution()).size()), font(FittingFont()),
          metrics(font, &printer) {
        painter.setFont(font);
    }

    bool Draw(const ListLine& line) {
        if (y + metrics.lineSpacing() > page.height()) {
            if (!printer.newPage())
                return false;
            y = 0;
        }
        if (line.width > 0)
            DrawRule(line);
        // Columns keep their places whatever typeface stands in for Courier.
        for (const ListPiece& piece : line.pieces)
            painter.drawText(QPointF(WidthOf(metrics, piece.column), y + metrics.ascent()), ToQt(piece.text));
        y += metrics.lineSpacing();
        return true;
    }

private:
    QFont FittingFont() const {
        const double across = WidthOf(QFontMetricsF(ListFont(fontSize), &printer), charactersAcross);
        return ListFont(fontSize * std::min(1.0, page.width() / across));
    }

    void DrawRule(const ListLine& line) {
        const double point = printer.resolution() / 72.0;
        const bool heavy = line.kind == ListLineKind::DoubleRule;
        painter.setPen(QPen(Qt::black, point * (heavy ? doubleRuleWidth : singleRuleWidth)));
        const double middle = y + (line.kind == ListLineKind::Underline ? point : metrics.lineSpacing() / 2);
        painter.drawLine(QPointF(0, middle), QPointF(WidthOf(metrics, line.width), middle));
    }

    QPrinter& printer;
    QPainter& painter;
    QSizeF page;
    QFont font;
    QFontMetricsF metrics;
    double y = 0;
};

} // namespace

bool DrawResultList(const std::vector<ListLine>& lines, QPrinter& printer) {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    PaperList paper(printer, painter);
    for (const ListLine& line : lines)
        if (!paper.Draw(line))
            return false;
    return painter.end();
}

bool PrintResultList(const std::vector<ListLine>& lines, Dialogs& dialogs, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("ORVA-Ergebnisliste"));
    printer.setPageMargins(paperMargins, QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (!DrawResultList(lines, printer))
        dialogs.Show({"Ausgabe-Fehler", "Der Drucker ist nicht bereit.", MessageIcon::Exclamation});
    return true;
}

} // namespace orva
