#include "CMainFrame.h"

#include "CAboutDlg.h"
#include "CommandActions.h"
#include "FindBar.h"
#include "LockKeyIndicators.h"
#include "ProblemsPanel.h"
#include "QtText.h"
#include "app/AppInfo.h"
#include "app/CanvasStatus.h"
#include "app/DataFolder.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

CMainFrame::CMainFrame(QWidget* parent)
    : QMainWindow(parent), weaver_(prompts_, optionsStore_, fileSystem_),
      commands_(weaver_, fileDialogs_), propertyDialogs_(weaver_, prompts_, dialogRunner_) {
    // Until the first refresh of the title the caption is the program's name alone.
    setWindowTitle(lw::kApplicationName);
    prompts_.SetParent(this);
    fileDialogs_.SetParent(this);
    // The Problems panel lists what reading a template finds.
    weaver_.reportProblems = true;
    propertyDialogs_.SetParent(this);
    weaver_.SetPropertyDialogs(&propertyDialogs_);
}

void CMainFrame::UseRecovery(const std::string& folder) {
    recovery_ = std::make_unique<lw::Recovery>(fileSystem_, folder);
    weaver_.SetRecovery(recovery_.get());
}

bool CMainFrame::OnCreate(const std::string& dataFolder) {
    CreateCanvasArea();
    // Esc and Delete are keys of the canvas: the window hands its focus on.
    setFocusProxy(&view_);
    actions_ = new CommandActions(*this, [this](lw::CommandId command) { RunCommand(command); });
    actions_->Build();
    connect(actions_, &CommandActions::aboutToShowMenu, this, &CMainFrame::RefreshCommandStates);
    CreateStatusBar();
    PlaceOnScreen();

    weaver_.SetViewHost(this);
    weaver_.SetView(&view_);
    view_.Attach(
        weaver_, [this](lw::CommandId command) { RunCommand(command); },
        [this](lw::CommandId command) { return commands_.IsEnabled(command); });
    connect(&view_, &CChildView::inputHandled, this, &CMainFrame::RefreshCommandStates);

    const QString program = QCoreApplication::applicationFilePath();
    weaver_.StartUp(dataFolder.empty() ? lw::DataFolderForExecutable(PathToStdString(program))
                                       : dataFolder);
    weaver_.OpenFirstStartTemplate();
    RefreshCommandStates();
    return true;
}

// The canvas, with the find bar under it, hidden until Find is asked for.
void CMainFrame::CreateCanvasArea() {
    auto* area = new QWidget(this);
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    view_.setParent(area);
    layout->addWidget(&view_, 1);
    findBar_ = new FindBar(commands_.Find(), area);
    findBar_->hide();
    layout->addWidget(findBar_);
    setCentralWidget(area);
    connect(findBar_, &FindBar::stepAsked, this, &CMainFrame::StepThroughMatches);
    connect(findBar_, &FindBar::closed, this, [this] { view_.setFocus(); });

    problemsPanel_ = new ProblemsPanel(weaver_, this);
    addDockWidget(Qt::BottomDockWidgetArea, problemsPanel_);
    resizeDocks({problemsPanel_}, {120}, Qt::Vertical);
    connect(problemsPanel_, &ProblemsPanel::objectShown, this, &CMainFrame::RefreshCommandStates);
}

void CMainFrame::StepThroughMatches(bool forward) {
    RunCommand(forward ? lw::CommandId::FindNext : lw::CommandId::FindPrevious);
}

// The window comes back where the user left it. The first time it opens at
// 1024 by 768, or smaller where the screen's free area is smaller (a small
// screen, or a large display scale), centred in that area.
void CMainFrame::PlaceOnScreen() {
    if (restoreGeometry(optionsStore_.WindowGeometry()))
        return;
    const QRect available = screen()->availableGeometry();
    // The frame the window system adds is not known before the window shows.
    const QSize room = available.size() - QSize(16, 48);
    const QSize size = QSize(1024, 768).boundedTo(room);
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, available));
}

// The message pane shows "Ready" while no entry or button is pointed at; a
// status text replaces it for as long as it shows.
void CMainFrame::CreateStatusBar() {
    auto* ready = new QLabel(tr("Ready"), statusBar());
    ready->setObjectName("ready");
    statusBar()->addWidget(ready, 1);
    // Each field is wide enough for its longest text, so that the fields
    // stand still while their texts change.
    const auto field = [this](const char* name, const QString& longest) {
        auto* label = new QLabel(statusBar());
        label->setObjectName(name);
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(longest) + 8);
        statusBar()->addPermanentWidget(label);
        return label;
    };
    hintField_ = field("hint", QString());
    pointerField_ = field("pointer", QStringLiteral("-99999, -99999"));
    selectionField_ = field("selection", QStringLiteral("9999 selected"));
    zoomField_ = field("zoom", QStringLiteral("200%"));
    problemsField_ = field("problems", QStringLiteral("9999 problems"));
    new LockKeyIndicators(*statusBar());
}

