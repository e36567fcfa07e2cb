#include "core/act/session.h"

namespace act {

void Session::Create_Database() {
    guarded_("in frmMain: Sub Create_Database - Line # ", [&](host::Step& step) {
        step = 10;
        ActApp = server_.create_application();
        step = 20;
        ActApp->OpenFile("");
        step = 30;
        ActViews = ActApp->Views();
        step = 40;
        ActContactView = ActViews->Create("CV", 2);
        step = 50;
        ActDatabase = server_.create_database();
        step = 60;
        ActDatabase->OpenEx("");
        step = 70;
        ActContact = ActDatabase->Contact();
        step = 80;
        ActActivity = ActDatabase->Activity();
        step = 90;
        ActUsers = ActDatabase->Users();
        step = 100;
        ActFields = ActContact->Fields();
        step = 110;
        ActGroup = ActDatabase->Group();
    });
}

void Session::Release() {
    ActContactView.release();
    ActViews.release();
    ActApp.release();
    ActGroup.release();
    ActFields.release();
    ActUsers.release();
    ActActivity.release();
    ActContact.release();
    if (ActDatabase)
        ActDatabase->Close();
}

} // namespace act
