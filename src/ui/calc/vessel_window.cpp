// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/vessel_window.h"

#include <cmath>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>

#include "ui/calc/vessel_drawing.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr double twipsPerInch = 1440;
constexpr double startWidth = 3760, startHeight = 5200; // twips

// The sheet in units of which its width has 100.
constexpr double sheetWidth = 100, sheetHeight = 128;
constexpr QRectF vesselPlace(15, 27, 70, 70);
constexpr double pipeWidth = 3, pipeTop = 23;
constexpr double heightTextWidth = 14;
constexpr int smallestText = 8; // pixels

constexpr QSize paperSize(500, 640); // of the sheet that is copied and printed
constexpr int imageScale = 3;        // pixels of the image for each of it

} // namespace

struct VesselSheet::Place {
    QLabel* label;
    double top, height; // of the line
    double textSize;
    bool bold;
};

VesselSheet::VesselSheet(Source ownSource, QWidget* parent)
    : QWidget(parent), source(std::move(ownSource)), title(AddLabel("lblTitle")), labP(AddLabel("labP")),
      labLevel(AddLabel("labLevel")), labPhase(AddLabel("labPhase")), labNote(AddLabel("labNote")) {
    labP->setAutoFillBackground(true);
    setMinimumSize(190, 240);
    Read();
    ShowTexts();
}

QLabel* VesselSheet::AddLabel(const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void VesselSheet::Read() {
    VesselPicture current = source();
    if (current == picture)
        return;
    picture = std::move(current);
    ShowTexts();
    update();
}

// Blanks in front of the words stood for their place.
void VesselSheet::ShowTexts() {
    title->setText(ToQt(picture.title));
    labP->setText(ToQt(picture.pressureText));
    labLevel->setText(ToQt(picture.levelText));
    labPhase->setText(ToQt(picture.phaseText));
    labNote->setText(ToQt(picture.noteText));
    QPalette colours = labP->palette();
    colours.setColor(QPalette::Window, ColourOf(picture.pressureGround, colours));
    colours.setColor(QPalette::WindowText, ColourOf(picture.pressureColour, colours));
    labP->setPalette(colours);
    PlaceLabels();
}

double VesselSheet::Unit() const {
    return std::min(width() / sheetWidth, height() / sheetHeight);
}

QPointF VesselSheet::Origin() const {
    return {(width() - sheetWidth * Unit()) / 2, (height() - sheetHeight * Unit()) / 2};
}

QRectF VesselSheet::Vessel() const {
    const double unit = Unit();
    return {Origin() + vesselPlace.topLeft() * unit, vesselPlace.size() * unit};
}

void VesselSheet::PlaceLabels() {
    const double unit = Unit();
    const Place places[] = {{title, 2, 8, 5.4, true},
                            {labP, 13, 10, 5.8, true},
                            {labLevel, 105, 7.5, 5.4, true},
                            {labPhase, 112.5, 7, 5.2, false},
                            {labNote, 119.5, 7, 4.8, false}};
    for (const Place& place : places) {
        QFont font = place.label == labP ? FixedPitchFont() : this->font();
        font.setPixelSize(std::max(smallestText, static_cast<int>(place.textSize * unit)));
        font.setBold(place.bold);
        place.label->setFont(font);
        const double top = Origin().y() + place.top * unit;
        double left = 0, room = width();
        if (place.label == labP) { // as wide as its words, like the display of a gauge
            room = QFontMetricsF(font).horizontalAdvance(labP->text().trimmed()) + 8 * unit;
            left = (width() - room) / 2;
        }
        // Both edges are rounded alike, so that neighbours touch but never overlap.
        const int first = qRound(top), last = qRound(top + place.height * unit);
        place.label->setGeometry(qRound(left), first, qRound(room), last - first);
    }
}

void VesselSheet::paintEvent(QPaintEvent*) {
    Read();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = Unit();
    const QRectF vessel = Vessel();
    const double pipe = Origin().y() + pipeTop * unit;
    painter.fillRect(QRectF(vessel.center().x() - pipeWidth / 2 * unit, pipe, pipeWidth * unit,
                            vessel.top() + unit - pipe),
                     ColourOf(VesselColour::Outline, palette()));
    PaintVessel(painter, vessel, picture, palette());
    if (!picture.HasLevel())
        return;
    QFont small = font();
    small.setPixelSize(std::max(smallestText, static_cast<int>(4 * unit)));
    painter.setFont(small);
    painter.setPen(MutedColour(palette()));
    const double y = vessel.bottom() - vessel.height() * picture.levelHeight / 100;
    // Below the mark, but not below the vessel.
    const double top = std::min(y + 1.4 * unit, vessel.bottom() - 6 * unit);
    painter.drawText(QRectF(vessel.right() + unit, top, heightTextWidth * unit, 6 * unit),
                     Qt::AlignLeft | Qt::AlignTop, ToQt(picture.heightText));
}

void VesselSheet::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceLabels();
}

