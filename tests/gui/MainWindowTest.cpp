#include "CMainFrame.h"
#include "CommandActions.h"
#include "FindBar.h"
#include "LockKeyIndicators.h"
#include "ProblemsPanel.h"
#include "app/AppInfo.h"
#include "app/CommandTable.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QtTest>
#include <filesystem>
#include <fstream>
#include <sstream>

using lw::CommandId;

namespace {

void SendMouse(QWidget* view, QEvent::Type type, QPoint point, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QMouseEvent event(type, QPointF(point), QPointF(view->mapToGlobal(point)), button, held,
                      modifiers);
    QApplication::sendEvent(view, &event);
}

void Click(QWidget* view, QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    SendMouse(view, QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton, modifiers);
    SendMouse(view, QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton, modifiers);
}

void Drag(QWidget* view, QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
    SendMouse(view, QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    SendMouse(view, QEvent::MouseButtonPress, from, button, button);
    SendMouse(view, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, button);
    SendMouse(view, QEvent::MouseMove, to, Qt::NoButton, button);
    SendMouse(view, QEvent::MouseButtonRelease, to, button, Qt::NoButton);
}

void Wheel(QWidget* view, QPoint point, int delta) {
    QWheelEvent wheel(QPointF(point), QPointF(view->mapToGlobal(point)), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &wheel);
}

// Runs `close` on the next modal dialog or popup menu once it shows.
template <typename Widget> void OnNext(std::function<void(Widget&)> close) {
    QTimer::singleShot(0, [close] {
        QWidget* shown = QApplication::activePopupWidget();
        if (shown == nullptr)
            shown = QApplication::activeModalWidget();
        auto* widget = qobject_cast<Widget*>(shown);
        if (widget == nullptr) {
            OnNext<Widget>(close);
            return;
        }
        close(*widget);
    });
}

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

} // namespace

// The whole editor on the rich sample, used as a designer uses it: the
// pointer on the canvas, the menus, the toolbar, the keys and the bars.
class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(settingsFolder.isValid() && dataCopy.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
        std::filesystem::copy(LOOMWRIGHT_SAMPLE_DATA_DIR, dataCopy.path().toStdString(),
                              std::filesystem::copy_options::recursive);
    }

    void init() {
        QSettings settings(lw::kOrganizationName, lw::kApplicationName);
        settings.setValue("LoomwrightOptions/LastUsedTemplateName", "scg\\sample_rich.mt");
        frame = std::make_unique<CMainFrame>();
        QVERIFY(frame->OnCreate(dataCopy.path().toStdString()));
        frame->show();
        frame->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
        QCOMPARE(frame->windowTitle(), QString("Loomwright - scg\\sample_rich.mt"));
        view = &frame->view();
        // Four notches out show the whole template.
        for (int i = 0; i < 4; ++i)
            Wheel(view, QPoint(0, 0), -120);
        QVERIFY(view->scale < 0.7f);
    }

    void cleanup() {
        frame->weaver().undoManager.changed = false;
        frame.reset();
    }

