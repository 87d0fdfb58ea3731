// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/diagram_window_view.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <qcustomplot.h>

#include "plot/chart_file.h"
#include "text/columns.h"
#include "ui/diagrams/coordinate_input_view.h"
#include "ui/diagrams/diagram_actions.h"

namespace orva {

namespace {

constexpr double clipboardScale = 2; // pixels per point of a copied picture
constexpr int tracerSize = 9;
const char* const pointerLayer = "pointer"; // painted alone, so that the curves need not follow the mouse

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A name that every file system takes: "Methan p-v.svg".
std::string ProposedFileName(const DiagramWindow& window) {
    std::string name(Trim(window.Records().model.substance.name));
    for (char& c : name)
        if (std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos)
            c = '_';
    return name + " " + std::string(Trim(window.Spec().typeTitle)) + ".svg";
}

std::filesystem::path PathOf(const std::string& utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

} // namespace

frmGraph2D::frmGraph2D(DiagramWindow& theWindow, Dialogs& theDialogs, QWidget* parent)
    : QMainWindow(parent), window(theWindow),
      dialogs(theDialogs), style{theWindow.Records().style.decimal, 11, 1}, plot(new QCustomPlot(this)),
      coordinates(new QLabel(this)) {
    setObjectName("frmGraph2D");
    plot->setObjectName("chart");
    coordinates->setObjectName("lblCoordinates");
    PreparePlot(*plot, style);
    plot->setMinimumSize(420, 300);
    setCentralWidget(plot);
    statusBar()->addWidget(coordinates, 1);
    MakeActions();
    ConnectPlot();
    resize(1000, 760);
    window.changed = [this](DiagramWindow::Change change) {
        if (change == DiagramWindow::Change::Contents)
            ShowContents();
        else
            ShowMovedView();
    };
    ShowContents();
}

frmGraph2D::~frmGraph2D() {
    window.changed = nullptr;
}

void frmGraph2D::MakeActions() {
    std::map<std::string, QMenu*> menus;
    for (const DiagramMenu& row : DiagramMenus()) {
        QMenu* menu = menuBar()->addMenu(Text(row.text));
        menu->setObjectName(row.name);
        menu->setToolTipsVisible(true);
        menus[row.name] = menu;
    }
    QToolBar* bar = addToolBar(tr("Werkzeuge"));
    bar->setObjectName("tools");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const DiagramAction& row : DiagramActions()) {
        QMenu* menu = menus[row.menu];
        if (row.run == nullptr) {
            menu->addSeparator();
            bar->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(Text(row.text));
        action->setObjectName(row.name);
        action->setShortcut(QKeySequence(row.shortcut));
        action->setToolTip(Text(row.tip));
        action->setStatusTip(Text(row.tip));
        action->setCheckable(row.checked != nullptr);
        if (*row.toolText != '\0') {
            action->setIconText(Text(row.toolText));
            bar->addAction(action);
        }
        connect(action, &QAction::triggered, this, row.run);
        actions[row.name] = action;
    }
    MakeSeparatorMenu(*menus["mnuBild"]);
    deleteMenu = menus["mnuDel"]->addMenu(tr("&Kurve löschen"));
    deleteMenu->setObjectName("mnuSubDelKurv");
    connect(menus["mnuDel"], &QMenu::aboutToShow, this, &frmGraph2D::UpdateDeleteMenu);
    MakeHelpButton();
}

// In the corner, where no narrow window hides it.
void frmGraph2D::MakeHelpButton() {
    auto* button = new QToolButton(this);
    button->setObjectName("cmdGraphHelp");
    button->setText(QStringLiteral("?"));
    button->setToolTip(tr("Hilfe"));
    button->setAccessibleName(tr("Hilfe"));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, &frmGraph2D::cmdGraphHelp);
    menuBar()->setCornerWidget(button);
}

// Separator of the copied points.
void frmGraph2D::MakeSeparatorMenu(QMenu& menu) {
    auto* sub = new QMenu(tr("&Trennzeichen"), &menu);
    sub->setObjectName("mnuSeparator");
    menu.insertMenu(actions["cmdPrint"], sub);
    separators = new QActionGroup(this);
    const struct {
        const char* text;
        char separator;
    } rows[] = {{"Trennzeichen Semikolon", ';'}, {"Trennzeichen Komma", ','}, {"Trennzeichen Tab", '\t'}};
    for (const auto& row : rows) {
        QAction* action = sub->addAction(Text(row.text));
        action->setCheckable(true);
        action->setChecked(row.separator == '\t');
        action->setData(QChar(row.separator));
        separators->addAction(action);
    }
}

void frmGraph2D::ConnectPlot() {
    plot->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    plot->selectionRect()->setPen(QPen(QColor(0x00, 0x72, 0xB2), 1, Qt::DashLine));
    plot->selectionRect()->setBrush(QColor(0x00, 0x72, 0xB2, 30));
    plot->addLayer(pointerLayer);
    plot->layer(pointerLayer)->setMode(QCPLayer::lmBuffered);
    const auto rangeChanged = qOverload<const QCPRange&>(&QCPAxis::rangeChanged);
    connect(plot->xAxis, rangeChanged, this, &frmGraph2D::TakeView);
    connect(plot->yAxis, rangeChanged, this, &frmGraph2D::TakeView);
    connect(plot, &QCustomPlot::mouseDoubleClick, this, &frmGraph2D::cmdZoomReset);
    connect(plot, &QCustomPlot::mouseMove, this, &frmGraph2D::ShowNearestPoint);
    connect(plot->selectionRect(), &QCPSelectionRect::accepted, this, &frmGraph2D::EndZoomMode,
            Qt::QueuedConnection);
}

void frmGraph2D::ShowContents() {
    const QScopedValueRollback<bool> guard(showing, true);
    tracer = nullptr;
    ShowChart(*plot, window.Chart(), style);
    plot->replot(QCustomPlot::rpQueuedReplot);
    const std::vector<std::string>& heading = window.Chart().headingLines;
    setWindowTitle(heading.empty() ? tr("2D-Diagramm")
                                   : Text(heading[0]) + " – " + Text(window.Spec().typeTitle));
    const bool waits = window.Chart().curveCount == 0 && TakesValue(window);
    coordinates->setText(waits ? tr("Wert eingeben und zeichnen: Strg+E") : QString());
    UpdateActions();
}

void frmGraph2D::ShowMovedView() {
    if (!showing) {
        const QScopedValueRollback<bool> guard(showing, true);
        ShowView(*plot, window.Chart());
        plot->replot(QCustomPlot::rpQueuedReplot);
    }
    UpdateActions();
}

// The user has dragged or zoomed.
void frmGraph2D::TakeView() {
    if (showing)
        return;
    const QScopedValueRollback<bool> guard(showing, true);
    const QCPRange x = plot->xAxis->range();
    const QCPRange y = plot->yAxis->range();
    window.SetView({x.lower, x.upper, y.lower, y.upper});
}

void frmGraph2D::UpdateActions() {
    for (const DiagramAction& row : DiagramActions()) {
        if (row.run == nullptr)
            continue;
        QAction* action = actions[row.name];
        action->setEnabled(row.enabled == nullptr || row.enabled(window));
        if (row.checked != nullptr && row.run != &frmGraph2D::cmdZoom)
            action->setChecked(row.checked(window));
    }
    deleteMenu->setEnabled(window.Chart().curveCount > 0);
}

void frmGraph2D::UpdateDeleteMenu() {
    deleteMenu->clear();
    for (int slot = 1; slot <= largestCurveCount; ++slot)
        if (window.Chart().IsTaken(slot))
            deleteMenu->addAction(Text(window.Chart().Series(slot).legend), this,
                                  [this, slot] { window.mnuSubDelKurv(slot); });
}

void frmGraph2D::ShowNearestPoint(QMouseEvent* event) {
    const PlaceOnSheet place = [this](double x, double y) {
        return std::pair(plot->xAxis->coordToPixel(x), plot->yAxis->coordToPixel(y));
    };
    const QPointF at = event->position();
    const ChartDocument& chart = window.Chart();
    const std::optional<NearestPoint> nearest = FindNearestPoint(chart, at.x(), at.y(), place);
    if (!nearest)
        return;
    if (tracer == nullptr) {
        tracer = new QCPItemTracer(plot);
        tracer->setStyle(QCPItemTracer::tsCircle);
        tracer->setSize(tracerSize);
        tracer->setBrush(Qt::white);
        tracer->setLayer(pointerLayer);
    }
    tracer->setVisible(true);
    const ChartSeries& series = chart.Series(nearest->slot);
    tracer->setPen(QPen(QColor(series.colour.red, series.colour.green, series.colour.blue), 2));
    tracer->position->setCoords(nearest->x, nearest->y);
    const DiagramRecords& records = window.Records();
    const std::string state = CoordinateText(chart, *nearest, records.options, records.style);
    coordinates->setText(Text(series.legend).trimmed() + ":   " + Text(state).trimmed().replace("m^3", "m³"));
    plot->replot(QCustomPlot::rpQueuedReplot);
}

// The mark of the nearest point is no part of the diagram.
void frmGraph2D::HidePointer() {
    if (tracer != nullptr)
        tracer->setVisible(false);
}

void frmGraph2D::EndZoomMode() {
    actions["cmdZoom"]->setChecked(false);
    cmdZoom();
}

void frmGraph2D::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        plot->setBackground(Qt::white); // the sheet stays white
}

