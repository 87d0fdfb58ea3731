// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include <QImage>
#include <QLabel>
#include <QWidget>

#include "calc/vessel_picture.h"
#include "shell/session.h"

class QPrinter;

namespace orva {

// The sheet with the drawing and its labels, which grow with it. It reads its picture anew with each repaint.
class VesselSheet : public QWidget {
    Q_OBJECT
public:
    using Source = std::function<VesselPicture()>;
    explicit VesselSheet(Source source, QWidget* parent = nullptr);

    const VesselPicture& Picture() const { return picture; }
    // Brings the labels up to date.
    void Read();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Place;
    QLabel* AddLabel(const char* name);
    void ShowTexts();
    void PlaceLabels();
    QRectF Vessel() const;
    double Unit() const;
    QPointF Origin() const;

    Source source;
    VesselPicture picture;
    QLabel *title, *labP, *labLevel, *labPhase, *labNote;
};

// The picture of the last vessel calculation: a section of the horizontal cylinder with its filling.
class frmKessel : public QWidget {
    Q_OBJECT
public:
    explicit frmKessel(Session& session, QWidget* parent = nullptr);

    // Shows the result as it stands now.
    void Show();
    const VesselPicture& Picture() const { return sheet->Picture(); }

    // The picture on white, as it is copied and printed.
    QImage Image() const;
    // False if the printer cannot be used.
    bool Print(QPrinter& printer) const;

public slots:
    void cmdPrint();
    void cmdCopy();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void RenderOnPaper(QPainter& painter, const QSizeF& size) const;

    Session& session;
    VesselSheet* sheet;
};

} // namespace orva
