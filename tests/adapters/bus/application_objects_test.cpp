#include "adapters/bus/application_bridge.h"
#include "core/act/activity.h"
#include "desk_process.h"
#include "failure_text.h"
#include "support/desk_on_bus.h"

namespace {

class WithoutADesk : public ::testing::Test {
protected:
    support::PrivateBus bus;
};

TEST_F(WithoutADesk, TheObjectsCanNotBeCreated) {
    const auto link = bus::make_link(bus.connection());
    EXPECT_EQ(failure_text([&] { bus::make_application(link); }), "429 The contact desk isn't running.");
    EXPECT_EQ(failure_text([&] { bus::make_aux_commands(link); }), "429 The contact desk isn't running.");
}

TEST_F(WithoutADesk, TheObjectsCanNotBeCreatedWithoutABusEither) {
    const auto link = bus::make_link(QDBusConnection("no such connection"));
    EXPECT_EQ(failure_text([&] { bus::make_application(link); }), "429 The contact desk isn't running.");
    EXPECT_EQ(failure_text([&] { bus::make_aux_commands(link); }), "429 The contact desk isn't running.");
}

class Application : public ::testing::Test {
protected:
    Application() {
        on_bus.run([&] {
            desk.known_contacts = {"CONTACT00001", "CONTACT0002 "};
            store::Activity activity;
            activity.id = "ACTIVITY001 ";
            activity.regarding = "Réunion à Łódź — 会議";
            desk.activities = {store::Activity{}, activity};
        });
    }

