#include "desk/service/aux_commands_object.h"

#include "desk/service/answer.h"

namespace service {

using contract::from_wire;
using store::CommandPlace;

bool AuxCommandsObject::AuxCommandExists(const QString& name) {
    return answer(*this, [&] { return commands_.exists(from_wire(name)); });
}

int AuxCommandsObject::AddAuxCommand(const QString& name, const QString& program, const QString& folder,
                                     const QString& title, const QString& caption, const QString& icon,
                                     const QString& large_icon, int flag) {
    return answer(*this, [&] {
        if (name.isEmpty())
            return 1;
        commands_.add({.name = from_wire(name),
                       .program = from_wire(program),
                       .folder = from_wire(folder),
                       .title = from_wire(title),
                       .caption = from_wire(caption),
                       .icon = from_wire(icon),
                       .large_icon = from_wire(large_icon),
                       .flag = flag});
        return 0;
    });
}

bool AuxCommandsObject::AuxCommandExistsInToolbar(int view, const QString& name) {
    return stands(name, CommandPlace::toolbar, view);
}

bool AuxCommandsObject::AuxCommandExistsInToolsMenu(int view, const QString& name) {
    return stands(name, CommandPlace::tools_menu, view);
}

int AuxCommandsObject::AddAuxCommandToToolbar(int view, const QString& name) {
    return place(name, CommandPlace::toolbar, view);
}

int AuxCommandsObject::AddAuxCommandToToolsMenu(int view, const QString& name) {
    return place(name, CommandPlace::tools_menu, view);
}

int AuxCommandsObject::RemoveAuxCommandFromToolbar(int view, const QString& name) {
    return displace(name, CommandPlace::toolbar, view);
}

int AuxCommandsObject::RemoveAuxCommandFromToolsMenu(int view, const QString& name) {
    return displace(name, CommandPlace::tools_menu, view);
}

bool AuxCommandsObject::stands(const QString& name, CommandPlace place, int view) {
    return answer(*this, [&] { return commands_.stands(from_wire(name), place, view); });
}

int AuxCommandsObject::place(const QString& name, CommandPlace place, int view) {
    return answer(*this, [&] { return commands_.place(from_wire(name), place, view) ? 0 : 1; });
}

int AuxCommandsObject::displace(const QString& name, CommandPlace place, int view) {
    return answer(*this, [&] { return commands_.displace(from_wire(name), place, view) ? 0 : 1; });
}

} // namespace service