    void aDragIsOneCommandUndoneAndRedoneByMenuAndKeys() {
        lw::Phase* start = frame->weaver().FindPhaseByName("PlayerStart");
        Drag(view, At("PlayerStart"), At("PlayerStart") + QPoint(50, 25));
        const int movedX = start->posX;
        QVERIFY(movedX > 400);
        QCOMPARE(frame->weaver().undoManager.undoStack.size(), std::size_t{1});
        QVERIFY(frame->windowTitle().endsWith('*'));

        frame->actions().Action(CommandId::EditUndo)->trigger();
        QCOMPARE(start->posX, 400);
        QVERIFY(!frame->actions().Action(CommandId::EditUndo)->isEnabled());
        QVERIFY(frame->actions().Action(CommandId::EditRedo)->isEnabled());
        frame->actions().Action(CommandId::EditRedo)->trigger();
        QCOMPARE(start->posX, movedX);

        QTest::keyClick(frame.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(start->posX, 400);
        QTest::keyClick(frame.get(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(start->posX, movedX);
        QTest::keyClick(frame.get(), Qt::Key_Backspace, Qt::AltModifier);
        QCOMPARE(start->posX, 400);
    }

    void deleteKeyAndEveryLayerToggle() {
        lw::Weaver& weaver = frame->weaver();
        Click(view, At("BomberRaid"));
        QTest::keyClick(view, Qt::Key_Delete);
        QVERIFY(weaver.FindPhaseByName("BomberRaid") == nullptr);
        // The keypad's Delete is the same key to a user.
        Click(view, At("PlayerStart"));
        QTest::keyClick(view, Qt::Key_Delete, Qt::KeypadModifier);
        QVERIFY(weaver.FindPhaseByName("PlayerStart") == nullptr);

        const std::pair<CommandId, bool*> layers[] = {
            {CommandId::DrawIo, &weaver.options.DrawInputOutputs},
            {CommandId::DrawSwitches, &weaver.options.DrawSwitchAndCases},
            {CommandId::DrawChecks, &weaver.options.DrawChecks},
            {CommandId::DrawActions, &weaver.options.DrawActions},
            {CommandId::DrawGeometry, &weaver.options.DrawGeometry}};
        for (const auto& [command, flag] : layers) {
            QAction* action = frame->actions().Action(command);
            auto* button =
                qobject_cast<QToolButton*>(frame->actions().Toolbar()->widgetForAction(action));
            QVERIFY(button != nullptr && button->isCheckable());
            QVERIFY(!*flag && !action->isChecked());
            button->click();
            QVERIFY(*flag);
            QVERIFY(action->isChecked() && button->isChecked());
        }
        // The bars go with their own toggles.
        frame->actions().Action(CommandId::ViewToolbar)->trigger();
        QVERIFY(frame->actions().Toolbar()->isHidden());
        QVERIFY(!frame->actions().Action(CommandId::ViewToolbar)->isChecked());
        frame->actions().Action(CommandId::ViewStatusBar)->trigger();
        QVERIFY(frame->statusBar()->isHidden());
    }

    void theWheelZoomsAndTheRightButtonPans() {
        view->viewX = view->viewY = 0;
        view->scale = 1.0f;
        Wheel(view, QPoint(10, 10), 120);
        QCOMPARE(view->scale, 1.1f);
        QCOMPARE(view->lw::CanvasView::font.height, 15);

        view->viewX = view->viewY = 0;
        view->scale = 1.0f;
        Drag(view, QPoint(100, 100), QPoint(130, 90), Qt::RightButton);
        QCOMPARE(view->viewX, 30);
        QCOMPARE(view->viewY, -10);
        // A right drag opens no menu: the release is not where the press was.
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void theRightButtonOpensTheMenuOfOneOrTwoPhases() {
        Click(view, At("PlayerStart"));
        const QStringList one = ContextMenuAt(At("PlayerStart"));
        QVERIFY(one.contains("Add Rule..."));
        QVERIFY(one.contains("Delete Links..."));
        QVERIFY(!one.contains("Add Target Link from PlayerStart to WaypointNorth"));

        Click(view, At("WaypointNorth"), Qt::ControlModifier);
        const QStringList two = ContextMenuAt(At("WaypointNorth"));
        QVERIFY(two.contains("Add Target Link from PlayerStart to WaypointNorth"));
        QVERIFY(two.contains("Add Object Link from PlayerStart to WaypointNorth"));
        QCOMPARE(one.last(), QString("status: Shows Delete Links Dialog for Selected Phase"));
        QCOMPARE(two.last(), QString("status: Add Object link\\Add Object Link"));
    }

    void savesThroughTheFileDialog() {
        frame->weaver().fileName.clear();
        Drag(view, At("PlayerStart"), At("PlayerStart") + QPoint(30, 0));
        QVERIFY(frame->actions().Action(CommandId::FileSave)->isEnabled());
        const QString target = dataCopy.filePath("scg/saved.mt");
        const QString dataFolder = dataCopy.path();
        OnNext<QFileDialog>([target, dataFolder](QFileDialog& dialog) {
            // Save As starts in the data folder itself, not in "scg".
            QCOMPARE(dialog.nameFilters(), QStringList{"Mission Template Files (*.mt)"});
            QCOMPARE(dialog.directory().canonicalPath(), QDir(dataFolder).canonicalPath());
            dialog.selectFile(target);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        QTest::keyClick(frame.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(frame->windowTitle(), QString("Loomwright - scg\\saved.mt"));
        QVERIFY(!frame->actions().Action(CommandId::FileSave)->isEnabled());
        const std::string saved = ReadFile(target.toStdString());
        QVERIFY(saved.find("gui_helper; PlayerStart; ") != std::string::npos);
        QVERIFY(saved.find("\r\n") != std::string::npos);
    }

    void statusBarShowsTheCommandsTextsAndTheLocks() {
        QLabel* ready = frame->statusBar()->findChild<QLabel*>("ready");
        QCOMPARE(ready->text(), QString("Ready"));
        QAction* undo = frame->actions().Action(CommandId::EditUndo);
        QCOMPARE(undo->toolTip(), QString("Undo"));
        undo->showStatusText(frame.get());
        QCOMPARE(frame->statusBar()->currentMessage(), QString("Undo the last action"));

        QStatusBar bar;
        bool capsOn = true;
        LockKeyIndicators locks(bar, [&](LockKey key) { return key == LockKey::Caps && capsOn; });
        QCOMPARE(locks.Text(LockKey::Caps), QString("CAP"));
        QCOMPARE(locks.Text(LockKey::Num), QString());
        capsOn = false;
        locks.Refresh();
        QCOMPARE(locks.Text(LockKey::Caps), QString());

        for (const lw::Accelerator& key : lw::Accelerators())
            QCOMPARE(KeySequenceOf(key.keys).count(), 1);
    }

    void theAboutBoxAndEveryMenuCommandOpenAndClose() {
        OnNext<QDialog>([](QDialog& about) {
            QCOMPARE(about.windowTitle(), QString("About Loomwright"));
            QCOMPARE(about.findChild<QLabel*>("version")->text(),
                     QString("Loomwright Version 1.0"));
            about.accept();
        });
        frame->actions().Action(CommandId::AppAbout)->trigger();

        // Every entry but Exit, as a user would try them: each dialog or
        // question that opens is noted and cancelled, each placing stopped
        // with Esc.
        Click(view, At("PlayerStart"));
        std::map<CommandId, QString> opened;
        for (const lw::MenuDefinition& menu : lw::MainMenu()) {
            for (const lw::MenuEntry& entry : menu.entries) {
                if (entry.IsSeparator() || entry.command == CommandId::AppExit)
                    continue;
                QTimer closer;
                connect(&closer, &QTimer::timeout, [&opened, &entry] {
                    if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                        opened[*entry.command] = Describe(*modal);
                        modal->reject();
                    }
                });
                closer.start(10);
                frame->actions().Action(*entry.command)->trigger();
                QTest::keyClick(view, Qt::Key_Escape);
                QCOMPARE(frame->weaver().Gesture().Number(), int(lw::InteractionState::StateIdle));
            }
        }
        QVERIFY(frame->isVisible());
        const QString data = QDir(dataCopy.path()).canonicalPath();
        QCOMPARE(opened[CommandId::FileOpen], "files in " + data + "/scg");
        QCOMPARE(opened[CommandId::FileSaveAs], "files in " + data);
        QCOMPARE(opened[CommandId::ReloadBlocks], QString("warning: Loomwright"));
        QCOMPARE(opened[CommandId::AddPhase], QString("Phase Properties"));
        QCOMPARE(opened[CommandId::AddSwitch], QString("Switch properties"));
        QCOMPARE(opened[CommandId::AppAbout], QString("About Loomwright"));
    }

    // At a large display scale a window of fixed size would put its status
    // bar off the screen; it fits, and opens again where it was left.
    void theWindowFitsTheScreenAndReopensWhereItWasLeft() {
        const QRect available = frame->screen()->availableGeometry();
        QVERIFY(available.contains(frame->frameGeometry()));
        frame->setGeometry(QRect(available.topLeft() + QPoint(20, 30), QSize(500, 400)));
        const QRect left = frame->geometry();
        QVERIFY(frame->close());
        CMainFrame again;
        QVERIFY(again.OnCreate(dataCopy.path().toStdString()));
        QCOMPARE(again.geometry(), left);
        QSettings(lw::kOrganizationName, lw::kApplicationName).remove("Window");
    }

    // The rich sample opens showing all of its phases, not one of them.
    void aTemplateOpensFittedAndFindGoesFromMatchToMatch() {
        CMainFrame fresh;
        QVERIFY(fresh.OnCreate(dataCopy.path().toStdString()));
        fresh.resize(1024, 768);
        fresh.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fresh));
        const QRect canvas = fresh.view().rect();
        const lw::ViewTransform shown = fresh.view();
        fresh.weaver().ForEach<lw::Phase>([&](const lw::Phase& phase) {
            const lw::ScreenRect r = phase.GetScreenRect(shown.viewX, shown.viewY, shown.scale);
            QVERIFY2(canvas.contains(QRect(r.left, r.top, r.right - r.left, r.bottom - r.top)),
                     phase.name.c_str());
        });

        // Find selects each match alone and centres it; the count shows in
        // the status bar, and no match is said in the bar itself.
        QTest::keyClick(&fresh, Qt::Key_F, Qt::ControlModifier);
        auto* text = fresh.findBar().findChild<QLineEdit*>("findText");
        QVERIFY(text->hasFocus());
        // "Patrol" names blocks of several phases, in any case.
        QTest::keyClicks(text, "PATROL");
        QTest::keyClick(text, Qt::Key_Return);
        QCOMPARE(fresh.weaver().selection.members.size(), std::size_t{1});
        const auto* found = static_cast<lw::Phase*>(fresh.weaver().selection.members[0]);
        QVERIFY(fresh.statusBar()->currentMessage().startsWith("1 of "));
        const QPoint middle = canvas.center();
        QVERIFY(qAbs(fresh.view().ScreenX(found->posX + 100) - middle.x()) <= 2);
        QTest::keyClick(&fresh, Qt::Key_F3);
        QVERIFY(fresh.statusBar()->currentMessage().startsWith("2 of "));
        text->setText("no such name");
        QCOMPARE(fresh.findBar().findChild<QLabel*>("findStatus")->text(), QString("No match"));
        QTest::keyClick(text, Qt::Key_Escape);
        QVERIFY(fresh.findBar().isHidden());
        QVERIFY(fresh.view().hasFocus());
        fresh.weaver().undoManager.changed = false;
    }

    // A newcomer's first start shows a template rather than an empty canvas.
    void theFirstStartOpensTheRichSample() {
        QSettings settings(lw::kOrganizationName, lw::kApplicationName);
        const auto saved = settings.allKeys();
        QMap<QString, QVariant> values;
        for (const QString& key : saved)
            values[key] = settings.value(key);
        settings.clear();
        CMainFrame first;
        QVERIFY(first.OnCreate(dataCopy.path().toStdString()));
        QCOMPARE(first.windowTitle(), QString("Loomwright - scg\\sample_rich.mt"));
        for (auto it = values.begin(); it != values.end(); ++it)
            settings.setValue(it.key(), it.value());
    }

    void recentFilesTheStatusBarAndTheFocusAfterAMessage() {
        QAction* first = frame->actions().Action(CommandId::RecentFile1);
        QVERIFY(first->isVisible());
        QCOMPARE(first->text(), QString("&1 scg\\sample_rich.mt"));
        QVERIFY(!frame->actions().Action(CommandId::RecentFile2)->isVisible());
        // A recent file that is gone leaves the list with a word.
        frame->weaver().recentFiles.Add("scg\\gone.mt");
        frame->RefreshCommandStates();
        frame->RunCommand(CommandId::RecentFile1);
        QCOMPARE(frame->statusBar()->currentMessage(), QString("scg\\gone.mt no longer exists."));
        QCOMPARE(frame->weaver().recentFiles.Paths().size(), std::size_t{1});

        // The status bar tells the zoom and what a placing waits for.
        QVERIFY(frame->statusBar()->findChild<QLabel*>("zoom")->text().endsWith('%'));
        std::filesystem::remove(dataCopy.filePath("scg/clipboard.mt").toStdString());
        frame->RunCommand(CommandId::EditFind);
        OnNext<QMessageBox>([](QMessageBox& box) {
            QCOMPARE(box.text(), QString("The clipboard is empty."));
            box.accept();
        });
        frame->RunCommand(CommandId::EditPaste);
        // The canvas, not the find bar, has the keys again, so that Escape
        // works at once.
        QCOMPARE(frame->focusWidget(), view);
        Click(view, At("PlayerStart"));
        frame->RunCommand(CommandId::EditCopy);
        frame->RunCommand(CommandId::EditPaste);
        QCOMPARE(frame->statusBar()->findChild<QLabel*>("hint")->text(),
                 QString("Click to place the template, Esc cancels"));
        QTest::keyClick(view, Qt::Key_Escape);
    }

    // The Problems panel lists what a damaged template holds, and a double
    // click takes the designer to the object.
    void theProblemsPanelListsAndShowsTheObject() {
        std::filesystem::copy_file(LOOMWRIGHT_CASES_DIR "/check/small-case/input.mt",
                                   dataCopy.filePath("scg/damaged.mt").toStdString());
        QVERIFY(frame->weaver().LoadTemplateFile("scg\\damaged.mt"));
        frame->RefreshCommandStates();
        auto* list = frame->problemsPanel().findChild<QTreeWidget*>("problemList");
        QCOMPARE(list->topLevelItemCount(), 1);
        QTreeWidgetItem* row = list->topLevelItem(0);
        QCOMPARE(row->text(3), QString("10"));
        QVERIFY(row->text(1).contains("Alone"));
        QCOMPARE(frame->statusBar()->findChild<QLabel*>("problems")->text(), QString("1 problem"));

        // A double click comes as a click, then the second press.
        const QPoint onRow = list->visualItemRect(row).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, onRow);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, onRow);
        lw::Weaver& weaver = frame->weaver();
        QCOMPARE(weaver.selection.members.size(), std::size_t{1});
        const lw::EditorObject* alone = weaver.selection.members[0];
        QCOMPARE(alone->GetKind(), lw::ObjectKind::Case);
        QVERIFY(qAbs(view->ScreenX(alone->posX) - view->width() / 2) <= 2);
    }

    void theWindowIsGrabbedToAPicture() {
        for (CommandId layer : {CommandId::DrawIo, CommandId::DrawSwitches, CommandId::DrawChecks,
                                CommandId::DrawActions, CommandId::DrawGeometry})
            frame->RunCommand(layer);
        // The rich sample as it opens in a window of 1024 by 768: all of it.
        frame->resize(1024, 768);
        frame->RunCommand(CommandId::ViewZoomFit);
        Click(view, At("ReconSweep") + QPoint(10, 10));
        const QImage picture = frame->grab().toImage();
        const QString path =
            qEnvironmentVariable("LOOMWRIGHT_SCREENSHOT", dataCopy.filePath("editor.png"));
        QVERIFY(picture.save(path, "PNG"));
        const QImage read(path);
        QCOMPARE(read.size(), frame->size() * frame->devicePixelRatio());
        // The canvas holds far more than its white ground.
        const QImage canvas = view->grab().toImage();
        int drawn = 0;
        for (int y = 0; y < canvas.height(); y += 4)
            for (int x = 0; x < canvas.width(); x += 4)
                drawn += canvas.pixel(x, y) != qRgb(255, 255, 255);
        QVERIFY(drawn > 500);
    }

private:
    QPoint Screen(int worldX, int worldY) const {
        return QPoint(view->ScreenX(worldX), view->ScreenY(worldY));
    }

    QPoint At(const char* phase) const {
        const lw::Phase* found = frame->weaver().FindPhaseByName(phase);
        if (found == nullptr)
            qFatal("no phase %s", phase);
        return Screen(found->posX, found->posY);
    }

    QStringList Selected() const {
        QStringList names;
        for (const lw::EditorObject* member : frame->weaver().selection.members)
            names << QString::fromStdString(static_cast<const lw::Phase*>(member)->name);
        return names;
    }

    // What a modal dialog is, in a few words: its folder for a file
    // dialog, its icon and title for a message box, else its title.
    static QString Describe(QDialog& dialog) {
        if (auto* files = qobject_cast<QFileDialog*>(&dialog))
            return "files in " + files->directory().canonicalPath();
        if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            const bool warning = box->icon() == QMessageBox::Warning;
            return (warning ? "warning: " : "other: ") + box->windowTitle();
        }
        return dialog.windowTitle();
    }

    QStringList ContextMenuAt(QPoint point) {
        QStringList texts;
        OnNext<QMenu>([&texts, this](QMenu& menu) {
            for (QAction* action : menu.actions())
                texts << (action->isEnabled() ? "" : "(greyed) ") + action->text();
            // The entry pointed at tells about itself in the window's status bar.
            menu.setActiveAction(menu.actions().back());
            texts << "status: " + frame->statusBar()->currentMessage();
            menu.close();
        });
        SendMouse(view, QEvent::MouseButtonPress, point, Qt::RightButton, Qt::RightButton);
        SendMouse(view, QEvent::MouseButtonRelease, point, Qt::RightButton, Qt::NoButton);
        return texts;
    }

    QTemporaryDir settingsFolder;
    QTemporaryDir dataCopy;
    std::unique_ptr<CMainFrame> frame;
    CChildView* view = nullptr;
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
