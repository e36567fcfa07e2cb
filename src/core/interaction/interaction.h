#pragma once

#include "core/interaction/activity_change.h"
#include "core/interaction/activity_commands.h"
#include "core/interaction/click.h"
#include "core/interaction/drag_drop.h"
#include "core/interaction/instance_editor.h"
#include "core/interaction/instances.h"
#include "core/interaction/launcher.h"
#include "core/interaction/lookups.h"
#include "core/interaction/mouse.h"

namespace interaction {

// What mouse, drag and commands need of their surroundings.
struct Surroundings {
    act::Session& session;
    const act::UserList& users;
    grid::CalendarGrid& grid;
    engine::CalendarEngine& engine;
    const settings::IniLib& settings;
    settings::PerUserStore& user_store;
    const values::Locale& locale;
    const host::Clock& clock;
    host::MessageBox& box;
    host::Window& window;
    host::Shell& shell;
    const host::ApplicationInfo& application;
    Presenter& presenter;
    const host::Guard& guarded;
};

// What the user does with the grid, put together.
class Interaction {
public:
    explicit Interaction(const Surroundings& here)
        : frmActivityChange(here.presenter), instances(here.session, here.users, here.locale, here.guarded),
          launcher({here.session, here.grid.layout, here.settings, here.user_store, here.shell, here.window,
                    here.locale, here.guarded}),
          editor(
              {here.session, here.grid.selection, launcher, instances, frmActivityChange, here.box, here.locale}),
          mouse(click, here.grid, here.presenter, here.guarded),
          drag_drop({here.session, here.users, here.grid, here.engine.refresh, instances, frmActivityChange,
                     here.presenter, here.box, here.application, here.locale, here.guarded}),
          commands({here.session, here.grid, here.engine, here.settings, here.user_store, here.clock, here.locale,
                    click, launcher, instances, editor, frmActivityChange, here.presenter, here.guarded}),
          lookups({here.session, here.grid, here.engine.quick_refresh, click, here.presenter, here.box,
                   here.locale, here.guarded}) {}
    Interaction(const Interaction&) = delete; // its parts point to each other
    Interaction& operator=(const Interaction&) = delete;

    Click click;
    ActivityChange frmActivityChange;
    Instances instances;
    Launcher launcher;
    InstanceEditor editor;
    Mouse mouse;
    DragDrop drag_drop;
    ActivityCommands commands;
    Lookups lookups;
};

} // namespace interaction
