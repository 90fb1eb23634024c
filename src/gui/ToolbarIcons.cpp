#include "ToolbarIcons.h"

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <QtMath>
#include <initializer_list>

namespace {

// Every picture is drawn on a grid of 16 by 15 cells. Coordinates name cells,
// so lines and outlines run through cell centres and filled areas cover whole
// cells: the picture then lands on device pixels at ratio 1 and 2 alike.
constexpr int kWidth = 16;
constexpr int kHeight = 15;

// The classic sixteen colours, the ones a toolbar of this kind is drawn in.
const QColor kBlack(0, 0, 0);
const QColor kMaroon(128, 0, 0);
const QColor kGreen(0, 128, 0);
const QColor kOlive(128, 128, 0);
const QColor kNavy(0, 0, 128);
const QColor kTeal(0, 128, 128);
const QColor kSilver(192, 192, 192);
const QColor kRed(255, 0, 0);
const QColor kLime(0, 255, 0);
const QColor kYellow(255, 255, 0);
const QColor kBlue(0, 0, 255);
const QColor kAqua(0, 255, 255);
const QColor kWhite(255, 255, 255);

QPointF Centre(QPoint cell) {
    return QPointF(cell.x() + 0.5, cell.y() + 0.5);
}

QPolygonF Through(std::initializer_list<QPoint> cells) {
    QPolygonF polygon;
    for (QPoint cell : cells)
        polygon << Centre(cell);
    return polygon;
}

QPen Stroke(const QColor& colour, qreal width = 1.0, Qt::PenStyle style = Qt::SolidLine) {
    return QPen(colour, width, style, Qt::SquareCap, Qt::MiterJoin);
}

void Cells(QPainter& p, int x, int y, int width, int height, const QColor& colour) {
    p.fillRect(QRectF(x, y, width, height), colour);
}

// A filled box with a one-cell outline, both made of whole cells.
void Box(QPainter& p, int x, int y, int width, int height, const QColor& fill,
         const QColor& outline = kBlack) {
    Cells(p, x, y, width, height, outline);
    Cells(p, x + 1, y + 1, width - 2, height - 2, fill);
}

void Lines(QPainter& p, std::initializer_list<QPoint> cells, const QColor& colour,
           qreal width = 1.0, Qt::PenStyle style = Qt::SolidLine) {
    p.setPen(Stroke(colour, width, style));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(Through(cells));
}

void Shape(QPainter& p, std::initializer_list<QPoint> cells, const QColor& fill,
           const QColor& outline = kBlack) {
    p.setPen(Stroke(outline));
    p.setBrush(fill);
    p.drawPolygon(Through(cells));
}

// An ellipse whose outline runs through the outer cells of the given block.
void Oval(QPainter& p, int x, int y, int width, int height, const QBrush& fill,
          const QColor& outline) {
    p.setPen(Stroke(outline));
    p.setBrush(fill);
    p.drawEllipse(QRectF(x + 0.5, y + 0.5, width - 1, height - 1));
}

// Cells marked '#' in rows of text; a tiny glyph stays exact at every size.
void Pattern(QPainter& p, int x, int y, std::initializer_list<const char*> rows,
             const QColor& colour) {
    int row = 0;
    for (const char* text : rows) {
        for (int column = 0; text[column] != '\0'; ++column) {
            if (text[column] == '#')
                Cells(p, x + column, y + row, 1, 1, colour);
        }
        ++row;
    }
}

void TextLines(QPainter& p, int x, int width, std::initializer_list<int> rows) {
    for (int row : rows)
        Cells(p, x, row, width, 1, kNavy);
}

void Plus(QPainter& p) {
    Pattern(p, 11, 0, {"  #  ", "  #  ", "#####", "  #  ", "  #  "}, kGreen);
}

void DrawNew(QPainter& p) {
    Shape(p, {{3, 0}, {9, 0}, {12, 3}, {12, 14}, {3, 14}}, kWhite);
    Shape(p, {{9, 0}, {12, 3}, {9, 3}}, kSilver);
}

void DrawOpen(QPainter& p) {
    Shape(p, {{0, 2}, {4, 2}, {5, 3}, {11, 3}, {11, 13}, {0, 13}}, kOlive);
    Shape(p, {{0, 13}, {3, 6}, {15, 6}, {12, 13}}, kYellow);
}

void DrawSave(QPainter& p) {
    Box(p, 1, 0, 14, 15, kNavy);
    Cells(p, 4, 1, 8, 6, kWhite);
    TextLines(p, 5, 6, {3, 5});
    Cells(p, 4, 9, 8, 5, kSilver);
    Cells(p, 5, 10, 2, 3, kNavy);
}

// Undo's arrow; redo draws the same arrow mirrored.
void DrawUndo(QPainter& p) {
    QPainterPath bow;
    bow.moveTo(12.5, 13.0);
    bow.cubicTo(12.5, 6.0, 10.0, 5.0, 5.5, 5.0);
    p.setPen(Stroke(kNavy, 2.0));
    p.setBrush(Qt::NoBrush);
    p.drawPath(bow);
    p.setPen(Qt::NoPen);
    p.setBrush(kNavy);
    p.drawPolygon(QPolygonF({QPointF(0.5, 5.0), QPointF(6.0, 0.0), QPointF(6.0, 10.0)}));
}

void DrawRedo(QPainter& p) {
    p.translate(kWidth, 0);
    p.scale(-1, 1);
    DrawUndo(p);
}

void DrawCut(QPainter& p) {
    Lines(p, {{4, 9}, {11, 0}}, kBlack);
    Lines(p, {{11, 9}, {4, 0}}, kBlack);
    Oval(p, 0, 9, 6, 6, Qt::NoBrush, kNavy);
    Oval(p, 10, 9, 6, 6, Qt::NoBrush, kNavy);
}

void DrawCopy(QPainter& p) {
    Box(p, 1, 0, 9, 10, kWhite);
    TextLines(p, 3, 5, {2, 4, 6});
    Box(p, 6, 4, 9, 11, kWhite);
    TextLines(p, 8, 5, {6, 8, 10, 12});
}

void DrawPaste(QPainter& p) {
    Box(p, 1, 2, 10, 13, kOlive);
    Box(p, 4, 0, 4, 4, kSilver);
    Box(p, 7, 5, 8, 10, kWhite);
    TextLines(p, 9, 4, {7, 9, 11});
}

void DrawIoLayer(QPainter& p) {
    Lines(p, {{5, 3}, {8, 3}, {8, 11}, {10, 11}}, kBlue);
    Box(p, 0, 1, 5, 5, kLime);
    Box(p, 11, 9, 5, 5, kRed);
}

void DrawSwitchLayer(QPainter& p) {
    Shape(p, {{7, 0}, {14, 7}, {7, 14}, {0, 7}}, kTeal);
    Shape(p, {{7, 4}, {10, 7}, {7, 10}, {4, 7}}, kWhite, kTeal);
}

void DrawCheckLayer(QPainter& p) {
    Box(p, 1, 3, 11, 11, kWhite);
    Lines(p, {{3, 8}, {6, 11}, {14, 1}}, kGreen, 2.0);
}

void DrawActionLayer(QPainter& p) {
    Shape(p, {{9, 0}, {3, 8}, {7, 8}, {5, 14}, {13, 5}, {9, 5}, {12, 0}}, kYellow);
}

void DrawGeometryLayer(QPainter& p) {
    QPen dashes = Stroke(kMaroon);
    dashes.setDashPattern({3.0, 2.0});
    dashes.setCapStyle(Qt::FlatCap);
    p.setPen(dashes);
    p.drawPolyline(Through({{1, 13}, {6, 1}, {14, 10}}));
    Box(p, 0, 12, 3, 3, kRed);
    Box(p, 5, 0, 3, 3, kRed);
    Box(p, 13, 9, 3, 3, kRed);
}

void DrawAddPhase(QPainter& p) {
    Box(p, 0, 5, 11, 9, kYellow);
    TextLines(p, 2, 7, {7, 9, 11});
    Plus(p);
}

void DrawAddUnlinker(QPainter& p) {
    Box(p, 0, 5, 10, 10, kWhite);
    Lines(p, {{0, 5}, {9, 14}}, kBlack);
    Lines(p, {{0, 14}, {9, 5}}, kBlack);
    Plus(p);
}

void DrawAddCase(QPainter& p) {
    Oval(p, 0, 5, 10, 10, kAqua, kBlack);
    Plus(p);
}

void DrawAddSwitch(QPainter& p) {
    Oval(p, 0, 5, 10, 10, kWhite, kRed);
    Lines(p, {{4, 12}, {4, 10}, {2, 8}}, kRed);
    Lines(p, {{4, 10}, {6, 8}}, kRed);
    Plus(p);
}

// Four corners round what is shown: the whole view fitted.
void Corners(QPainter& p, const QColor& colour) {
    Lines(p, {{0, 4}, {0, 0}, {4, 0}}, colour);
    Lines(p, {{11, 0}, {15, 0}, {15, 4}}, colour);
    Lines(p, {{15, 10}, {15, 14}, {11, 14}}, colour);
    Lines(p, {{4, 14}, {0, 14}, {0, 10}}, colour);
}

void DrawZoomFit(QPainter& p) {
    Corners(p, kNavy);
    Box(p, 3, 3, 5, 4, kYellow);
    Box(p, 8, 8, 5, 4, kYellow);
}

void DrawZoomSelection(QPainter& p) {
    Corners(p, kNavy);
    Box(p, 4, 4, 8, 7, kYellow);
}

// A magnifying glass with a sign in its lens.
void Magnifier(QPainter& p, bool plus) {
    Oval(p, 0, 0, 11, 11, kWhite, kNavy);
    Lines(p, {{9, 9}, {14, 14}}, kNavy, 2.0);
    Cells(p, 3, 5, 5, 1, kBlack);
    if (plus)
        Cells(p, 5, 3, 1, 5, kBlack);
}

void DrawZoomIn(QPainter& p) {
    Magnifier(p, true);
}

void DrawZoomOut(QPainter& p) {
    Magnifier(p, false);
}

void DrawAbout(QPainter& p) {
    Pattern(p, 4, 1,
            {"  ####  ", " ##  ## ", " ##  ## ", "     ## ", "    ##  ", "   ##   ", "   ##   ",
             "   ##   ", "        ", "   ##   ", "   ##   "},
            kNavy);
}

using Drawing = void (*)(QPainter&);

Drawing DrawingOf(lw::CommandId command) {
    using lw::CommandId;
    switch (command) {
    case CommandId::FileNew:
        return DrawNew;
    case CommandId::FileOpen:
        return DrawOpen;
    case CommandId::FileSave:
        return DrawSave;
    case CommandId::EditUndo:
        return DrawUndo;
    case CommandId::EditRedo:
        return DrawRedo;
    case CommandId::EditCut:
        return DrawCut;
    case CommandId::EditCopy:
        return DrawCopy;
    case CommandId::EditPaste:
        return DrawPaste;
    case CommandId::DrawIo:
        return DrawIoLayer;
    case CommandId::DrawSwitches:
        return DrawSwitchLayer;
    case CommandId::DrawChecks:
        return DrawCheckLayer;
    case CommandId::DrawActions:
        return DrawActionLayer;
    case CommandId::DrawGeometry:
        return DrawGeometryLayer;
    case CommandId::AddPhase:
        return DrawAddPhase;
    case CommandId::AddUnlinker:
        return DrawAddUnlinker;
    case CommandId::AddCase:
        return DrawAddCase;
    case CommandId::AddSwitch:
        return DrawAddSwitch;
    case CommandId::ViewZoomFit:
        return DrawZoomFit;
    case CommandId::ViewZoomSelection:
        return DrawZoomSelection;
    case CommandId::ViewZoomIn:
        return DrawZoomIn;
    case CommandId::ViewZoomOut:
        return DrawZoomOut;
    case CommandId::AppAbout:
        return DrawAbout;
    default:
        return nullptr;
    }
}

// Painted with the painter scaled to the ratio. Smoothing is left off below
// ratio 2: there a smoothed edge would only blur the one-pixel lines, and at
// ratio 1.5 whole cells are snapped to pixels instead.
QPixmap Render(Drawing draw, qreal ratio) {
    QImage image(qCeil(kWidth * ratio), qCeil(kHeight * ratio),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, ratio >= 2.0);
        painter.scale(ratio, ratio);
        draw(painter);
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QIcon ToolbarIcon(lw::CommandId command) {
    const Drawing draw = DrawingOf(command);
    if (draw == nullptr)
        return QIcon();
    QIcon icon;
    for (qreal ratio : {1.0, 1.5, 2.0})
        icon.addPixmap(Render(draw, ratio));
    return icon;
}
