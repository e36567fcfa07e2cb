#include "core/calendar/calendar.h"

namespace calendar {

Calendar::Calendar(const Outside& outside, const Face& face)
    : here_{outside.machine, face.window}, ActEvent1_(outside.ActEvent1),
      gate_(here_, outside.program, outside.ActEvent1), settings(here_), act(here_, settings, outside.server),
      grid(here_, settings, act.users), engine(here_, settings, act, grid, outside.tmrRefresh),
      start_up(here_, settings, gate_, face.window, engine), sizing(here_, face.window, grid),
      navigation(here_, face.window, face.dialogs, engine),
      departure(here_, act.session, outside.ActEvent1, outside.program, outside.tmr2),
      closing(here_, settings, face.window, grid.layout, departure), menu(here_, settings, face.dialogs, engine),
      interaction(here_, settings, engine, navigation, {face.presenter, face.frmActivityChange}) {
    ActEvent1_.OnDatabaseClose = [this] { closing.ActEvent1_OnDatabaseClose(); };
    ActEvent1_.OnActUserWantsToClose = [this] { closing.ActEvent1_OnActUserWantsToClose(); };
}

Calendar::~Calendar() {
    ActEvent1_.OnDatabaseClose = nullptr;
    ActEvent1_.OnActUserWantsToClose = nullptr;
}

} // namespace calendar
