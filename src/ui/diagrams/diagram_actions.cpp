// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/diagram_actions.h"

#include "ui/diagrams/diagram_window_view.h"

namespace orva {

namespace {

bool IsOpen(const DiagramWindow& window) {
    return window.IsOpen();
}
bool HasCurves(const DiagramWindow& window) {
    return window.Chart().curveCount > 0;
}
bool HasContents(const DiagramWindow& window) {
    return HasCurves(window) || !window.Chart().marks.empty();
}
bool IsZoomed(const DiagramWindow& window) {
    return window.IsZoomed();
}
bool IsLogX(const DiagramWindow& window) {
    return window.Chart().logX;
}
bool IsLogY(const DiagramWindow& window) {
    return window.Chart().logY;
}

bool HasAxis(const DiagramWindow& window, Quantity quantity) {
    return window.Chart().xQuantity == quantity || window.Chart().yQuantity == quantity;
}
bool HasTemperatureAxis(const DiagramWindow& window) {
    return HasAxis(window, Quantity::Temperature);
}
bool HasTieLine(const DiagramWindow& window) {
    const DiagramRow* row = FindDiagram(window.Spec().type);
    return row != nullptr && row->tieLine != nullptr;
}
bool HasSKurve(const DiagramWindow& window) {
    const int type = window.Spec().type;
    return (type >= 1 && type <= 4) || type == 26 || (type >= 15 && type <= 18)
           || (type >= 150 && type <= 160);
}
bool HasCoexistenceCurve(const DiagramWindow& window) {
    const DiagramRow* row = FindDiagram(window.Spec().type);
    return row != nullptr && (row->curveKind == curveProjection || CoexistenceTypeOf(row->type) != row->type);
}
// Its axes are p and p v, or T and p; the other thermal sections take it as well.
bool HasInversionCurve(const DiagramWindow& window) {
    const int type = window.Spec().type;
    return (type >= 1 && type <= 9) || type == 26 || type == 106;
}
bool HasDensities(const DiagramWindow& window) {
    return window.Spec().type == 8;
}
bool HasPressureAxis(const DiagramWindow& window) {
    return HasAxis(window, Quantity::Pressure);
}
bool HasVolumeAxis(const DiagramWindow& window) {
    return HasAxis(window, Quantity::Volume);
}
bool HasCoVolume(const DiagramWindow& window) {
    return HasVolumeAxis(window) && !window.Records().model.selection.nonCubic;
}
bool HasPvAxes(const DiagramWindow& window) {
    return HasPressureAxis(window) && HasVolumeAxis(window);
}
bool HasCalculatedCriticalPoint(const DiagramWindow& window) {
    return HasPvAxes(window) && window.Records().model.eos.vCritCalc > 0;
}
bool HasDatabaseCriticalPoint(const DiagramWindow& window) {
    return HasPvAxes(window) && window.Records().model.substance.vcDatabase > 0;
}

template<const char* command> bool IsMarked(const DiagramWindow& window) {
    return window.HasMark(command);
}
constexpr char markT[] = "mnuMarkT";
constexpr char markP[] = "mnuMarkP";
constexpr char markV[] = "mnuMarkV";
constexpr char markB[] = "mnuMarkB";
constexpr char markCalc[] = "mnuMarkCritPointCalc";
constexpr char markEx[] = "mnuMarkCritPointEx";

constexpr DiagramMenu menus[] = {
    {"mnuBild", "&Diagramm"}, {"mnuAdd", "&Einfügen"}, {"mnuDel", "&Löschen"},
    {"mnuView", "&Ansicht"},  {"mnuPages", "&Hilfe"},
};

using G = frmGraph2D;

constexpr DiagramAction actions[] = {
    {"cmdInput", "mnuBild", "&Wert eingeben …", "Ctrl+E", "T, p oder v der nächsten Kurve eingeben", "Wert …",
     &G::cmdInput, TakesValue, nullptr},
    {"cmdDraw", "mnuBild", "Kurve &zeichnen", "F5", "Kurve für den eingestellten Wert zeichnen", "Zeichnen",
     &G::cmdDraw, IsOpen, nullptr},
    {"", "mnuBild", "", "", "", "", nullptr, nullptr, nullptr},
    {"mnuBildFile", "mnuBild", "Bildfile &schreiben …", "Ctrl+S", "Diagramm als SVG, PDF oder PNG speichern",
     "Speichern …", &G::mnuBildFile, IsOpen, nullptr},
    {"mnuBildClipboard", "mnuBild", "Bild zur Zwischena&blage", "Ctrl+Shift+C",
     "Diagramm als Bitmap-Grafik kopieren", "", &G::mnuBildClipboard, IsOpen, nullptr},
    {"cmdClipboard", "mnuBild", "&Kurvenpunkte kopieren", "Ctrl+C",
     "Punkte aller Kurven mit Überschriften und Einheiten zur Zwischenablage", "Punkte kopieren",
     &G::cmdClipboard, HasCurves, nullptr},
    {"cmdPrint", "mnuBild", "&Drucken …", "Ctrl+P", "Diagramm drucken", "", &G::cmdPrint, IsOpen, nullptr},
    {"", "mnuBild", "", "", "", "", nullptr, nullptr, nullptr},
    {"cmdEscGraph", "mnuBild", "In den &Hintergrund", "", "Diagramm hinter die anderen Fenster legen", "",
     &G::cmdEscGraph, nullptr, nullptr},

    {"mnuMarkKonnode", "mnuAdd", "&Konnode V-L", "Ctrl+K", "Verbindung der beiden Gleichgewichtsphasen",
     "Konnode", &G::mnuMarkKonnode, HasTieLine, nullptr},
    {"mnuMarkSKurve", "mnuAdd", "&S-Kurve im Zweiphasengebiet", "Ctrl+R",
     "Teil der Isotherme zwischen Siede- und Taulinie", "S-Kurve", &G::mnuMarkSKurve, HasSKurve, nullptr},
    {"mnuMarkKoex", "mnuAdd", "VL-Koe&xistenzkurve", "Ctrl+G", "Siede- und Taulinie des Diagramms",
     "Koexistenz", &G::mnuMarkKoex, HasCoexistenceCurve, nullptr},
    {"mnuMarkInversion", "mnuAdd", "&Inversionskurve", "", "Joule-Thomson-Koeffizient delta = 0", "",
     &G::mnuMarkInversion, HasInversionCurve, nullptr},
    {"mnuMarkHalbierende", "mnuAdd", "&Halbierende der Dichten", "",
     "Mittel aus Flüssigkeits- und Dampfdichte", "", &G::mnuMarkHalbierende, HasDensities, nullptr},
    {"", "mnuAdd", "", "", "", "", nullptr, nullptr, nullptr},
    {markT, "mnuAdd", "&Temperaturen: T(cr), T(Trip.P.), T(LV)", "", "Marken der T-Achse", "", &G::mnuMarkT,
     HasTemperatureAxis, IsMarked<markT>},
    {markP, "mnuAdd", "&Drücke: p(cr), p(LV) bei T, Normaldruck", "", "Marken der p-Achse", "", &G::mnuMarkP,
     HasPressureAxis, IsMarked<markP>},
    {markV, "mnuAdd", "kritisches &Volumen", "", "Marke der v-Achse", "", &G::mnuMarkV, HasVolumeAxis,
     IsMarked<markV>},
    {markB, "mnuAdd", "Kovolumen v = &b", "", "Marke der v-Achse", "", &G::mnuMarkB, HasCoVolume,
     IsMarked<markB>},
    {markCalc, "mnuAdd", "kritischer Punkt nach &EOS", "", "Punkt bei p(cr), v(cr) der Zustandsgleichung", "",
     &G::mnuMarkCritPointCalc, HasCalculatedCriticalPoint, IsMarked<markCalc>},
    {markEx, "mnuAdd", "kritischer &Punkt der Datenbank", "", "Punkt bei p(cr), v(cr) der Datenbank", "",
     &G::mnuMarkCritPointEx, HasDatabaseCriticalPoint, IsMarked<markEx>},

    {"mnuDelTotal", "mnuDel", "&Alles löschen", "Ctrl+Shift+Del", "Alle Kurven und Marken löschen", "",
     &G::mnuDelTotal, HasContents, nullptr},

    {"cmdZoom", "mnuView", "&Lupe", "Z", "Rechteck aufziehen, das vergrößert werden soll", "Lupe",
     &G::cmdZoom, IsOpen, [](const DiagramWindow&) { return false; }},
    {"cmdZoomReset", "mnuView", "&ganzes Diagramm", "Esc",
     "Zurück zum ganzen Koordinatenfenster (auch Doppelklick)", "Ganz", &G::cmdZoomReset, IsZoomed, nullptr},
    {"", "mnuView", "", "", "", "", nullptr, nullptr, nullptr},
    {"mnuCoord", "mnuView", "&Koordinatenfenster …", "Ctrl+W", "Grenzen der Achsen festlegen", "Grenzen …",
     &G::mnuCoord, IsOpen, nullptr},
    {"cmdXLog", "mnuView", "&x-Achse logarithmisch", "", "x-Achse linear oder logarithmisch teilen", "log x",
     &G::cmdXLog, IsOpen, IsLogX},
    {"cmdYLog", "mnuView", "&y-Achse logarithmisch", "", "y-Achse linear oder logarithmisch teilen", "log y",
     &G::cmdYLog, IsOpen, IsLogY},

    {"cmdGraphHelp", "mnuPages", "&Diagrammfenster", "", "Hilfe zum Diagrammfenster", "", &G::cmdGraphHelp,
     nullptr, nullptr},
    {"cmdTypeHelp", "mnuPages", "Dieser Diagramm&typ", "", "Hilfe zum gezeigten Diagrammtyp", "",
     &G::cmdTypeHelp, IsOpen, nullptr},
};

} // namespace

bool TakesValue(const DiagramWindow& window) {
    const int kind = window.Spec().curveKind;
    return window.IsOpen() && kind != curveProjection && kind != curveFunctionOfT;
}

std::span<const DiagramMenu> DiagramMenus() {
    return menus;
}

std::span<const DiagramAction> DiagramActions() {
    return actions;
}

} // namespace orva
