// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/vessel_drawing.h"

#include <QPainterPath>

#include "ui/theme.h"

namespace orva {

namespace {

// In units of the outer diameter.
constexpr double wallWidth = 0.032;
constexpr double outlineWidth = 0.007;
constexpr double saddleWidth = 0.62, saddleHeight = 0.16, footHeight = 0.035;
constexpr double letterSize = 0.11;
constexpr double markReach = 0.055;         // of the level mark beyond the wall
constexpr double smallestLetterHeight = 18; // of a part that holds a letter, diameter 100

struct ColourRow {
    VesselColour colour;
    QColor onLight, onDark;
};

const ColourRow colourRows[] = {
    {VesselColour::Outline, {0x7A, 0x7F, 0x87}, {0xA6, 0xAC, 0xB4}},
    {VesselColour::Body, {0xD3, 0xD6, 0xDA}, {0x6A, 0x6F, 0x77}},
    {VesselColour::Empty, {0xF4, 0xF5, 0xF6}, {0x2A, 0x2C, 0x30}},
    {VesselColour::Vapour, {0xE6, 0xF1, 0xFA}, {0x33, 0x43, 0x52}},
    {VesselColour::Liquid, {0x4A, 0x90, 0xD2}, {0x3D, 0x7F, 0xC0}},
    {VesselColour::Supercritical, {0xB9, 0xCF, 0xE6}, {0x4C, 0x62, 0x7C}},
    {VesselColour::Black, {0x16, 0x18, 0x1B}, {0x0C, 0x0D, 0x0F}},
    {VesselColour::LightRed, {0xE0, 0x56, 0x52}, {0xD9, 0x54, 0x50}},
    {VesselColour::Red, {0xC0, 0x10, 0x10}, {0xC0, 0x10, 0x10}},
    {VesselColour::White, {0xFF, 0xFF, 0xFF}, {0xFF, 0xFF, 0xFF}},
    {VesselColour::LightYellow, {0xFF, 0xFB, 0xB0}, {0xFF, 0xFB, 0xB0}},
};

// Deeper is darker.
QBrush LiquidBrush(const QRectF& inner, double top, const QPalette& palette) {
    const QColor colour = ColourOf(VesselColour::Liquid, palette);
    QLinearGradient gradient(0, top, 0, inner.bottom());
    gradient.setColorAt(0, colour.lighter(128));
    gradient.setColorAt(1, colour.darker(122));
    return gradient;
}

QBrush BrushOf(VesselColour colour, const QRectF& inner, double top, const QPalette& palette) {
    return colour == VesselColour::Liquid ? LiquidBrush(inner, top, palette)
                                          : QBrush(ColourOf(colour, palette));
}

void PaintSaddle(QPainter& painter, const QRectF& square, const QPalette& palette) {
    const double side = square.width();
    const double left = square.center().x() - saddleWidth / 2 * side;
    const QRectF saddle(left, square.bottom() - saddleHeight * side, saddleWidth * side,
                        (saddleHeight + footHeight) * side);
    painter.drawPolygon(
        QPolygonF({saddle.topLeft(), saddle.topRight(), saddle.bottomRight(), saddle.bottomLeft()}));
    painter.setBrush(ColourOf(VesselColour::Outline, palette));
    painter.drawRect(QRectF(square.left() + 0.1 * side, saddle.bottom(), 0.8 * side, outlineWidth * side));
}

double LevelY(const QRectF& inner, const VesselPicture& picture) {
    return inner.bottom() - inner.height() * picture.levelHeight / 100;
}

void PaintContent(QPainter& painter, const QRectF& inner, const VesselPicture& picture,
                  const QPalette& palette) {
    const double level = LevelY(inner, picture);
    QPainterPath circle;
    circle.addEllipse(inner);
    painter.fillPath(circle, BrushOf(picture.upper, inner, inner.top(), palette));
    if (picture.levelHeight <= 0)
        return;
    QPainterPath below;
    below.addRect(QRectF(QPointF(inner.left(), level), inner.bottomRight()));
    painter.fillPath(circle.intersected(below), BrushOf(picture.lower, inner, level, palette));
}

void PaintLetter(QPainter& painter, const QRectF& inner, double fromHeight, double toHeight,
                 const QString& letter, const QColor& colour) {
    if (toHeight - fromHeight < smallestLetterHeight)
        return;
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(inner.height() * letterSize)));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colour);
    const double y = inner.bottom() - inner.height() * (fromHeight + toHeight) / 200;
    const double half = inner.height() * letterSize;
    painter.drawText(QRectF(inner.left(), y - half, inner.width(), 2 * half), Qt::AlignCenter, letter);
}

void PaintLetters(QPainter& painter, const QRectF& inner, const VesselPicture& picture,
                  const QPalette& palette) {
    if (picture.upper != VesselColour::Vapour)
        return;
    const double height = picture.levelHeight;
    PaintLetter(painter, inner, 0, height, QStringLiteral("L"), Qt::white);
    PaintLetter(painter, inner, height, 100, QStringLiteral("V"), ColourOf(VesselColour::Outline, palette));
}

// The level as drawings of plants mark it: a triangle that stands on the line of the surface, and beside it
// the height as a share of the diameter.
void PaintLevelMark(QPainter& painter, const QRectF& square, const QRectF& inner,
                    const VesselPicture& picture, const QPalette& palette) {
    const double side = square.width();
    const double y = LevelY(inner, picture);
    const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
    const double left = square.right() + 0.012 * side;
    const double middle = left + markReach / 2 * side;
    painter.setPen(QPen(ink, outlineWidth * side));
    painter.drawLine(QPointF(left, y), QPointF(left + markReach * side, y));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF({QPointF(middle, y - outlineWidth / 2 * side),
                                   QPointF(middle - 0.022 * side, y - 0.042 * side),
                                   QPointF(middle + 0.022 * side, y - 0.042 * side)}));
}

} // namespace

QColor ColourOf(VesselColour colour, const QPalette& palette) {
    for (const ColourRow& row : colourRows)
        if (row.colour == colour)
            return IsDark(palette) ? row.onDark : row.onLight;
    return {};
}

void PaintVessel(QPainter& painter, const QRectF& square, const VesselPicture& picture,
                 const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = square.width();
    const QPen outline(ColourOf(VesselColour::Outline, palette), outlineWidth * side);
    painter.setPen(outline);
    painter.setBrush(ColourOf(VesselColour::Body, palette));
    PaintSaddle(painter, square, palette);
    painter.setBrush(ColourOf(VesselColour::Body, palette));
    const double half = outlineWidth / 2 * side;
    painter.drawEllipse(square.adjusted(half, half, -half, -half));
    const double wall = wallWidth * side;
    const QRectF inner = square.adjusted(wall, wall, -wall, -wall);
    PaintContent(painter, inner, picture, palette);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(outline);
    painter.drawEllipse(inner);
    PaintLetters(painter, inner, picture, palette);
    if (picture.HasLevel())
        PaintLevelMark(painter, square, inner, picture, palette);
    painter.restore();
}

} // namespace orva
