#include "QtPropertyDialogs.h"
#include "ScriptedDialogRunner.h"
#include "app/CanvasInput.h"
#include "app/EditorCommands.h"
#include "dialogs/FormDialog.h"
#include "dialogs/QtDateReader.h"
#include "dialogs/QtFractalAdditionalDlg.h"
#include "platform/RecordingPrompts.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/SampleEditor.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QLocale>
#include <QScreen>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QtTest>

using namespace lw::test;

namespace {

// A form taller than any screen the tests run on.
class TallDialog : public FormDialog {
public:
    TallDialog() : FormDialog("Tall", nullptr) {
        auto* layout = new QVBoxLayout(this);
        for (int i = 0; i < 60; ++i)
            layout->addWidget(new QCheckBox(QString("box %1").arg(i), this));
        layout->addWidget(OkCancelButtons());
    }

protected:
    void TakeWidgets() override {}
    void ShowModel() override {}
    bool AcceptModel() override { return true; }
};

} // namespace

// The property dialogs. The binding of a form model to its widgets is tried
// once; every dialog is then driven through the editor's own commands as a
// user fills it in, and the saved template holds what the dialogs showed.
// What each form model decides is proven by its own test in the editor's
// suite, not again here. Every dialog opened must lie within the test's
// small screen.
class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor = std::make_unique<SampleEditor>();
        runner = std::make_unique<ScriptedDialogRunner>();
        dialogs = std::make_unique<QtPropertyDialogs>(editor->weaver, editor->prompts, *runner);
        editor->weaver.SetPropertyDialogs(dialogs.get());
        input = std::make_unique<lw::CanvasInput>(editor->weaver);
        commands = std::make_unique<lw::EditorCommands>(editor->weaver, fileDialogs);
    }

    void cleanup() { QCOMPARE(runner->offScreen, QStringList()); }

    // The model's fields fill the widgets, a widget's change reaches the
    // model's enable states at once, and OK writes the widgets back.
    void aFormModelIsShownAndWrittenThroughItsWidgets() {
        lw::RecordingPrompts prompts;
        lw::CFractalAdditionalDlg form("-2", "1500.000000", "45");
        QtFractalAdditionalDlg dialog(form, prompts);
        dialog.show();
        auto* aspectValue = Find<QLineEdit>(dialog, "aspectValue");
        QCOMPARE(aspectValue->text(), QString("-2"));
        QCOMPARE(Find<QComboBox>(dialog, "typeCombo")->currentIndex(), -1);

        Find<QComboBox>(dialog, "aspectCombo")->setCurrentIndex(1);
        QCOMPARE(aspectValue->text(), QString("0"));
        QVERIFY(!aspectValue->isEnabled());
        Type(dialog, "deviation", "30");
        Find<QComboBox>(dialog, "typeCombo")->setCurrentIndex(1);
        PressOk(dialog);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(form.param1, std::string("0"));
        QCOMPARE(form.param2, std::string("30"));
        QCOMPARE(form.param3, std::string("left"));
    }

    // A dialog that grows past the screen keeps its OK button within reach.
    void aDialogTallerThanTheScreenScrollsInsideIt() {
        TallDialog dialog;
        const QRect available = dialog.screen()->availableGeometry();
        QVERIFY(dialog.sizeHint().height() > available.height());
        dialog.show();
        QVERIFY(dialog.findChild<QScrollArea*>() != nullptr);
        QVERIFY(available.contains(dialog.geometry()));
        PressOk(dialog);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void theDateReaderTakesOurFormThenTheUsersShortForm() {
        const lw::DateReader read = QtDateReader();
        lw::CalendarDate date;
        QVERIFY(read("20.07.1917", date));
        QCOMPARE(lw::FormatDate(date), std::string("20.07.1917"));
        const QString shortForm =
            QLocale::system().toString(QDate(1918, 4, 3), QLocale::ShortFormat);
        QVERIFY(read(ToStdString(shortForm), date));
        QCOMPARE(date.day * 100 + date.month, 304);
        QVERIFY(!read("soon", date));
    }

    void aTemplateIsMadeFromNothingEditedUndoneAndRedone() {
        editor->StartUp();
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
        editor->StartUp();
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

    void everyCheckIsAddedFromTheMenu() {
        OpenRichSample();
        SelectOnly({"FrontSector"});
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

        QCOMPARE(runner->titles,
                 (QStringList{"Check Squad", "Location Type Check", "Coalition Check",
                              "Range Check", "In Radius Check", "In Sector Check"}));
    }

    void everyActionIsAddedAndEditedAgain() {
        OpenRichSample();
        // A rule action made by hand from the menu.
        SelectOnly({"FrontSector"});
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
        // Far below the sample's objects, so that its actions are free to click.
        AddPhase("Hunters", "scg\\0\\blocks\\air\\ace_hunt.group", 600, 3000);
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

    void DoubleClick(const lw::EditorObject* object) {
        const lw::ViewTransform& view = editor->weaver.View();
        input->LeftDoubleClick(view.ScreenX(object->posX), view.ScreenY(object->posY));
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

    // Checks and actions take double clicks only where they are drawn.
    void OpenRichSample() {
        editor->Open("scg\\sample_rich.mt");
        editor->weaver.options.DrawChecks = true;
        editor->weaver.options.DrawActions = true;
    }

    lw::ScriptedFileDialogs fileDialogs;
    std::unique_ptr<SampleEditor> editor;
    std::unique_ptr<ScriptedDialogRunner> runner;
    std::unique_ptr<QtPropertyDialogs> dialogs;
    std::unique_ptr<lw::CanvasInput> input;
    std::unique_ptr<lw::EditorCommands> commands;
    std::string linkText;
};

QTEST_MAIN(DialogsTest)
#include "DialogsTest.moc"
