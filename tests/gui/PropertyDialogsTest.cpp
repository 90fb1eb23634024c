#include "QtPropertyDialogs.h"
#include "ScriptedDialogRunner.h"
#include "app/CanvasInput.h"
#include "support/SampleEditor.h"

#include <QComboBox>
#include <QListWidget>
#include <QTableWidget>
#include <QtTest>

using namespace lw::test;

// The editor's creation and edit commands with the real dialogs: a template
// made from nothing, edited again, undone and redone, saved as the dialogs
// showed it.
class PropertyDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor = std::make_unique<lw::test::SampleEditor>();
        editor->StartUp();
        runner = std::make_unique<ScriptedDialogRunner>();
        dialogs = std::make_unique<QtPropertyDialogs>(editor->weaver, editor->prompts, *runner);
        editor->weaver.SetPropertyDialogs(dialogs.get());
        input = std::make_unique<lw::CanvasInput>(editor->weaver);
    }

    void aTemplateIsMadeFromNothingEditedUndoneAndRedone() {
        MakeTemplate();
        const std::string made = editor->SavedText();
        QCOMPARE(editor->weaver.undoManager.undoStack.size(), std::size_t{6});
        QVERIFY(Contains(made, "phase; Alpha; random(<EMPTY>); blocks_Alpha; clone_location;;"));
        QVERIFY(Contains(made, "phase; Bravo; azimuth(Alpha,-1,1500.000000,90); blocks_Bravo;"));
        QVERIFY(Contains(made, "case; CASE11(Alpha,Bravo);"));
        QVERIFY(Contains(made, "switch; 1; 0; 0; SwitchOne(CASE11);"));
        QVERIFY(Contains(made, "unlink_nonplayer_input; blocks_Alpha(abort)"));
        // Above the phase, clear of the actions that stack up from it.
        QVERIFY(Contains(made, "gui_helper; unlink_Alpha; 300; 140;"));
        QVERIFY(Contains(made, "tlink; " + linkText));

        EditEverything();
        const std::string edited = editor->SavedText();
        QCOMPARE(editor->weaver.undoManager.undoStack.size(), std::size_t{11});
        QVERIFY(Contains(edited, "phase; Alpha2; random(<EMPTY>); blocks_Alpha2; in_range;;"));
        QVERIFY(Contains(edited, "azimuth(Alpha2,-1,1500.000000,90)"));
        QVERIFY(Contains(edited, "case; CASE11(Alpha2);"));
        QVERIFY(Contains(edited, "switch; 0; 5; 2; SwitchTwo(CASE11);"));
        QVERIFY(Contains(edited, "unlink_nonplayer_output; blocks_Alpha2("));
        QVERIFY(edited.find("tlink; ") == std::string::npos);

        for (int i = 0; i < 5; ++i)
            editor->weaver.Undo();
        QCOMPARE(editor->SavedText(), made);
        for (int i = 0; i < 5; ++i)
            editor->weaver.Redo();
        QCOMPARE(editor->SavedText(), edited);
        QVERIFY(editor->prompts.MessageTexts().empty());
        const QStringList opened{"Phase Properties",
                                 "Phase Properties",
                                 "Azimuth Additional Parameters",
                                 "Case Properties",
                                 "Switch properties",
                                 "Unlink properties (unlink non-player gates)",
                                 "Add new Target Link",
                                 "Phase Properties",
                                 "Case Properties",
                                 "Switch properties",
                                 "Unlink properties (unlink non-player gates)",
                                 "Delete Links connected to phase"};
        QCOMPARE(runner->titles, opened);
    }

    void aRefusedDialogKeepsNothing() {
        runner->Queue([](QDialog& dialog) {
            PressOk(dialog);
            QVERIFY(dialog.isVisible());
            dialog.reject();
        });
        editor->weaver.AddPhase();
        QVERIFY(editor->weaver.objects.empty());
        QCOMPARE(editor->prompts.MessageTexts(),
                 std::vector<std::string>{"Phase main blocks set must be selected!"});
    }

