// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace orva {

namespace {

constexpr double side = 24; // pictures are drawn on a square of this side
constexpr double stroke = 1.7;

void DrawSheet(QPainterPath& path) {
    path.moveTo(14, 3);
    path.lineTo(6, 3);
    path.lineTo(6, 21);
    path.lineTo(18, 21);
    path.lineTo(18, 7);
    path.lineTo(14, 3);
    path.lineTo(14, 7);
    path.lineTo(18, 7);
}

QPainterPath NewProjectPath() {
    QPainterPath path;
    DrawSheet(path);
    path.moveTo(12, 10.5);
    path.lineTo(12, 17.5);
    path.moveTo(8.5, 14);
    path.lineTo(15.5, 14);
    return path;
}

QPainterPath LastSessionPath() {
    QPainterPath path;
    const QRectF clock(4, 4, 16, 16);
    path.arcMoveTo(clock, 150);
    path.arcTo(clock, 150, -320);
    path.moveTo(4.4, 4.6);
    path.lineTo(5.1, 8.1);
    path.lineTo(8.6, 7.4);
    path.moveTo(12, 7.5);
    path.lineTo(12, 12.4);
    path.lineTo(15.4, 14.4);
    return path;
}

QPainterPath OpenProjectPath() {
    QPainterPath path;
    path.moveTo(20, 10);
    path.lineTo(20, 7);
    path.lineTo(11.5, 7);
    path.lineTo(9.5, 4.5);
    path.lineTo(3.5, 4.5);
    path.lineTo(3.5, 19.5);
    path.lineTo(18.5, 19.5);
    path.lineTo(22, 10);
    path.lineTo(7, 10);
    path.lineTo(3.5, 19.5);
    return path;
}

QPainterPath SaveProjectPath() {
    QPainterPath path;
    path.moveTo(4, 4);
    path.lineTo(16.5, 4);
    path.lineTo(20, 7.5);
    path.lineTo(20, 20);
    path.lineTo(4, 20);
    path.closeSubpath();
    path.addRect(8, 13, 8, 7);
    path.moveTo(8, 4);
    path.lineTo(8, 9);
    path.lineTo(15, 9);
    path.lineTo(15, 4);
    return path;
}

QPainterPath ReferencePath() {
    QPainterPath path;
    path.moveTo(4, 3);
    path.lineTo(4, 21);
    path.moveTo(3, 13);
    path.lineTo(21, 13);
    path.moveTo(5, 20);
    path.cubicTo(11, 19, 13, 11, 20, 4);
    path.addEllipse(QPointF(13.2, 13), 2.2, 2.2);
    return path;
}

QPainterPath VesselPath() {
    QPainterPath path;
    path.addRoundedRect(QRectF(2.5, 6.5, 19, 11), 4.5, 5.5);
    path.moveTo(3, 13);
    path.lineTo(21, 13);
    path.moveTo(12, 6.5);
    path.lineTo(12, 3.5);
    path.moveTo(9.5, 3.5);
    path.lineTo(14.5, 3.5);
    path.moveTo(6.5, 17.5);
    path.lineTo(6.5, 20.5);
    path.moveTo(17.5, 17.5);
    path.lineTo(17.5, 20.5);
    return path;
}

QPainterPath HintPath() {
    QPainterPath path;
    const QRectF bulb(6, 3, 12, 12);
    path.arcMoveTo(bulb, -55);
    path.arcTo(bulb, -55, 290);
    path.lineTo(9.3, 17.5);
    path.lineTo(14.7, 17.5);
    path.lineTo(15.4, 13.9);
    path.moveTo(10, 20.5);
    path.lineTo(14, 20.5);
    return path;
}

QPainterPath PathOf(Picture picture) {
    switch (picture) {
    case Picture::NewProject:
        return NewProjectPath();
    case Picture::LastSession:
        return LastSessionPath();
    case Picture::OpenProject:
        return OpenProjectPath();
    case Picture::SaveProject:
        return SaveProjectPath();
    case Picture::Reference:
        return ReferencePath();
    case Picture::Vessel:
        return VesselPath();
    case Picture::Hint:
        return HintPath();
    }
    return {};
}

class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(Picture shown) : picture(shown) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / side, rect.height() / side);
        painter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText), stroke,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(PathOf(picture));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return image;
    }

    QIconEngine* clone() const override { return new LineIconEngine(picture); }

private:
    Picture picture;
};

class ProgramIconEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / side, rect.height() / side);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(18, 74, 112));
        painter->drawRoundedRect(QRectF(1, 1, 22, 22), 4.5, 4.5);
        QPainterPath dome;
        dome.moveTo(4, 19);
        dome.cubicTo(6.5, 4.5, 10.5, 4.5, 20, 19);
        painter->setBrush(QColor(86, 156, 200));
        painter->drawPath(dome);
        QPainterPath isotherm;
        isotherm.moveTo(4.2, 4);
        isotherm.cubicTo(4.7, 10, 5, 13.5, 5.6, 13.5);
        isotherm.lineTo(15.2, 13.5);
        isotherm.cubicTo(17, 15.4, 18.5, 16.3, 20.5, 16.8);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(Qt::white, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(isotherm);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return image;
    }

    QIconEngine* clone() const override { return new ProgramIconEngine; }
};

} // namespace

QIcon DrawnIcon(Picture picture) {
    return QIcon(new LineIconEngine(picture));
}

QIcon ProgramIcon() {
    return QIcon(new ProgramIconEngine);
}

} // namespace orva
