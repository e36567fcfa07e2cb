#pragma once

#include "core/act/application.h"
#include "desk/store/records.h"

#include <functional>
#include <string>
#include <vector>

// What other programs may do with the running contact manager, as far as its windows have to do it. All calls
// come on the windows' thread, between its events. A member that can't do what it is asked throws
// values::Failure with 440 and a sentence for the user, which the caller gets to read.
namespace model {

// The desk's contact page and its list of activities. It is called only while a database is open.
class ContactView {
public:
    virtual ~ContactView() = default;

    virtual std::string active_tab() const = 0;               // the tab's name, not translated: "Activities"
    virtual void set_active_tab(const std::string& name) = 0; // a name that there is not fails
    // Makes these contacts the current lookup and brings the desk to the front with its list of them, the first
    // one current. Ids that the database doesn't know are left out.
    virtual void create_lookup(const std::vector<std::string>& contacts) = 0;
    virtual int contact_count() const = 0; // of the current lookup
    // Shows the contact, also one outside the current lookup, and gives the id of the one that is shown then: the
    // one before when the database doesn't have it, "" for none.
    virtual std::string go_to(const std::string& contact) = 0;

    // The filter in the encoding that other programs know (activity_filter.h reads and writes it). A
    // filter that can't be read fails and changes nothing.
    virtual act::ListFilter activity_filter() const = 0;
    virtual void set_activity_filter(const act::ListFilter& filter) = 0; // the list shows its result on return
    virtual int activity_count() const = 0;              // rows of the list of the contact that is shown
    virtual store::Activity activity(int row) const = 0; // rows from 0 to activity_count() - 1, as they are shown
    virtual void select_activity(int row, bool selected) = 0; // the one that the activity commands work on
};

// Values for a new activity, as texts of another program (contract/activity_dialog.xml tells their forms).
struct ActivityValues {
    std::string type{};
    std::string date{};
    std::string time{};
    std::string duration{};
    std::string regarding{};
    std::string priority{};
    std::string scheduled_for{};

    bool operator==(const ActivityValues&) const = default;
};

// A dialog for an activity that a command has opened.
class ActivityDialog {
public:
    virtual ~ActivityDialog() = default;

    virtual bool is_new() const = 0; // not yet stored
    // What is empty or can't be read leaves its field as it is.
    virtual void fill(const ActivityValues& values) = 0;
    virtual void show_tab(const std::string& name) = 0; // a name that there is not fails
};

class Desk {
public:
    virtual ~Desk() = default;

    virtual std::string database_path() const = 0; // absolute; "" when no database is open
    virtual ContactView& contact_view() = 0;
    virtual ActivityDialog* activity_dialog() = 0; // that of the command under way; none for any other dialog

    // Begins a command of the menus and returns at once: a dialog is opened, not executed, or from a later event.
    // `finished` is called once, when the dialog has closed and its changes are stored, and at once by a command
    // without a dialog. close_application calls it and then ends the desk, with both events below. Throws when
    // the command can't begin; `finished` is not called then. A second command isn't begun before the first has
    // finished.
    virtual void run_command(act::CommandNumber number, std::function<void()> finished) = 0;

    // The three events, set by the service. The windows call them; an unset one is skipped by
    // `if (on_database_closed)`.
    std::function<void()> on_user_wants_to_close; // before the desk ends, whichever way it was asked to
    std::function<void()> on_activity_dialog;     // activity_dialog() has opened
    std::function<void()> on_database_closed;     // after its database has closed, also when it opens another one
};

} // namespace model
