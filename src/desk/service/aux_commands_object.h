#pragma once

#include <QDBusContext>
#include <QObject>

#include "desk/store/toolbar_commands.h"

namespace service {

// Other programs' toolbar buttons and Tools menu entries on the bus, with the members of
// contract/aux_commands.xml. A result is 0 for done and 1 for refused: no such command or view, or nothing there
// to remove.
class AuxCommandsObject : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    explicit AuxCommandsObject(store::ToolbarCommands& commands) : commands_(commands) {}

    bool AuxCommandExists(const QString& name);
    int AddAuxCommand(const QString& name, const QString& program, const QString& folder, const QString& title,
                      const QString& caption, const QString& icon, const QString& large_icon, int flag);
    bool AuxCommandExistsInToolbar(int view, const QString& name);
    bool AuxCommandExistsInToolsMenu(int view, const QString& name);
    int AddAuxCommandToToolbar(int view, const QString& name);
    int AddAuxCommandToToolsMenu(int view, const QString& name);
    int RemoveAuxCommandFromToolbar(int view, const QString& name);
    int RemoveAuxCommandFromToolsMenu(int view, const QString& name);

private:
    bool stands(const QString& name, store::CommandPlace place, int view);
    int place(const QString& name, store::CommandPlace place, int view);
    int displace(const QString& name, store::CommandPlace place, int view);

    store::ToolbarCommands& commands_;
};

} // namespace service
