#pragma once

#include "core/values/failure.h"
#include "desk/model/desk.h"
#include "desk/store/toolbar_commands.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace support {

// A desk without windows, with what it was told and what it answers in the open.
class FakeDesk : public model::Desk, public model::ContactView, public model::ActivityDialog {
public:
    std::string path; // of the open database

    std::string database_path() const override { return path; }
    model::ContactView& contact_view() override { return *this; }
    void run_command(act::CommandNumber number, std::function<void()> finished) override {
        commands.push_back(number);
        refuse_if_told();
        finish_command = std::move(finished);
        if (on_command)
            on_command(number);
    }
    bool has_dialog = false;
    bool is_dialog_new = true;
    std::vector<model::ActivityValues> filled;
    std::vector<std::string> shown_tabs;
    model::ActivityDialog* activity_dialog() override { return has_dialog ? this : nullptr; }
    bool is_new() const override { return is_dialog_new; }
    void fill(const model::ActivityValues& values) override { filled.push_back(values); }
    void show_tab(const std::string& name) override {
        refuse_if_told();
        shown_tabs.push_back(name);
    }
    void open_dialog(bool is_for_new_activity) {
        has_dialog = true;
        is_dialog_new = is_for_new_activity;
        on_activity_dialog();
    }

    std::vector<act::CommandNumber> commands;
    std::function<void()> finish_command; // closes the dialog of the last one
    std::function<void(act::CommandNumber)> on_command;

    std::string tab = "Notes";
    std::string active_tab() const override { return tab; }
    void set_active_tab(const std::string& name) override {
        refuse_if_told();
        tab = name;
    }

    std::set<std::string> known_contacts;
    std::vector<std::string> lookup;
    std::string shown_contact;
    void create_lookup(const std::vector<std::string>& contacts) override {
        lookup.clear();
        std::copy_if(contacts.begin(), contacts.end(), std::back_inserter(lookup),
                     [&](const auto& id) { return known_contacts.contains(id); });
    }
    int contact_count() const override { return static_cast<int>(lookup.size()); }
    std::string go_to(const std::string& contact) override {
        if (known_contacts.contains(contact))
            shown_contact = contact;
        return shown_contact;
    }

    act::ListFilter filter{252, "1", ""};
    act::ListFilter activity_filter() const override { return filter; }
    void set_activity_filter(const act::ListFilter& wanted) override {
        refuse_if_told();
        filter = wanted;
    }

    std::vector<store::Activity> activities;
    std::map<int, bool> selected;
    int activity_count() const override { return static_cast<int>(activities.size()); }
    store::Activity activity(int row) const override { return activities.at(static_cast<std::size_t>(row)); }
    void select_activity(int row, bool wanted) override { selected[row] = wanted; }

    std::string refusal; // when set, the next changing call fails with it

private:
    void refuse_if_told() {
        if (!refusal.empty())
            throw values::Failure(values::FailureNumber::automation, std::exchange(refusal, ""));
    }
};

class FakeToolbarCommands : public store::ToolbarCommands {
public:
    std::map<std::string, store::ToolbarCommand> commands;
    std::set<std::tuple<std::string, store::CommandPlace, int>> places;

    std::vector<store::ToolbarCommand> all() override {
        std::vector<store::ToolbarCommand> result;
        for (const auto& [name, command] : commands)
            result.push_back(command);
        return result;
    }
    std::vector<store::ToolbarCommand> at(store::CommandPlace place, int view) override {
        auto result = all();
        std::erase_if(result, [&](const auto& command) { return !stands(command.name, place, view); });
        return result;
    }
    bool exists(const std::string& name) override { return commands.contains(name); }
    void add(const store::ToolbarCommand& command) override { commands[command.name] = command; }
    bool stands(const std::string& name, store::CommandPlace place, int view) override {
        return places.contains({name, place, view});
    }
    bool place(const std::string& name, store::CommandPlace place, int view) override {
        if (!exists(name) || view < 1 || view > 6)
            return false;
        places.insert({name, place, view});
        return true;
    }
    bool displace(const std::string& name, store::CommandPlace place, int view) override {
        return places.erase({name, place, view}) == 1;
    }
};

} // namespace support
