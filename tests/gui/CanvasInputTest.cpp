#include "CMainFrame.h"
#include "app/AppInfo.h"

#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest>

namespace {

void SendMouse(QWidget* view, QEvent::Type type, QPoint point, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QMouseEvent event(type, QPointF(point), QPointF(view->mapToGlobal(point)), button, held,
                      modifiers);
    QApplication::sendEvent(view, &event);
}

} // namespace

// The canvas window hands the pointer, the wheel and the keys to the gesture
// machine: the events of a real mouse reach the document on the sample.
class CanvasInputTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(settingsFolder.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
        QSettings settings(lw::kOrganizationName, lw::kApplicationName);
        settings.setValue("LoomwrightOptions/LastUsedTemplateName", "scg\\sample_small.mt");
    }

    void aDragMovesTheClickedPhaseAsOneCommand() {
        CMainFrame frame;
        QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        frame.show();
        lw::Weaver& weaver = frame.weaver();
        lw::Phase* start = weaver.FindPhaseByName("PatrolStart");
        QVERIFY(start != nullptr);
        QWidget* view = &frame.view();

        QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(450, 450));
        QCOMPARE(weaver.selection.members, std::vector<lw::EditorObject*>{start});
        QVERIFY(weaver.undoManager.undoStack.empty());

        SendMouse(view, QEvent::MouseButtonPress, {450, 450}, Qt::LeftButton, Qt::LeftButton);
        SendMouse(view, QEvent::MouseMove, {470, 480}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(view->cursor().shape(), Qt::SizeAllCursor);
        SendMouse(view, QEvent::MouseButtonRelease, {470, 480}, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(start->posX, 420);
        QCOMPARE(start->posY, 430);
        QCOMPARE(weaver.undoManager.undoStack.size(), std::size_t{1});
        QCOMPARE(view->cursor().shape(), Qt::ArrowCursor);

        QVERIFY(frame.commands().Run(lw::CommandId::EditUndo));
        QCOMPARE(start->posX, 400);
        weaver.undoManager.changed = false;
    }

    void theRightButtonPansAndTheWheelZooms() {
        CMainFrame frame;
        QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        frame.show();
        CChildView& view = frame.view();

        SendMouse(&view, QEvent::MouseMove, {100, 100}, Qt::NoButton, Qt::NoButton);
        SendMouse(&view, QEvent::MouseButtonPress, {100, 100}, Qt::RightButton, Qt::RightButton);
        SendMouse(&view, QEvent::MouseMove, {130, 90}, Qt::NoButton, Qt::RightButton);
        QCOMPARE(view.viewX, 30);
        QCOMPARE(view.viewY, -10);
        // A right drag opens no menu: the release is not where the press was.
        SendMouse(&view, QEvent::MouseButtonRelease, {130, 90}, Qt::RightButton, Qt::NoButton);

        const QPoint inside = view.mapToGlobal(QPoint(10, 10));
        QWheelEvent wheel(QPointF(10, 10), QPointF(inside), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &wheel);
        QCOMPARE(view.scale, 1.1f);
        QCOMPARE(view.lw::CanvasView::font.height, 15);
    }

    void deleteAndEscapeReachTheDocument() {
        CMainFrame frame;
        QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        frame.show();
        lw::Weaver& weaver = frame.weaver();
        const std::size_t before = weaver.objects.size();
        QTest::mouseClick(&frame.view(), Qt::LeftButton, {}, QPoint(450, 450));
        QTest::keyClick(&frame.view(), Qt::Key_Delete);
        QVERIFY(weaver.objects.size() < before);
        QVERIFY(weaver.FindPhaseByName("PatrolStart") == nullptr);

        QVERIFY(frame.commands().Run(lw::CommandId::EditPaste));
        QCOMPARE(weaver.interactionState, int(lw::StatePlaceTemplate));
        QTest::keyClick(&frame.view(), Qt::Key_Escape);
        QCOMPARE(weaver.interactionState, int(lw::StateIdle));
        weaver.undoManager.changed = false;
    }

private:
    QTemporaryDir settingsFolder;
};

QTEST_MAIN(CanvasInputTest)
#include "CanvasInputTest.moc"
