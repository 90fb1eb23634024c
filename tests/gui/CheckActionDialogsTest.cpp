#include "QtPropertyDialogs.h"
#include "ScriptedDialogRunner.h"
#include "app/CanvasInput.h"
#include "app/EditorCommands.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/SampleEditor.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QTableWidget>
#include <QtTest>

using namespace lw::test;

// Every kind of check and action made through the editor's own commands with
// the real dialogs, opened again by a double click and changed, and the
// saved template holding what the dialogs showed.
class CheckActionDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor = std::make_unique<SampleEditor>();
        editor->Open("scg\\sample_rich.mt");
        // Checks and actions take double clicks only where they are drawn.
        editor->weaver.options.DrawChecks = true;
        editor->weaver.options.DrawActions = true;
        runner = std::make_unique<ScriptedDialogRunner>();
        dialogs = std::make_unique<QtPropertyDialogs>(editor->weaver, editor->prompts, *runner);
        editor->weaver.SetPropertyDialogs(dialogs.get());
        input = std::make_unique<lw::CanvasInput>(editor->weaver);
        commands = std::make_unique<lw::EditorCommands>(editor->weaver, fileDialogs);
    }

    void everyCheckIsAddedFromTheMenuAndEditedAgain() {
        Select("FrontSector");
        QVERIFY(editor->weaver.FindPhaseByName("FrontSector")->primaryLinkId != 0);
        QueueNewChecks();
        for (const char* entry :
             {"Add Squad Check", "Add Location Type Check", "Add Coalition Check",
              "Add Range Check", "Add In Radius Check", "Add In Sector Check", "Add Free Check"})
            RunMenuEntry(entry);
        QVERIFY(runner->AllUsed());
        const std::string added = editor->SavedText();
        QVERIFY(Contains(added, "check; FrontSector; squad(27,03.08.1918);"));
        QVERIFY(Contains(added, "check; FrontSector; location_type(Navigation,FrontLine,River);"));
        QVERIFY(Contains(added, "check; FrontSector; coalition(fn);"));
        QVERIFY(Contains(added, "check; FrontSector; range(PRIMARY_LINK_PHASE,at,2500);"));
        QVERIFY(Contains(added, "check; FrontSector; in_radius(PRIMARY_LINK_PHASE,700);"));
        QVERIFY(Contains(added, "check; FrontSector; in_sector(PRIMARY_LINK_PHASE,90);"));
        QVERIFY(Contains(added, "check; FrontSector; free();"));

        QueueCheckEdits();
        for (std::int32_t checkId : editor->weaver.FindPhaseByName("FrontSector")->checkIds)
            DoubleClick(editor->weaver.FindObject(checkId));
        QVERIFY(runner->AllUsed());
        const std::string edited = editor->SavedText();
        QVERIFY(Contains(edited, "check; FrontSector; squad($playersquad,03.08.1918);"));
        QVERIFY(Contains(
            edited, "check; FrontSector; location_type(Navigation,FrontLine,Shoreline,River);"));
        QVERIFY(Contains(edited, "check; FrontSector; coalition();"));
        QVERIFY(Contains(edited, "check; FrontSector; range(PRIMARY_LINK_PHASE,at,-1);"));
        QVERIFY(Contains(edited, "check; FrontSector; in_radius(PRIMARY_LINK_PHASE,1200);"));
        QVERIFY(Contains(edited, "check; FrontSector; in_sector(PRIMARY_LINK_PHASE,300);"));
        QCOMPARE(editor->prompts.MessageTexts(),
                 std::vector<std::string>{"Please enter a whole number from 0 to 359."});

        // The free check has no editor, so its double click opened nothing.
        const QStringList checkDialogs{"Check Squad", "Location Type Check", "Coalition Check",
                                       "Range Check", "In Radius Check",     "In Sector Check"};
        QCOMPARE(runner->titles, checkDialogs + checkDialogs);
        for (int i = 0; i < 6; ++i)
            editor->weaver.Undo();
        QCOMPARE(editor->SavedText(), added);
    }

    void everyActionIsAddedAndEditedAgain() {
        // A rule action made by hand from the menu.
        Select("FrontSector");
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "text", "Signal");
            PressOk(dialog);
        });
        runner->Queue([](QDialog& dialog) {
            Choose(dialog, "ruleCombo", "add_flag");
            Type(dialog, "parameter", "green");
            Press(dialog, "addRuleButton");
            Choose(dialog, "ruleCombo", "dawn_pack");
            Press(dialog, "addRuleButton");
            PressOk(dialog);
        });
        RunMenuEntry("Add Rule...");

        // The property actions come with a phase placed from a block that
        // has them.
        AddPhase("Hunters", "scg\\0\\blocks\\air\\ace_hunt.group");
        const std::string added = editor->SavedText();
        QVERIFY(Contains(added, "action; FrontSector(,Signal); add_flag(Signal,green);\r\n"
                                "action; FrontSector(,Signal); set_time(dawn);\r\n"
                                "action; FrontSector(,Signal); set_light(low,12);if(season==2); "));

        EditActionsOf("FrontSector");
        EditActionsOf("Hunters");
        QVERIFY(runner->AllUsed());
        const std::string edited = editor->SavedText();
        QVERIFY(Contains(edited,
                         "action; FrontSector(,Signal); set_time(dawn);\r\n"
                         "action; FrontSector(,Signal); set_light(low,12);if(season==2); "));
        QVERIFY(edited.find("add_flag(Signal,green)") == std::string::npos);
        QVERIFY(Contains(edited, "action; FrontSector(Strongpoint,Country); set_country(enemy);"));
        QVERIFY(Contains(edited, "action; Hunters(AceLead,Model); "
                                 "set_model(fighter,ally:fighter:kestrel_mk3);\r\n"
                                 "action; Hunters(AceLead,Skin); set_skin($plane_2_skin);\r\n"
                                 "action; Hunters(AceLead,Country); set_country(enemy);\r\n"
                                 "action; Hunters(AceLead,Skill); "
                                 "set_altitude(Skill,1500);if(alt<3000); "));
        QVERIFY(editor->prompts.MessageTexts().empty());
        for (int i = 0; i < 6; ++i)
            editor->weaver.Undo();
        QCOMPARE(editor->SavedText(), added);
    }