void VesselSheet::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        PlaceLabels();
    else if (event->type() == QEvent::PaletteChange)
        ShowTexts();
}

frmKessel::frmKessel(Session& ownSession, QWidget* parent)
    : QWidget(parent, Qt::Window), session(ownSession),
      sheet(new VesselSheet(
          [&own = ownSession] {
              CalculationState& calculation = own.calculation;
              return DrawVessel(calculation.vesselResult, calculation.CalcKind, own.model.substance,
                                own.style);
          },
          this)) {
    setObjectName(QStringLiteral("frmKessel"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(sheet, 1);
    auto* bar = new QMenuBar(this);
    QMenu* menu = bar->addMenu(QStringLiteral("&Bild"));
    menu->setObjectName(QStringLiteral("mnuBild"));
    const auto add = [&](const char* name, const QString& text, const QKeySequence& keys, auto slot) {
        QAction* action = menu->addAction(text, this, slot);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(keys);
    };
    add("cmdPrint", QStringLiteral("&Drucken ..."), QKeySequence::Print, &frmKessel::cmdPrint);
    add("cmdCopy", QStringLiteral("&Kopieren"), QKeySequence::Copy, &frmKessel::cmdCopy);
    menu->addSeparator();
    add("cmdClose", QStringLiteral("&Schließen"), QKeySequence(), &QWidget::close);
    column->setMenuBar(bar);
    resize(static_cast<int>(std::lround(startWidth / twipsPerInch * logicalDpiX())),
           static_cast<int>(std::lround(startHeight / twipsPerInch * logicalDpiY())));
    Show();
}

void frmKessel::Show() {
    sheet->Read();
    setWindowTitle(ToQt(sheet->Picture().caption));
}

void frmKessel::RenderOnPaper(QPainter& painter, const QSizeF& size) const {
    const VesselPicture shown = sheet->Picture();
    VesselSheet paper([shown] { return shown; });
    paper.setPalette(QPalette(Qt::white));
    paper.resize(paperSize);
    const double scale = std::min(size.width() / paperSize.width(), size.height() / paperSize.height());
    painter.translate((size.width() - scale * paperSize.width()) / 2,
                      (size.height() - scale * paperSize.height()) / 2);
    painter.scale(scale, scale);
    paper.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
}

QImage frmKessel::Image() const {
    QImage image(paperSize * imageScale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    RenderOnPaper(painter, image.size());
    return image;
}

bool frmKessel::Print(QPrinter& printer) const {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    RenderOnPaper(painter, printer.pageLayout().paintRectPixels(printer.resolution()).size());
    return painter.end();
}

void frmKessel::cmdPrint() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted && !Print(printer))
        session.dialogs.Show({"Ausführung nicht möglich", "Der Drucker ist nicht bereit."});
}

void frmKessel::cmdCopy() {
    QGuiApplication::clipboard()->setImage(Image());
}

void frmKessel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace orva
