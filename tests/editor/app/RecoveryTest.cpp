#include "app/Recovery.h"

#include "document/TemplateWriter.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

const std::string kSmall = "scg\\sample_small.mt";
const std::string kFolder = "/Home/.local/share/Loomwright";
const std::string kCopy = kFolder + "/recovery.mt";

class RecoveryTest : public ::testing::Test {
protected:
    void SetUp() override { e.weaver.SetRecovery(&recovery); }

    bool CopyExists() const { return e.disk.KindOf(kCopy) == PathKind::File; }
    std::string Copy() const {
        auto stream = e.disk.OpenForReading(kCopy);
        return stream ? std::string(std::istreambuf_iterator<char>(*stream), {}) : "<missing>";
    }
    // An edit through the editor, as a user makes one.
    void DeletePhase(const std::string& name) {
        e.Select(name);
        e.weaver.DeleteSelection();
    }
    // The editor's next start on the same disk and options, after a crash.
    std::unique_ptr<Weaver> Restart() {
        auto next = std::make_unique<Weaver>(e.prompts, e.store, e.disk);
        next->SetRecovery(&recovery);
        next->SetViewHost(&e.host);
        next->StartUp(test::SampleEditor::kData);
        return next;
    }

    test::SampleEditor e;
    Recovery recovery{e.disk, kFolder};
};

} // namespace

TEST_F(RecoveryTest, TheCopyFollowsTheUnsavedChanges) {
    e.Open(kSmall);
    EXPECT_FALSE(CopyExists());

    DeletePhase("Contact");
    EXPECT_EQ(Copy(), e.SavedText());
    const std::optional<Recovery::Kept> kept = recovery.Find();
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->templatePath, kSmall);

    e.weaver.Undo();
    EXPECT_FALSE(CopyExists()) << "back at the saved state, nothing is unsaved";
    e.weaver.Redo();
    EXPECT_EQ(Copy(), e.SavedText());

    ASSERT_TRUE(e.weaver.SaveTemplateFile());
    EXPECT_FALSE(CopyExists());
    EXPECT_FALSE(recovery.Find());
}

TEST_F(RecoveryTest, YesAtTheNextStartRestoresTheChangesUnsavedUnderTheTemplatesName) {
    e.store.SetString(EditorOptions::kSection, "LastUsedTemplateName", "scg\\sample_rich.mt");
    e.Open(kSmall);
    DeletePhase("Contact");
    const std::string changed = e.SavedText();

    e.prompts.QueueAnswer(Answer::Yes);
    e.store.SetInt(EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 1);
    std::unique_ptr<Weaver> next = Restart();

    ASSERT_EQ(e.prompts.Log().size(), 1u);
    EXPECT_EQ(e.prompts.Log()[0].text,
              "Loomwright was not closed properly. Restore the unsaved changes to "
              "scg\\sample_small.mt?\n\nThe changes were kept on " +
                  recovery.Find()->time + ".");
    EXPECT_EQ(e.prompts.Log()[0].questionButtons, QuestionButtons::YesNo);
    EXPECT_EQ(next->fileName, kSmall) << "not the last used template";
    EXPECT_EQ(e.host.title, "Loomwright - scg\\sample_small.mt*");
    TemplateDesc desc;
    next->ExportToDesc(desc);
    EXPECT_EQ(TemplateDescText(desc), changed);
    EXPECT_TRUE(CopyExists()) << "a second crash must not lose the restored changes";

    ASSERT_TRUE(next->SaveTemplateFile());
    EXPECT_EQ(e.DataFileText(kSmall), changed);
    EXPECT_FALSE(CopyExists());
}

TEST_F(RecoveryTest, NoAtTheNextStartRemovesTheCopyAndOpensTheLastTemplate) {
    e.Open(kSmall);
    DeletePhase("Contact");
    e.prompts.QueueAnswer(Answer::No);
    e.store.SetInt(EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 1);
    e.store.SetString(EditorOptions::kSection, "LastUsedTemplateName", kSmall);

    std::unique_ptr<Weaver> next = Restart();
    EXPECT_EQ(e.prompts.Log().size(), 1u);
    EXPECT_FALSE(CopyExists());
    EXPECT_FALSE(next->undoManager.changed);
    EXPECT_EQ(e.host.title, "Loomwright - scg\\sample_small.mt");
}

TEST_F(RecoveryTest, ACopyThatCannotBeWrittenIsSaidOnceAndTheDocumentStays) {
    e.Open(kSmall);
    e.disk.FailNextReplace();
    DeletePhase("Contact");
    ASSERT_EQ(e.prompts.Log().size(), 1u);
    EXPECT_EQ(e.prompts.Log()[0].text,
              "The recovery copy cannot be written to \"" + kFolder +
                  "\", so unsaved changes are not kept against a crash. Save them as usual.");
    EXPECT_TRUE(e.weaver.undoManager.changed);

    e.disk.FailNextReplace();
    DeletePhase("Sighting");
    EXPECT_EQ(e.prompts.Log().size(), 1u) << "one message a session";
    EXPECT_TRUE(e.weaver.CanUndo());
}

// A large document is written once the window is idle, once for all the
// changes made until then, and not at all when they were undone meanwhile.
TEST_F(RecoveryTest, ALargeDocumentIsWrittenWhenTheWindowIsIdle) {
    e.AddGeneratedData(1500);
    e.Open("scg\\synthetic.mt");
    ASSERT_GT(e.weaver.objects.size(), 5000u);

    DeletePhase("P1");
    DeletePhase("P2");
    EXPECT_FALSE(CopyExists());
    EXPECT_EQ(e.host.idleWork.size(), 1u) << "changes coalesce into one write";
    e.host.RunIdleWork();
    EXPECT_EQ(Copy(), e.SavedText());

    DeletePhase("P3");
    e.weaver.Undo();
    e.weaver.Undo();
    e.weaver.Undo();
    e.host.RunIdleWork();
    EXPECT_FALSE(CopyExists());
}
