#include "core/calendar/calendar.h"

namespace calendar {

Calendar::Calendar(shell::MainWindow& window, shell::Dialogs& dialogs, const Platform& platform)
    : ActEvent1_(platform.ActEvent1), guarded_(platform.box, platform.application), ini(platform.files, guarded_),
      user_store(platform.user_store), holidays(platform.files, guarded_), session(platform.server, guarded_),
      lists(session, guarded_), users(session, lists, ini, guarded_), grid(users, platform.folders,
                                                                           {.ini = ini,
                                                                            .user_store = user_store,
                                                                            .locale = platform.locale,
                                                                            .clock = platform.clock,
                                                                            .window = window,
                                                                            .guarded = guarded_}),
      engine({.session = session,
              .users = users,
              .lists = lists,
              .grid = grid,
              .settings = ini,
              .locale = platform.locale,
              .clock = platform.clock,
              .tmrRefresh = platform.tmrRefresh,
              .box = platform.box,
              .window = window,
              .guarded = guarded_,
              .bLoading = bLoading_}),
      start_up({.window = window,
                .program = platform.program,
                .box = platform.box,
                .application = platform.application,
                .clock = platform.clock,
                .folders = platform.folders,
                .guarded = guarded_,
                .settings = ini,
                .user_store = user_store,
                .ActEvent1 = platform.ActEvent1,
                .session = session,
                .users = users,
                .grid = grid,
                .engine = engine,
                .holidays = holidays,
                .bLoading = bLoading_}),
      sizing(window, grid.msgSched, bLoading_, guarded_), navigation({.window = window,
                                                                      .dialogs = dialogs,
                                                                      .grid = grid,
                                                                      .engine = engine,
                                                                      .clock = platform.clock,
                                                                      .folders = platform.folders,
                                                                      .locale = platform.locale,
                                                                      .guarded = guarded_,
                                                                      .bLoading = bLoading_}),
      closing(window, platform.program, session, platform.ActEvent1, grid.layout, user_store, platform.shell,
              platform.tmr2, guarded_),
      menu({.engine = engine,
            .dialogs = dialogs,
            .grid = grid,
            .settings = ini,
            .box = platform.box,
            .application = platform.application,
            .folders = platform.folders,
            .shell = platform.shell,
            .guarded = guarded_}) {
    ActEvent1_.OnDatabaseClose = [this] { closing.ActEvent1_OnDatabaseClose(); };
    ActEvent1_.OnActUserWantsToClose = [this] { closing.ActEvent1_OnActUserWantsToClose(); };
}

Calendar::~Calendar() {
    ActEvent1_.OnDatabaseClose = nullptr;
    ActEvent1_.OnActUserWantsToClose = nullptr;
}

} // namespace calendar
