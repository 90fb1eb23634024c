#include "ReplayCommand.h"

#include "ReplayScript.h"
#include "TemplateCommands.h"
#include "ToolSession.h"
#include "app/AppInfo.h"
#include "app/CanvasInput.h"
#include "app/EditorCommands.h"
#include "canvas/CanvasView.h"
#include "seams/ScriptedFileDialogs.h"
#include "seams/ScriptedPropertyDialogs.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

// The replay's canvas lies at the screen's origin, so that the wheel's screen
// points are its window points, and has the editor's first window size.
const lw::ScreenRect kCanvasOnScreen{0, 0, 1024, 768};

// The full path a file dialog answers for a file the user picks in the data
// folder, given as the files name it: relative, with "\" separators.
std::string PathInDataFolder(std::string dataFolder, std::string path) {
    while (dataFolder.size() > 1 && dataFolder.back() == '/')
        dataFolder.pop_back();
    std::replace(path.begin(), path.end(), '\\', '/');
    return dataFolder + "/" + path;
}

unsigned HeldKeys(const ReplayEvent& event) {
    return (event.shift ? lw::kShiftKey : 0u) | (event.ctrl ? lw::kCtrlKey : 0u);
}

// A phase, case or switch by its name, every other object by its kind and id.
std::string SelectedName(const lw::EditorObject& object) {
    if (const auto* phase = lw::As<lw::Phase>(&object))
        return phase->name;
    if (const auto* item = lw::As<lw::Case>(&object))
        return item->name;
    if (const auto* item = lw::As<lw::Switch>(&object))
        return item->name;
    const char* kind = "object";
    switch (object.GetKind()) {
    case lw::ObjectKind::Check:
        kind = "check";
        break;
    case lw::ObjectKind::Action:
        kind = "action";
        break;
    case lw::ObjectKind::Unlinker:
        kind = "unlinker";
        break;
    default:
        break;
    }
    return std::string(kind) + "#" + std::to_string(object.id);
}

// The menu on one line; the tab before a key's name is shown as "\t".
std::string MenuLine(const lw::ContextMenu& menu) {
    std::string line = "menu:";
    for (std::size_t i = 0; i < menu.size(); ++i) {
        line += i == 0 ? " " : " | ";
        if (menu[i].IsSeparator()) {
            line += "-";
            continue;
        }
        for (char c : menu[i].text)
            line += c == '\t' ? std::string("\\t") : std::string(1, c);
    }
    return line;
}

// The editor with its canvas, its dialogs answered by the script, and the
// lines of the script printed as they are played.
class Replay {
public:
    Replay(const ToolArguments& arguments, std::ostream& out)
        : outTyped_(arguments.positional[2]), outPath_(CommandLinePath(outTyped_)), out_(out),
          dataFolder_(arguments.dataFolder), session_(arguments.dataFolder),
          commands_(session_.weaver, fileDialogs_), input_(session_.weaver) {
        session_.weaver.SetView(&view_);
        session_.weaver.SetPropertyDialogs(&dialogs_);
    }

    int Run(const std::string& inPath, const std::vector<ReplayEvent>& events) {
        lw::Weaver& weaver = session_.weaver;
        const bool loaded = weaver.LoadTemplateFile(CommandLinePath(inPath));
        PrintPrompts();
        if (!loaded)
            return kFailure;
        // A save in the script writes OUT, never IN.
        weaver.fileName = outPath_;
        for (const ReplayEvent& event : events) {
            const bool menuOpens = Play(event);
            PrintPrompts();
            PrintDialogs();
            if (menuOpens)
                out_ << MenuLine(weaver.BuildContextMenu()) << "\n";
            if (event.kind == ReplayEventKind::Dump)
                out_ << DumpLine() << "\n";
        }
        weaver.fileName = outPath_;
        const bool saved = weaver.SaveTemplateFile();
        PrintPrompts();
        if (!saved)
            return kFailure;
        return anyPrompt_ ? kMessageShown : kNoMessage;
    }

private:
    // Hands the event to the canvas, the commands or the dialogs; true when
    // it opens the context menu.
    bool Play(const ReplayEvent& event) {
        const int x = event.x;
        const int y = event.y;
        switch (event.kind) {
        case ReplayEventKind::Press:
            input_.LeftDown(x, y, lw::kLeftButton | HeldKeys(event));
            break;
        case ReplayEventKind::Release:
            input_.LeftUp(x, y, HeldKeys(event));
            break;
        case ReplayEventKind::Click:
            input_.LeftDown(x, y, lw::kLeftButton | HeldKeys(event));
            input_.LeftUp(x, y, HeldKeys(event));
            break;
        case ReplayEventKind::DoubleClick:
            // What a platform delivers: the first click whole, then the
            // double click in place of the second press, then its release.
            input_.LeftDown(x, y, lw::kLeftButton);
            input_.LeftUp(x, y, 0);
            input_.LeftDoubleClick(x, y);
            input_.LeftUp(x, y, 0);
            break;
        case ReplayEventKind::Move:
            input_.Move(x, y, event.rightButton ? lw::kRightButton : 0u);
            break;
        case ReplayEventKind::RightPress:
            input_.RightDown(x, y, lw::kRightButton);
            break;
        case ReplayEventKind::RightRelease:
            return input_.RightUp(x, y, 0);
        case ReplayEventKind::Wheel:
            input_.Wheel(x, y, event.delta, kCanvasOnScreen);
            break;
        case ReplayEventKind::Key:
            input_.Key(event.key);
            break;
        case ReplayEventKind::Command:
            commands_.Run(event.command);
            break;
        case ReplayEventKind::Answer:
            session_.prompts.QueueAnswer(event.answer);
            break;
        case ReplayEventKind::File:
            fileDialogs_.answers.push_back(PathInDataFolder(dataFolder_, event.path));
            break;
        case ReplayEventKind::Dialog:
            dialogs_.QueueOutcome(event.accept);
            break;
        case ReplayEventKind::Dump:
            break;
        }
        return false;
    }