void frmGraph2D::cmdInput() {
    emit InputWanted();
}

void frmGraph2D::cmdDraw() {
    QApplication::setOverrideCursor(Qt::BusyCursor);
    if (TakesValue(window))
        window.cmdDraw();
    else
        window.DrawAtOnce();
    QApplication::restoreOverrideCursor();
}

void frmGraph2D::mnuBildFile() {
    SessionState& session = window.Records().session;
    FileRequest request;
    request.title = "Bildfile schreiben";
    request.filter = "Vektorgrafik SVG (*.svg)|*.svg|PDF (*.pdf)|*.pdf|Bitmap PNG (*.png)|*.png";
    request.folder = session.dirDiagram2D;
    request.fileName = ProposedFileName(window);
    request.defaultExtension = ".svg";
    request.saving = true;
    const std::optional<std::string> chosen = dialogs.ChooseFile(request);
    if (!chosen)
        return;
    std::filesystem::path path = PathOf(*chosen);
    if (!path.has_extension())
        path += ".svg";
    if (!ImageFormatOf(path))
        dialogs.Show({"Ausführung nicht möglich", "Bildfiles haben die Endung .svg, .pdf oder .png."});
    else if (!SaveImage(window.Chart(), path, style))
        dialogs.Show({"Ausführung nicht möglich", "Die Datei kann nicht geschrieben werden:\n" + *chosen});
    else {
        const std::u8string folder = path.parent_path().u8string();
        session.dirDiagram2D.assign(folder.begin(), folder.end());
    }
}

