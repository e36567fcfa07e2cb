#include "called_desk.h"

#include "contract/aux_commands_proxy.h"

namespace {

class AuxCommandsObject : public CalledDesk<AuxCommandsProxy> {
protected:
    AuxCommandsObject() : CalledDesk(contract::aux_commands_path) {}

    int add(const QString& name) {
        return proxy.AddAuxCommand(name, "/opt/a/a.EXE", "/opt/a", "Title", "Cliquez pour démarrer",
                                   "/opt/a/a.ico", "/opt/a/a32.ico", 1);
    }
};

TEST_F(AuxCommandsObject, StoresACommandWithAllItsParts) {
    EXPECT_FALSE(proxy.AuxCommandExists("Café").value());
    EXPECT_EQ(add("Café"), 0);
    EXPECT_TRUE(proxy.AuxCommandExists("Café").value());
    on_bus.run([&] {
        const auto& command = on_bus.toolbar.commands.at("Café");
        EXPECT_EQ(command.name, "Café");
        EXPECT_EQ(command.program, "/opt/a/a.EXE");
        EXPECT_EQ(command.folder, "/opt/a");
        EXPECT_EQ(command.title, "Title");
        EXPECT_EQ(command.caption, "Cliquez pour démarrer");
        EXPECT_EQ(command.icon, "/opt/a/a.ico");
        EXPECT_EQ(command.large_icon, "/opt/a/a32.ico");
        EXPECT_EQ(command.flag, 1);
    });
}

TEST_F(AuxCommandsObject, RefusesACommandWithoutAName) {
    EXPECT_EQ(add(""), 1);
    EXPECT_FALSE(proxy.AuxCommandExists("").value());
}

TEST_F(AuxCommandsObject, KeepsToolbarsAndToolsMenusApart) {
    add("A");
    EXPECT_EQ(proxy.AddAuxCommandToToolbar(1, "A").value(), 0);
    EXPECT_EQ(proxy.AddAuxCommandToToolsMenu(2, "A").value(), 0);
    EXPECT_TRUE(proxy.AuxCommandExistsInToolbar(1, "A").value());
    EXPECT_FALSE(proxy.AuxCommandExistsInToolbar(2, "A").value());
    EXPECT_TRUE(proxy.AuxCommandExistsInToolsMenu(2, "A").value());
    EXPECT_FALSE(proxy.AuxCommandExistsInToolsMenu(1, "A").value());
}

TEST_F(AuxCommandsObject, TakesACommandAwayAgain) {
    add("A");
    proxy.AddAuxCommandToToolbar(1, "A").waitForFinished();
    proxy.AddAuxCommandToToolsMenu(1, "A").waitForFinished();
    EXPECT_EQ(proxy.RemoveAuxCommandFromToolbar(1, "A").value(), 0);
    EXPECT_FALSE(proxy.AuxCommandExistsInToolbar(1, "A").value());
    EXPECT_TRUE(proxy.AuxCommandExistsInToolsMenu(1, "A").value());
    EXPECT_EQ(proxy.RemoveAuxCommandFromToolsMenu(1, "A").value(), 0);
    EXPECT_FALSE(proxy.AuxCommandExistsInToolsMenu(1, "A").value());
}

TEST_F(AuxCommandsObject, TellsByItsResultWhatCouldNotBeDone) {
    EXPECT_EQ(proxy.AddAuxCommandToToolbar(1, "Unknown").value(), 1);
    add("A");
    EXPECT_EQ(proxy.AddAuxCommandToToolsMenu(7, "A").value(), 1);
    EXPECT_EQ(proxy.RemoveAuxCommandFromToolbar(1, "A").value(), 1);
}

TEST_F(AuxCommandsObject, WorksWithoutADatabase) {
    on_bus.run([&] { desk.path.clear(); });
    EXPECT_EQ(add("A"), 0);
}

} // namespace
