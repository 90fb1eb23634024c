#include "AppIcon.h"
#include "AppWindowIcon.h"
#include "PlaceCursor.h"
#include "ToolbarIcons.h"

#include <QBitmap>
#include <QtTest>
#include <vector>

namespace {

using lw::CommandId;

const std::vector<CommandId> kToolbarCommands{
    CommandId::FileNew,      CommandId::FileOpen,   CommandId::FileSave,
    CommandId::EditUndo,     CommandId::EditRedo,   CommandId::EditCut,
    CommandId::EditCopy,     CommandId::EditPaste,  CommandId::DrawIo,
    CommandId::DrawSwitches, CommandId::DrawChecks, CommandId::DrawActions,
    CommandId::DrawGeometry, CommandId::AddPhase,   CommandId::AddUnlinker,
    CommandId::AddCase,      CommandId::AddSwitch,  CommandId::AppAbout};

const QSize kButtonSize(16, 15);

int OpaquePixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) != 0 ? 1 : 0;
    }
    return count;
}

bool IsClassicColour(QRgb pixel) {
    static const QList<QRgb> palette{
        qRgb(0, 0, 0),       qRgb(128, 0, 0),   qRgb(0, 128, 0),   qRgb(128, 128, 0),
        qRgb(0, 0, 128),     qRgb(128, 0, 128), qRgb(0, 128, 128), qRgb(192, 192, 192),
        qRgb(128, 128, 128), qRgb(255, 0, 0),   qRgb(0, 255, 0),   qRgb(255, 255, 0),
        qRgb(0, 0, 255),     qRgb(255, 0, 255), qRgb(0, 255, 255), qRgb(255, 255, 255)};
    return palette.contains(pixel);
}

bool IsClear(const QImage& image, int x, int y) {
    return qAlpha(image.pixel(x, y)) == 0;
}

} // namespace

class ToolbarPicturesTest : public QObject {
    Q_OBJECT

private slots:
    // At 1x every pixel is either clear or one of the sixteen colours, so
    // no smoothed edge blurs a one-pixel line.
    void everyToolbarButtonHasItsOwnCrispPicture() {
        std::vector<QImage> seen;
        for (CommandId command : kToolbarCommands) {
            const QByteArray name = lw::CommandName(command);
            const QIcon icon = ToolbarIcon(command);
            QVERIFY2(!icon.isNull(), name);

            const QPixmap single = icon.pixmap(kButtonSize, 1.0);
            QCOMPARE(single.size(), kButtonSize);
            const QPixmap twice = icon.pixmap(kButtonSize, 2.0);
            QCOMPARE(twice.size(), kButtonSize * 2);
            QCOMPARE(twice.devicePixelRatio(), 2.0);

            const QImage image = single.toImage().convertToFormat(QImage::Format_ARGB32);
            QVERIFY2(OpaquePixels(image) > 15, name);
            QVERIFY2(OpaquePixels(twice.toImage()) > 60, name);
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb pixel = image.pixel(x, y);
                    QVERIFY2(qAlpha(pixel) == 0 || (qAlpha(pixel) == 255 && IsClassicColour(pixel)),
                             name + " at " + QByteArray::number(x) + "," + QByteArray::number(y));
                }
            }
            for (const QImage& other : seen)
                QVERIFY2(other != image, name + " looks like another button");
            seen.push_back(image);
        }
    }

    // Rounded corners: the picture has a shape rather than filling its square.
    void appIconHasAShapeAtEverySize() {
        for (int size : {16, 256}) {
            const QImage image = lw::PaintAppIcon(size);
            QCOMPARE(image.size(), QSize(size, size));
            QVERIFY(image.hasAlphaChannel());
            QVERIFY(IsClear(image, 0, 0));
            QCOMPARE(qAlpha(image.pixel(size / 2, size / 2)), 255);
            QVERIFY(OpaquePixels(image) > size * size / 2);
            QVERIFY(OpaquePixels(image) < size * size);
        }
        QCOMPARE(AppWindowIcon().pixmap(QSize(48, 48), 1.0).size(), QSize(48, 48));
    }
};

QTEST_MAIN(ToolbarPicturesTest)
#include "ToolbarPicturesTest.moc"