private:
    // Squad 27 on 3 August 1918, navigation by front line and river, friendly
    // or neutral, at 2500 m, within 700 m, in 90 degrees; the free check has
    // no dialog.
    void QueueNewChecks() {
        runner->Queue([](QDialog& dialog) {
            Press(dialog, "usePlayerSquad");
            Type(dialog, "squadId", "27");
            Press(dialog, "useServerDate");
            Find<QCalendarWidget>(dialog, "date")->setSelectedDate(QDate(1918, 8, 3));
            PressOk(dialog);
        });
        runner->Queue([](QDialog& dialog) {
            Choose(dialog, "typeCombo", "Navigation");
            Press(dialog, "box1");
            Press(dialog, "box3");
            PressOk(dialog);
        });
        runner->Queue(PressThenOk({"friendly", "neutral"}));
        runner->Queue([](QDialog& dialog) {
            Press(dialog, "closest");
            Type(dialog, "range", "2500");
            PressOk(dialog);
        });
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "radius", "700");
            PressOk(dialog);
        });
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "arc", "90");
            PressOk(dialog);
        });
    }

    // The player's squad, the shoreline as well, no coalition, the range
    // parameter, a wider radius, and an arc that is first refused.
    void QueueCheckEdits() {
        runner->Queue(PressThenOk({"usePlayerSquad"}));
        runner->Queue(PressThenOk({"box2"}));
        runner->Queue(PressThenOk({"friendly", "neutral"}));
        runner->Queue(PressThenOk({"useParameter"}));
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "radius", "1200");
            PressOk(dialog);
        });
        runner->Queue([](QDialog& dialog) {
            Type(dialog, "arc", "360");
            PressOk(dialog);
            QVERIFY(dialog.isVisible());
            Type(dialog, "arc", "300");
            PressOk(dialog);
        });
    }

    // Opens every action of the phase by its double click and changes it in
    // the dialog its name chooses.
    void EditActionsOf(const std::string& phaseName) {
        const lw::Phase* phase = editor->weaver.FindPhaseByName(phaseName);
        for (std::int32_t actionId : phase->actionIds) {
            auto* action = lw::As<lw::Action>(editor->weaver.FindObject(actionId));
            if (action->name == "Signal")
                runner->Queue([](QDialog& dialog) {
                    Find<QTableWidget>(dialog, "ruleList")->selectRow(0);
                    Press(dialog, "deleteButton");
                    PressOk(dialog);
                });
            else if (action->name == "Model")
                runner->Queue([](QDialog& dialog) {
                    Choose(dialog, "typeCombo", "fighter");
                    Choose(dialog, "makeItCombo", "ally:fighter:kestrel_mk3");
                    PressOk(dialog);
                });
            else if (action->name == "Skin")
                runner->Queue([](QDialog& dialog) {
                    Choose(dialog, "skinCombo", "$plane_2_skin");
                    PressOk(dialog);
                });
            else if (action->name == "Country")
                runner->Queue([](QDialog& dialog) {
                    Choose(dialog, "countryCombo", "enemy");
                    PressOk(dialog);
                });
            else if (action->name == "Skill")
                runner->Queue([](QDialog& dialog) {
                    Choose(dialog, "ruleCombo", "set_altitude");
                    Type(dialog, "parameter", "1500");
                    Type(dialog, "condition", "alt < 3000");
                    Press(dialog, "addRuleButton");
                    PressOk(dialog);
                });
            else
                continue;
            const int opened = runner->titles.size();
            DoubleClick(action);
            QCOMPARE(runner->titles.size(), opened + 1);
        }
    }

    void RunMenuEntry(const std::string& text) {
        for (const lw::MenuEntry& entry : editor->weaver.BuildContextMenu()) {
            if (entry.text == text) {
                QVERIFY(commands->Run(*entry.command));
                return;
            }
        }
        QFAIL(("no menu entry " + text).c_str());
    }

    void AddPhase(const QString& name, const QString& block) {
        runner->Queue([=](QDialog& dialog) {
            Type(dialog, "name", name);
            Choose(dialog, "mainBlockCombo", block);
            PressOk(dialog);
        });
        editor->weaver.AddPhase();
        // Far below the sample's objects, so that its actions are free to
        // click.
        input->LeftDown(600, 3000, lw::kLeftButton);
        input->LeftUp(600, 3000, 0);
    }

    void DoubleClick(const lw::EditorObject* object) {
        const lw::ViewTransform& view = editor->weaver.View();
        input->LeftDoubleClick(view.ScreenX(object->posX), view.ScreenY(object->posY));
    }

    void Select(const std::string& name) {
        editor->weaver.selection.Clear();
        editor->Select(name);
    }

    lw::ScriptedFileDialogs fileDialogs;
    std::unique_ptr<SampleEditor> editor;
    std::unique_ptr<ScriptedDialogRunner> runner;
    std::unique_ptr<QtPropertyDialogs> dialogs;
    std::unique_ptr<lw::CanvasInput> input;
    std::unique_ptr<lw::EditorCommands> commands;
};

QTEST_MAIN(CheckActionDialogsTest)
#include "CheckActionDialogsTest.moc"
