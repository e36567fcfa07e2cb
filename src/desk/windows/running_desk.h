#pragma once

#include "desk/model/desk.h"
#include "desk/windows/command_table.h"
#include "desk/windows/lookup.h"

namespace windows {

class ActivityCommands;
class ContactPage;

// The windows as other programs see them.
class RunningDesk : public model::Desk, private model::ContactView {
public:
    struct Shown {
        Lookup& lookup;
        ContactPage& page;
        std::function<void()> come_to_contacts{}; // brings the window to the front, at the lookup's contacts
    };
    struct Commands {
        const CommandTable& by_number;
        ActivityCommands& on_activities;
    };
    // What it is given outlives it.
    RunningDesk(OpenDatabase& database, const Shown& shown, const Commands& commands);

    std::string database_path() const override;
    model::ContactView& contact_view() override { return *this; }
    model::ActivityDialog* activity_dialog() override;
    void run_command(act::CommandNumber number, std::function<void()> finished) override;

private:
    std::string active_tab() const override;
    void set_active_tab(const std::string& name) override;
    void create_lookup(const std::vector<std::string>& contacts) override;
    int contact_count() const override;
    std::string go_to(const std::string& contact) override;
    act::ListFilter activity_filter() const override;
    void set_activity_filter(const act::ListFilter& filter) override;
    int activity_count() const override;
    store::Activity activity(int row) const override;
    void select_activity(int row, bool selected) override;

    OpenDatabase& database_;
    const Shown shown_;
    const Commands commands_;
};

} // namespace windows
