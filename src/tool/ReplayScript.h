#pragma once

#include "app/CanvasInput.h"
#include "app/CommandId.h"
#include "platform/UserPrompts.h"

#include <istream>
#include <string>
#include <vector>

// One line of a replay script: an input event of the canvas, a command, an
// answer prepared for a dialog that is still to come, or a dump of the state.
enum class ReplayEventKind {
    Press,
    Release,
    Move,
    Click,
    DoubleClick,
    RightPress,
    RightRelease,
    Wheel,
    Key,
    Command,
    Answer,
    File,
    Dialog,
    Dump,
};

struct ReplayEvent {
    ReplayEventKind kind = ReplayEventKind::Dump;
    int x = 0;
    int y = 0;
    int delta = 0;
    bool shift = false;
    bool ctrl = false;
    bool rightButton = false;
    lw::CanvasKey key = lw::CanvasKey::Escape;
    lw::CommandId command = lw::CommandId::FileNew;
    lw::Answer answer = lw::Answer::Cancel;
    // The outcome of a property dialog.
    bool accept = false;
    // The file chosen, as the user picks it relative to the data folder.
    std::string path;
};

// A whole script, or the first line it could not read: a script runs only
// when every line of it is understood.
struct ReplayScript {
    std::vector<ReplayEvent> events;
    int errorLine = 0;
    std::string error;
    std::string errorText;

    bool Failed() const { return errorLine != 0; }
};

// Reads one event a line; "#" at the start of a word begins a comment, and
// lines that are blank or only a comment are skipped.
ReplayScript ReadReplayScript(std::istream& in);