private:
    // Two phases (the second with geometry parameters from its own
    // dialog), a case of both, a switch of the case, an unlinker on the
    // first phase and a target link between them: six commands.
    void MakeTemplate() {
        lw::Weaver& weaver = editor->weaver;
        AddPhase("Alpha", "scg\\0\\blocks\\air\\patrol.group", 300, 300);
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "name", "Bravo");
            Choose(dialog, "mainBlockCombo", "scg\\0\\blocks\\air\\escort.group");
            Choose(dialog, "generationCombo", "Azimuth");
            Find<QComboBox>(dialog, "primaryCombo")->setEditText("Alpha");
            Press(dialog, "moreParametersButton");
            PressOk(dialog);
        });
        runner->Queue([](QDialog& dialog) {
            Choose(dialog, "aspectCombo", "Default");
            Type(dialog, "range", "1500");
            Type(dialog, "azimuth", "90");
            PressOk(dialog);
        });
        weaver.AddPhase();
        ClickAt(300, 700);

        SelectOnly({"Alpha", "Bravo"});
        runner->Queue([](QDialog& dialog) { PressOk(dialog); });
        weaver.AddCase();
        ClickAt(900, 300);

        weaver.selection.Clear();
        weaver.selection.Add(FirstOf<lw::Case>());
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "name", "SwitchOne");
            Type(dialog, "number", "1");
            PressOk(dialog);
        });
        weaver.AddSwitch();
        ClickAt(900, 700);

        SelectOnly({"Alpha"});
        runner->Queue([](QDialog& dialog) {
            Find<QListWidget>(dialog, "gateList")->item(0)->setSelected(true);
            Press(dialog, "moveToUnlinkButton");
            PressOk(dialog);
        });
        weaver.AddUnlinker();

        SelectOnly({"Alpha", "Bravo"});
        runner->Queue([this](QDialog& dialog) {
            Find<QComboBox>(dialog, "fromCombo")->setCurrentIndex(0);
            Find<QComboBox>(dialog, "toCombo")->setCurrentIndex(0);
            linkText = "Alpha(" +
                       Find<QComboBox>(dialog, "fromCombo")->currentText().toStdString() +
                       "); Bravo(" +
                       Find<QComboBox>(dialog, "toCombo")->currentText().toStdString() + ");";
            PressOk(dialog);
        });
        weaver.AddLink(false);
    }

    // Each object opened again by its double click and changed in its
    // dialog, and the link deleted through its dialog: five commands.
    void EditEverything() {
        lw::Weaver& weaver = editor->weaver;
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "name", "Alpha2");
            Choose(dialog, "allocationCombo", "in_range");
            PressOk(dialog);
        });
        weaver.EditObjectProperties(weaver.FindPhaseByName("Alpha"));

        runner->Queue([](QDialog& dialog) {
            Find<QListWidget>(dialog, "memberList")->item(1)->setSelected(true);
            Press(dialog, "removeButton");
            PressOk(dialog);
        });
        weaver.EditObjectProperties(FirstOf<lw::Case>());

        runner->Queue([](QDialog& dialog) {
            Type(dialog, "name", "SwitchTwo");
            Type(dialog, "number", "0");
            Choose(dialog, "preliminaryCombo", "enemy_category_1");
            Find<QAbstractButton>(dialog, "bomberRadio")->click();
            PressOk(dialog);
        });
        weaver.EditObjectProperties(FirstOf<lw::Switch>());

        runner->Queue([](QDialog& dialog) {
            Find<QListWidget>(dialog, "unlinkList")->item(0)->setSelected(true);
            Press(dialog, "moveBackButton");
            auto* gates = Find<QListWidget>(dialog, "gateList");
            gates->item(gates->count() - 1)->setSelected(true);
            Press(dialog, "moveToUnlinkButton");
            PressOk(dialog);
        });
        weaver.EditObjectProperties(FirstOf<lw::Unlinker>());

        SelectOnly({"Alpha2"});
        runner->Queue([](QDialog& dialog) {
            Find<QTableWidget>(dialog, "linkView")->selectRow(0);
            Press(dialog, "deleteSelectedButton");
            PressOk(dialog);
        });
        weaver.DeleteLinksOfPhase();
    }

    void SelectOnly(std::initializer_list<const char*> names) {
        editor->weaver.selection.Clear();
        for (const char* name : names)
            editor->Select(name);
    }

    template <typename T> T* FirstOf() {
        for (const auto& object : editor->weaver.objects) {
            if (T* typed = lw::As<T>(object.get()))
                return typed;
        }
        qFatal("no object of the kind");
        return nullptr;
    }

    void ClickAt(int x, int y) {
        input->LeftDown(x, y, lw::kLeftButton);
        input->LeftUp(x, y, 0);
    }

    void AddPhase(const QString& name, const QString& block, int x, int y) {
        runner->Queue([=](QDialog& dialog) {
            Type(dialog, "name", name);
            Choose(dialog, "mainBlockCombo", block);
            PressOk(dialog);
        });
        editor->weaver.AddPhase();
        ClickAt(x, y);
    }

    std::unique_ptr<lw::test::SampleEditor> editor;
    std::unique_ptr<ScriptedDialogRunner> runner;
    std::unique_ptr<QtPropertyDialogs> dialogs;
    std::unique_ptr<lw::CanvasInput> input;
    std::string linkText;
};

QTEST_MAIN(PropertyDialogsTest)
#include "PropertyDialogsTest.moc"