void CMainFrame::RefreshCanvasStatus() {
    const lw::CanvasStatus status = lw::DescribeCanvas(weaver_);
    hintField_->setText(ToQString(status.hint));
    pointerField_->setText(ToQString(status.pointer));
    selectionField_->setText(ToQString(status.selection));
    zoomField_->setText(ToQString(status.zoom));
    problemsPanel_->Refresh();
    problemsField_->setText(ProblemCountText(problemsPanel_->Count()));
}

void CMainFrame::RunCommand(lw::CommandId command) {
    // The hint of the entry just chosen must not stay while its dialog is up.
    statusBar()->clearMessage();
    if (lw::EditorCommands::IsWindowCommand(command))
        RunWindowCommand(command);
    else
        commands_.Run(command);
    const bool finding = command == lw::CommandId::EditFind || command == lw::CommandId::FindNext ||
                         command == lw::CommandId::FindPrevious;
    if (finding) {
        findBar_->ShowStatus();
        statusBar()->showMessage(ToQString(commands_.Find().Status()));
    } else {
        // After any dialog or message box the canvas takes the keys again,
        // so that Escape reaches a placing at once.
        view_.setFocus();
    }
    RefreshCommandStates();
}

void CMainFrame::RunWindowCommand(lw::CommandId command) {
    switch (command) {
    case lw::CommandId::AppExit:
        close();
        break;
    case lw::CommandId::AppAbout:
        CAboutDlg(this).exec();
        break;
    case lw::CommandId::ViewToolbar:
        actions_->Toolbar()->setVisible(actions_->Toolbar()->isHidden());
        break;
    case lw::CommandId::ViewStatusBar:
        statusBar()->setVisible(statusBar()->isHidden());
        break;
    case lw::CommandId::EditFind:
        findBar_->Open();
        break;
    case lw::CommandId::ViewProblems:
        problemsPanel_->setVisible(problemsPanel_->isHidden());
        break;
    default:
        break;
    }
}

bool CMainFrame::IsChecked(lw::CommandId command) const {
    // The bars are ticked while shown, even before the window is.
    if (command == lw::CommandId::ViewToolbar)
        return !actions_->Toolbar()->isHidden();
    if (command == lw::CommandId::ViewStatusBar)
        return !statusBar()->isHidden();
    if (command == lw::CommandId::ViewProblems)
        return !problemsPanel_->isHidden();
    return commands_.IsChecked(command);
}

void CMainFrame::RefreshCommandStates() {
    if (actions_ == nullptr)
        return;
    actions_->Refresh([this](lw::CommandId command) { return commands_.IsEnabled(command); },
                      [this](lw::CommandId command) { return IsChecked(command); });
    actions_->ShowRecentFiles(weaver_.recentFiles.Paths());
    RefreshCanvasStatus();
}

// Every change of the document and every undo and redo refreshes the title,
// so the commands are brought up to date with it.
void CMainFrame::SetTitle(const std::string& title) {
    setWindowTitle(ToQString(title));
    RefreshCommandStates();
}

void CMainFrame::Repaint() {
    view_.update();
}

void CMainFrame::RepaintArea(const lw::ScreenRect& area) {
    // The band's edge is drawn on its right and bottom lines as well.
    view_.update(
        QRect(area.left, area.top, area.right - area.left + 1, area.bottom - area.top + 1));
}

// A new cursor means a new gesture state, which the commands depend on.
void CMainFrame::ShowCursor(lw::CanvasCursor cursor) {
    view_.ShowCursor(cursor);
    RefreshCommandStates();
}

void CMainFrame::ShowStatusText(const std::string& text) {
    statusBar()->showMessage(ToQString(text));
}

// A queued call runs on the next turn of the event loop, after the events
// already waiting: no timer is involved.
void CMainFrame::RunWhenIdle(std::function<void()> work) {
    QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
}

bool CMainFrame::OpenTextFile(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(path)));
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    if (!commands_.File().ConfirmClose()) {
        event->ignore();
        return;
    }
    weaver_.SaveOptions();
    weaver_.DiscardRecoveryCopy();
    optionsStore_.SetWindowGeometry(saveGeometry());
    optionsStore_.Flush();
    event->accept();
}