void frmGraph2D::mnuBildClipboard() {
    const std::string png =
        DrawImage(window.Chart(), ImageFormat::Png, style, {plot->width(), plot->height(), clipboardScale});
    QApplication::clipboard()->setImage(QImage::fromData(QByteArray::fromStdString(png), "PNG"));
}

void frmGraph2D::cmdClipboard() {
    const char separator = separators->checkedAction()->data().toChar().toLatin1();
    QApplication::clipboard()->setText(
        Text(CurveTableText(window.Chart(), separator, window.Records().style)));
}

void frmGraph2D::cmdPrint() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QCPPainter painter;
    if (!painter.begin(&printer)) {
        dialogs.Show({"Ausführung nicht möglich", "Der Drucker ist nicht bereit."});
        return;
    }
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    const double scale = std::min(page.width() / static_cast<double>(plot->width()),
                                  page.height() / static_cast<double>(plot->height()));
    painter.scale(scale, scale);
    HidePointer();
    plot->toPainter(&painter, plot->width(), plot->height());
    painter.end();
}

void frmGraph2D::cmdEscGraph() {
    lower();
}

void frmGraph2D::mnuMarkKonnode() {
    window.mnuMarkKonnode();
}

void frmGraph2D::mnuMarkSKurve() {
    window.mnuMarkSKurve();
}

void frmGraph2D::mnuMarkKoex() {
    window.mnuMarkKoex();
}

void frmGraph2D::mnuMarkInversion() {
    QApplication::setOverrideCursor(Qt::BusyCursor);
    window.mnuMarkInversion();
    QApplication::restoreOverrideCursor();
}

void frmGraph2D::mnuMarkHalbierende() {
    window.mnuMarkHalbierende();
}

void frmGraph2D::mnuMarkT() {
    window.mnuMarkT();
}

void frmGraph2D::mnuMarkP() {
    window.mnuMarkP();
}

void frmGraph2D::mnuMarkV() {
    window.mnuMarkV();
}

void frmGraph2D::mnuMarkB() {
    window.mnuMarkB();
}

void frmGraph2D::mnuMarkCritPointCalc() {
    window.mnuMarkCritPointCalc();
}

void frmGraph2D::mnuMarkCritPointEx() {
    window.mnuMarkCritPointEx();
}

void frmGraph2D::mnuDelTotal() {
    window.mnuDelTotal();
}

// While it is switched on the left button draws a rectangle; one rectangle ends it.
void frmGraph2D::cmdZoom() {
    const bool on = actions["cmdZoom"]->isChecked();
    plot->setSelectionRectMode(on ? QCP::srmZoom : QCP::srmNone);
    plot->setCursor(on ? Qt::CrossCursor : Qt::ArrowCursor);
}

void frmGraph2D::cmdZoomReset() {
    window.cmdZoomReset();
}

void frmGraph2D::mnuCoord() {
    frmCoord(window, this).exec();
}

void frmGraph2D::cmdXLog() {
    window.cmdXLog();
}

void frmGraph2D::cmdYLog() {
    window.cmdYLog();
}

void frmGraph2D::cmdGraphHelp() {
    emit HelpWanted(QStringLiteral("cmdGraphHelp"));
}

// The menu entry that opens the type leads to its page.
void frmGraph2D::cmdTypeHelp() {
    if (const DiagramRow* row = FindDiagram(window.Spec().type))
        emit HelpWanted(QStringLiteral("%1(%2)").arg(Text(row->command)).arg(row->index));
}

} // namespace orva
