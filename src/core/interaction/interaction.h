#pragma once

#include "core/interaction/clearing.h"
#include "core/interaction/drag_drop.h"
#include "core/interaction/editing.h"
#include "core/interaction/lookups.h"
#include "core/interaction/scheduling.h"

namespace interaction {

// What the user does with the grid, put together.
class Interaction {
public:
    // What it asks of the main window, and the question that it puts.
    struct Face {
        Presenter& presenter;
        ActivityChange& frmActivityChange;
    };
    Interaction(const host::Platform& here, settings::Settings& settings, engine::CalendarEngine& engine,
                shell::Navigation& navigation, const Face& face)
        : instances(here, engine.act), launcher(here, settings, engine.act, engine.grid.layout),
          editor(here, engine.grid.selection, launcher, instances, face.frmActivityChange),
          mouse(here, engine.grid, face.presenter, navigation),
          rescheduling(here, engine, instances, face.frmActivityChange),
          drag_drop(here, engine.grid, face.presenter, rescheduling),
          editing(here, engine, mouse, launcher, editor), scheduling(here, engine, launcher),
          clearing(here, engine, launcher, instances, face.frmActivityChange),
          lookups(here, engine, mouse.click, face.presenter) {}
    Interaction(const Interaction&) = delete; // its parts point to each other
    Interaction& operator=(const Interaction&) = delete;

    Instances instances;
    Launcher launcher;
    InstanceEditor editor;
    Mouse mouse;
    Rescheduling rescheduling;
    DragDrop drag_drop;
    Editing editing;
    Scheduling scheduling;
    Clearing clearing;
    Lookups lookups;
};

} // namespace interaction