    support::PrivateBus bus;
    support::DeskOnBus on_bus{bus, "/data/Beispiel für 会議.db"};
    support::FakeDesk& desk = on_bus.desk;
    std::shared_ptr<bus::Link> link = bus::make_link(bus.connection());
    std::unique_ptr<act::Application> application = bus::make_application(link);
    std::unique_ptr<act::ContactView> view = application->Views().Create("CV", 2);
};

TEST_F(Application, AttachesToTheOpenDatabaseAndNamesIt) {
    application->OpenFile("");
    EXPECT_EQ(application->GetOpenDBName(), "/data/Beispiel für 会議.db");
}

TEST_F(Application, FailsToAttachWithoutADatabase) {
    on_bus.run([&] { desk.path.clear(); });
    EXPECT_EQ(failure_text([&] { application->OpenFile(""); }), "440 No database is open in the contact desk.");
}

TEST_F(Application, MakesContactViewsAlone) {
    EXPECT_EQ(failure_text([&] { application->Views().Create("GV", 2); }),
              "440 The contact desk has no view of the kind \"GV\".");
}

TEST_F(Application, ReadsAndSetsTheActiveTab) {
    EXPECT_EQ(view->GetActiveTab(), "Notes");
    view->SetActiveTab("Activities");
    EXPECT_EQ(view->GetActiveTab(), "Activities");
}

TEST_F(Application, CountsTheContactsOfALookup) {
    view->CreateLookup("CONTACT00001UNKNOWN00001CONTACT0002 ");
    EXPECT_EQ(view->GetCount(), 2);
    on_bus.run([&] { EXPECT_EQ(desk.lookup, (std::vector<std::string>{"CONTACT00001", "CONTACT0002 "})); });
}

TEST_F(Application, GoesToAContactWhoseIdEndsInABlank) {
    EXPECT_EQ(view->Goto("CONTACT0002 "), "CONTACT0002 ");
    EXPECT_EQ(view->Goto("UNKNOWN00001"), "CONTACT0002 ");
}

TEST_F(Application, KeepsAndRestoresTheFilterOfTheList) {
    auto& list = view->Activities();
    const auto before = list.GetFilter();
    EXPECT_EQ(before.mask, 252);
    EXPECT_EQ(before.dates, "1");
    EXPECT_EQ(before.users, "");
    list.SetFilter({230, "6\\1/1/2024\\1/8/2024", "USER0000001 "});
    const auto during = list.GetFilter();
    EXPECT_EQ(during.mask, 230);
    EXPECT_EQ(during.dates, "6\\1/1/2024\\1/8/2024");
    EXPECT_EQ(during.users, "USER0000001 ");
    list.SetFilter(before);
    EXPECT_EQ(list.GetFilter().mask, 252);
}

TEST_F(Application, FindsAndSelectsARowOfTheList) {
    auto& list = view->Activities();
    EXPECT_EQ(list.GetRowCount(), 2);
    EXPECT_EQ(list.GetField(act::activity_field::id, 0), "");
    EXPECT_EQ(list.GetField(act::activity_field::id, 1), "ACTIVITY001 ");
    EXPECT_EQ(list.GetField(act::activity_field::regarding, 1), "Réunion à Łódź — 会議");
    list.SelectRow(1, true);
    on_bus.run([&] { EXPECT_EQ(desk.selected, (std::map<int, bool>{{1, true}})); });
}

TEST_F(Application, FailsWithTheDesksOwnSentence) {
    on_bus.run([&] { desk.refusal = "Die Daten „6\\x“ sind unlesbar."; });
    EXPECT_EQ(failure_text([&] {
                  view->Activities().SetFilter({228, "6\\x", ""});
              }),
              "440 Die Daten „6\\x“ sind unlesbar.");
}

TEST_F(Application, DrivesTheToolbarCommands) {
    const auto commands = bus::make_aux_commands(link);
    EXPECT_FALSE(commands->AuxCommandExists("Café"));
    EXPECT_EQ(commands->AddAuxCommand({"Café", "/p/c.EXE", "/p", "Titel", "Klick", "/p/c.ico", "/p/c32.ico", 1}),
              0);
    EXPECT_TRUE(commands->AuxCommandExists("Café"));
    EXPECT_EQ(commands->AddAuxCommandToToolbar(1, "Café"), 0);
    EXPECT_EQ(commands->AddAuxCommandToToolsMenu(2, "Café"), 0);
    EXPECT_TRUE(commands->AuxCommandExistsInToolbar(1, "Café"));
    EXPECT_FALSE(commands->AuxCommandExistsInToolbar(2, "Café"));
    EXPECT_TRUE(commands->AuxCommandExistsInToolsMenu(2, "Café"));
    EXPECT_FALSE(commands->AuxCommandExistsInToolsMenu(1, "Café"));
    EXPECT_EQ(commands->RemoveAuxCommandFromToolbar(1, "Café"), 0);
    EXPECT_EQ(commands->RemoveAuxCommandFromToolsMenu(2, "Café"), 0);
    EXPECT_FALSE(commands->AuxCommandExistsInToolbar(1, "Café"));
    EXPECT_FALSE(commands->AuxCommandExistsInToolsMenu(2, "Café"));
    EXPECT_EQ(commands->AddAuxCommandToToolbar(7, "Café"), 1);
    on_bus.run([&] {
        const auto& command = on_bus.toolbar.commands.at("Café");
        EXPECT_EQ(command.program + command.folder + command.title, "/p/c.EXE/pTitel");
        EXPECT_EQ(command.caption + command.icon + command.large_icon, "Klick/p/c.ico/p/c32.ico");
        EXPECT_EQ(command.flag, 1);
    });
}

TEST_F(WithoutADesk, EveryCallFailsAfterTheDeskHasDied) {
    DeskProcess process(bus);
    const auto link = bus::make_link(bus.connection());
    const auto application = bus::make_application(link);
    const auto view = application->Views().Create("CV", 2);
    const auto commands = bus::make_aux_commands(link);
    process.kill();
    const std::string gone = "440 The contact desk isn't running.";
    EXPECT_EQ(failure_text([&] { application->OpenFile(""); }), gone);
    EXPECT_EQ(failure_text([&] { application->GetOpenDBName(); }), gone);
    EXPECT_EQ(failure_text([&] { application->Command(act::CommandNumber::edit_activity); }), gone);
    EXPECT_EQ(failure_text([&] { view->GetActiveTab(); }), gone);
    EXPECT_EQ(failure_text([&] { view->Activities().GetFilter(); }), gone);
    EXPECT_EQ(failure_text([&] { commands->AuxCommandExists("A"); }), gone);
}

TEST_F(WithoutADesk, ACallToAFrozenDeskGivesUp) {
    DeskProcess process(bus);
    const auto application = bus::make_application(bus::make_link(bus.connection()));
    process.freeze();
    EXPECT_EQ(failure_text([&] { application->GetOpenDBName(); }), "440 The contact desk doesn't answer.");
}

TEST_F(WithoutADesk, CallsFailAfterTheBusHasDied) {
    const DeskProcess process(bus);
    const auto application = bus::make_application(bus::make_link(bus.connection()));
    bus.stop();
    EXPECT_EQ(failure_text([&] { application->GetOpenDBName(); }),
              "440 The contact desk can't be reached: there is no session bus.");
}

TEST_F(WithoutADesk, ADeskThatComesBackIsReachedAgain) {
    auto first = std::make_unique<DeskProcess>(bus);
    const auto application = bus::make_application(bus::make_link(bus.connection()));
    first.reset();
    const DeskProcess second(bus);
    EXPECT_EQ(application->GetOpenDBName(), "/data/Sample.db");
}

} // namespace
