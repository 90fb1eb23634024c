#include "app/AppInfo.h"
#include "app/Weaver.h"
#include "document/TemplateWriter.h"

namespace lw {

namespace {

// Up to this many objects (a template of about 1,100 phases with their
// checks and actions) the copy is written at every change, in under 15 ms.
// A larger document is written when the window is idle, once for all the
// changes made since.
constexpr std::size_t kWriteAtOnceObjects = 5000;

} // namespace

void Weaver::KeepRecoveryCopy() {
    if (recovery_ == nullptr)
        return;
    if (!undoManager.changed) {
        recovery_->Remove();
        return;
    }
    if (objects.size() <= kWriteAtOnceObjects || viewHost == nullptr) {
        WriteRecoveryCopy();
        return;
    }
    if (recoveryPending_)
        return;
    recoveryPending_ = true;
    viewHost->RunWhenIdle([this] {
        recoveryPending_ = false;
        if (undoManager.changed)
            WriteRecoveryCopy();
    });
}

// A copy that cannot be written loses nothing of the document; the user is
// told once a session that it is not kept against a crash.
void Weaver::WriteRecoveryCopy() {
    TemplateDesc desc;
    ExportToDesc(desc);
    if (recovery_->Write(fileName, TemplateDescText(desc), LocalTimeNow()) || recoveryFailureShown_)
        return;
    recoveryFailureShown_ = true;
    prompts.ShowMessage("The recovery copy cannot be written to \"" + recovery_->Folder() +
                            "\", so unsaved changes are not kept against a crash. Save them "
                            "as usual.",
                        MessageIcon::Warning);
}

bool Weaver::OfferRecoveredDocument() {
    if (recovery_ == nullptr)
        return false;
    const std::optional<Recovery::Kept> kept = recovery_->Find();
    if (!kept)
        return false;
    const std::string name = kept->templatePath.empty() ? kUntitledName : kept->templatePath;
    const Answer answer =
        prompts.Ask("Loomwright was not closed properly. Restore the unsaved changes to " + name +
                        "?\n\nThe changes were kept on " + kept->time + ".",
                    MessageIcon::Question, QuestionButtons::YesNo);
    if (answer != Answer::Yes || !ReadDocument(kept->copyPath)) {
        recovery_->Remove();
        return false;
    }
    // The document is the template it was a copy of, with its changes
    // unsaved: Save writes it where it belongs.
    fileName = kept->templatePath;
    undoManager.MarkChangedForGood(); // and writes the copy anew
    Repaint();
    FitAll();
    return true;
}

void Weaver::DiscardRecoveryCopy() {
    if (recovery_ != nullptr)
        recovery_->Remove();
}

} // namespace lw