    void PrintPrompts() {
        const std::vector<std::string> shown = session_.TakeMessagesAndQuestions();
        PrintLines(out_, shown);
        anyPrompt_ = anyPrompt_ || !shown.empty();
    }

    void PrintDialogs() {
        const auto& log = dialogs_.Log();
        for (; dialogsPrinted_ < log.size(); ++dialogsPrinted_) {
            const auto& answered = log[dialogsPrinted_];
            out_ << "dialog " << answered.dialog << ": " << (answered.accepted ? "ok" : "cancel")
                 << "\n";
        }
    }

    std::string DumpLine() const {
        const lw::Weaver& weaver = session_.weaver;
        std::string selection;
        for (const lw::EditorObject* member : weaver.selection.members)
            selection += (selection.empty() ? "" : ", ") + SelectedName(*member);
        return "state=" + std::to_string(weaver.Gesture().Number()) + " selection=[" + selection +
               "] changed=" + std::to_string(weaver.undoManager.changed ? 1 : 0) +
               " undo=" + std::to_string(weaver.undoManager.undoStack.size()) +
               " redo=" + std::to_string(weaver.undoManager.redoStack.size()) + " caption=\"" +
               Caption() + "\" view=" + ViewText();
    }

    // The view's offset in world units and its scale, so that fitting and
    // zooming show in a script's output.
    std::string ViewText() const {
        std::ostringstream text;
        text << view_.viewX << "," << view_.viewY << " scale=" << view_.scale;
        return text.str();
    }

    // The window's title, with OUT as the user typed it, so that the output
    // does not depend on the folder the replay ran in.
    std::string Caption() const {
        const lw::Weaver& weaver = session_.weaver;
        if (weaver.fileName != outPath_)
            return weaver.Title();
        return std::string(lw::kApplicationName) + " - " + outTyped_ +
               (weaver.undoManager.changed ? "*" : "");
    }

    const std::string outTyped_;
    const std::string outPath_;
    std::ostream& out_;
    // The view and the dialogs outlive the editor that points to them.
    lw::CanvasView view_;
    lw::ScriptedPropertyDialogs dialogs_;
    const std::string dataFolder_;
    lw::ScriptedFileDialogs fileDialogs_;
    ToolSession session_;
    lw::EditorCommands commands_;
    lw::CanvasInput input_;
    std::size_t dialogsPrinted_ = 0;
    bool anyPrompt_ = false;
};

} // namespace

int RunReplayCommand(const ToolArguments& arguments, std::ostream& out) {
    const std::string& scriptPath = arguments.positional[1];
    std::ifstream scriptFile(std::filesystem::u8path(scriptPath), std::ios::binary);
    if (!scriptFile || std::filesystem::is_directory(std::filesystem::u8path(scriptPath))) {
        std::cerr << "loomwright-tool: can't read script " << scriptPath << "\n";
        return kFailure;
    }
    const ReplayScript script = ReadReplayScript(scriptFile);
    if (script.Failed()) {
        std::cerr << "loomwright-tool: " << scriptPath << ":" << script.errorLine << ": "
                  << script.error << ": " << script.errorText << "\n";
        return kFailure;
    }
    Replay replay(arguments, out);
    return replay.Run(arguments.positional[0], script.events);
}
