#include "CMainFrame.h"
#include "CanvasImage.h"
#include "QPainterSurface.h"
#include "QtSurfaceValues.h"
#include "SceneExtent.h"
#include "canvas/CanvasPaint.h"
#include "canvas/CanvasPalette.h"
#include "support/SampleEditor.h"

#include <QFontInfo>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A white picture with one drawing made on it through the surface.
template <typename Draw> QImage Drawn(Draw draw) {
    QImage image(80, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    lw::QPainterSurface surface(painter);
    draw(surface);
    surface.Finish();
    painter.end();
    return image;
}

QColor At(const QImage& image, int x, int y) {
    return QColor(image.pixel(x, y));
}

} // namespace

// The canvas drawn with Qt's painter: the surface's pixels, its font, and the
// canvas window painting its document.
class CanvasPaintingTest : public QObject {
    Q_OBJECT

private slots:
    void shapesCoverTheirRectangleWithoutItsRightAndBottomEdges() {
        const QImage image = Drawn([](lw::DrawingSurface& dc) {
            dc.SelectBrush(lw::kBandBrush);
            dc.Rectangle(lw::ScreenRect{10, 10, 20, 20});
        });
        QCOMPARE(At(image, 10, 10), QColor(Qt::black));
        QCOMPARE(At(image, 19, 19), QColor(Qt::black));
        QCOMPARE(At(image, 15, 15), QColor(235, 240, 255));
        QCOMPARE(At(image, 20, 20), QColor(Qt::white));
        QCOMPARE(At(image, 9, 9), QColor(Qt::white));
    }

    void textTakesItsOwnColourAndRunsOutOfItsBox() {
        const QImage image = Drawn([](lw::DrawingSurface& dc) {
            dc.SelectFont(lw::CanvasFontAt(1.0f, false));
            dc.SelectPen(lw::kThinRedPen);
            dc.SetTextColour(lw::kGeometryTextColour);
            dc.DrawText("WWWWWW", lw::ScreenRect{39, 29, 41, 31},
                        lw::TextCentre | lw::TextVerticalCentre | lw::TextSingleLine |
                            lw::TextNoClip);
            dc.Line({0, 59}, {79, 59});
        });
        // Blue, not the pen's red, far out of its box on both sides; the pen
        // is red again after it.
        const auto blueColumn = [&image](int x) {
            for (int y = 20; y < 40; ++y) {
                if (At(image, x, y).blue() > At(image, x, y).red() + 100)
                    return true;
            }
            return false;
        };
        QVERIFY(blueColumn(25) && blueColumn(55));
        QCOMPARE(At(image, 40, 59), QColor(255, 0, 0));
    }

    void canvasFontIsArialOrItsMetricTwin() {
        const QFontInfo font(lw::ToQFont(lw::CanvasFontAt(1.0f, false)));
        QVERIFY2(font.family() == "Arial" || font.family() == "Liberation Sans",
                 qPrintable(font.family()));
        QCOMPARE(font.pixelSize(), 12);
        QCOMPARE(QFontInfo(lw::ToQFont(lw::CanvasFontAt(0.05f, true))).pixelSize(), 1);
    }

    // The surface drops the calls that cannot reach the picture: windows all
    // over a scene with every layer, where texts and lines cross the edges,
    // must show the same pixels as when every call is drawn.
    void droppingWhatCannotShowChangesNoPixel() {
        lw::test::SampleEditor editor;
        editor.Open("scg\\sample_rich.mt");
        lw::EditorOptions& options = editor.weaver.options;
        options.DrawInputOutputs = options.DrawSwitchAndCases = options.DrawChecks =
            options.DrawActions = options.DrawGeometry = true;
        const lw::SceneFrame frame = lw::FrameWholeScene(editor.weaver, 1.0f, editor.view.font, 20);
        const QSize window(230, 170);
        for (int top = 0; top < frame.height; top += 61) {
            for (int left = 0; left < frame.width; left += 97) {
                lw::ViewTransform view = frame.view;
                view.viewX -= left;
                view.viewY -= top;
                QImage everything(window, QImage::Format_RGB32);
                QPainter painter(&everything);
                lw::QPainterSurface surface(painter, lw::QPainterSurface::Unseen::Draw);
                lw::PaintCanvas(surface, editor.weaver, window.width(), window.height(), view,
                                editor.view.font);
                painter.end();
                QCOMPARE(lw::PaintCanvasImage(editor.weaver, view, editor.view.font, window),
                         everything);
            }
        }
    }

    void canvasWindowPaintsTheDocumentOfItsMainWindow() {
        QTemporaryDir settings;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
        CMainFrame frame;
        QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        QVERIFY(frame.weaver().LoadTemplateFile("scg\\sample_small.mt"));
        frame.view().viewX = -300;
        frame.view().viewY = -200;
        frame.view().scale = 1.0f;
        frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&frame));
        const QImage canvas = frame.view().grab().toImage();
        QCOMPARE(At(canvas, 0, 0), QColor(Qt::black));
        // PatrolStart is green and stands at (400, 400).
        QCOMPARE(At(canvas, 100 + 150, 200 + 120), QColor(150, 255, 150));
    }
};

QTEST_MAIN(CanvasPaintingTest)
#include "CanvasPaintingTest.moc"
