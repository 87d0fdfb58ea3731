// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curve_labels.h"

#include <qcustomplot.h>

#include "diagrams/label_layout.h"

namespace orva {

namespace {

// The text stands on white, so that the line behind does not cross it.
class CurveLabel : public QCPItemText {
public:
    CurveLabel(QCustomPlot* plot, const QCPCurve& labelled, QString wholeText, int point)
        : QCPItemText(plot), curve(labelled), text(std::move(wholeText)), preferredPoint(point) {}

    const QCPCurve& curve;
    const QString text;
    const int preferredPoint;

    QString Number() const { return text.section(' ', 0, 0); }

    QSizeF SizeOf(const QString& words) const {
        const QRect box = QFontMetrics(font()).boundingRect(QRect(), Qt::TextDontClip, words);
        return box.marginsAdded(padding()).size();
    }
};

LabelledCurve OnSheet(const CurveLabel& label) {
    LabelledCurve curve;
    const QCPAxis* x = label.curve.keyAxis();
    const QCPAxis* y = label.curve.valueAxis();
    curve.points.reserve(static_cast<std::size_t>(label.curve.data()->size()));
    for (const QCPCurveData& point : *label.curve.data())
        curve.points.push_back({x->coordToPixel(point.key), y->coordToPixel(point.value)});
    curve.joined = label.curve.lineStyle() == QCPCurve::lsLine;
    curve.preferredPoint = label.preferredPoint;
    const QSizeF size = label.SizeOf(label.text);
    curve.width = size.width();
    curve.height = size.height();
    curve.shortWidth = label.SizeOf(label.Number()).width();
    return curve;
}

// Texts of marks and symbols of points, which labels must not hide.
void BlockOthers(QCustomPlot& plot, LabelLayout& layout) {
    for (int i = 0; i < plot.itemCount(); ++i)
        if (const auto* text = qobject_cast<const QCPItemText*>(plot.item(i));
            text != nullptr && dynamic_cast<const CurveLabel*>(text) == nullptr) {
            const QPointF a = text->topLeft->pixelPosition();
            const QPointF b = text->bottomRight->pixelPosition();
            layout.Block({a.x(), a.y(), b.x(), b.y()});
        }
    for (int i = 0; i < plot.plottableCount(); ++i)
        if (const auto* curve = qobject_cast<const QCPCurve*>(plot.plottable(i));
            curve != nullptr && curve->data()->size() == 1) {
            const QCPCurveData& point = *curve->data()->constBegin();
            const double x = curve->keyAxis()->coordToPixel(point.key);
            const double y = curve->valueAxis()->coordToPixel(point.value);
            const double half = curve->scatterStyle().size() / 2 + 1;
            layout.Block({x - half, y - half, x + half, y + half});
        }
}

} // namespace

void AddCurveLabel(const QCPCurve& curve, const QString& text, int preferredPoint, const QFont& font,
                   const QColor& colour) {
    auto* label = new CurveLabel(curve.parentPlot(), curve, text, preferredPoint);
    label->setText(text);
    label->setFont(font);
    label->setColor(colour);
    label->setBrush(QColor(255, 255, 255, 225));
    label->setPadding(QMargins(3, 0, 3, 0));
    label->setPositionAlignment(Qt::AlignCenter);
    label->position->setType(QCPItemPosition::ptAbsolute);
    label->setClipToAxisRect(true);
}

void PlaceCurveLabels(QCustomPlot& plot) {
    std::vector<CurveLabel*> labels;
    std::vector<LabelledCurve> curves;
    for (int i = 0; i < plot.itemCount(); ++i)
        if (auto* label = dynamic_cast<CurveLabel*>(plot.item(i))) {
            labels.push_back(label);
            curves.push_back(OnSheet(*label));
        }
    if (labels.empty())
        return;
    const QRect frame = plot.axisRect()->rect();
    LabelLayout layout({static_cast<double>(frame.left()), static_cast<double>(frame.top()),
                        static_cast<double>(frame.right()), static_cast<double>(frame.bottom())});
    BlockOthers(plot, layout);
    const auto places = layout.Place(curves);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i]->setVisible(places[i].has_value());
        if (!places[i])
            continue;
        labels[i]->setText(places[i]->shortened ? labels[i]->Number() : labels[i]->text);
        labels[i]->position->setPixelPosition({places[i]->centre.x, places[i]->centre.y});
    }
}

} // namespace orva
