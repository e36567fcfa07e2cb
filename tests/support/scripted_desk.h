#pragma once

#include "core/act/application.h"
#include "core/values/ids.h"
#include "desk/store/store.h"
#include "support/recording_act.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace support {

// A running contact manager over a store, whose user does in a dialog what the test says. It shows the list of its
// contact's activities under the filter, as the real one does, and notes what it is told.
class ScriptedDesk : public act::Application,
                     public act::Views,
                     public act::ContactView,
                     public act::ActivityList {
public:
    ScriptedDesk(store::Store& store, CallRecord& record) : store_(store), record_(record) {}

    // What the user does in the dialog of a command.
    std::function<void(act::CommandNumber)> on_command;
    std::vector<int> commands; // by number
    std::string tab = "Notes";
    act::ListFilter filter{252, "1", ""};
    std::string contact;              // shown by the contact view
    std::string selected;             // the activity whose row was selected last
    std::vector<std::string> lookups; // the lists that were asked for
    int lookups_missed = 0;           // so many lookups find nothing
    int moves_missed = 0;             // so many moves to a contact don't arrive

    void OpenFile(const std::string&) override {}
    act::Views& Views() override { return *this; }
    std::string GetOpenDBName() override { return store_.path(); }
    void Command(act::CommandNumber number) override {
        commands.push_back(static_cast<int>(number));
        record_.note("Command " + std::to_string(static_cast<int>(number)));
        if (on_command)
            on_command(number);
    }

    std::unique_ptr<act::ContactView> Create(const std::string&, int) override { return nullptr; }
    act::ActivityList& Activities() override { return *this; }
    std::string GetActiveTab() override { return record_.note("GetActiveTab"), tab; }
    void SetActiveTab(const std::string& name) override { record_.note("SetActiveTab " + name), tab = name; }
    void CreateLookup(const std::string& ids) override {
        record_.note("CreateLookup");
        lookups.push_back(ids);
        count_ = lookups_missed-- > 0 ? 0 : static_cast<int>(values::ids_in(ids).size());
    }
    int GetCount() override { return count_; }
    std::string Goto(const std::string& id) override {
        record_.note("view Goto " + id);
        if (moves_missed-- <= 0)
            contact = id;
        return contact;
    }

    act::ListFilter GetFilter() override { return record_.note("GetFilter"), filter; }
    void SetFilter(const act::ListFilter& to) override {
        record_.note("SetFilter " + std::to_string(to.mask) + " " + to.dates + " " + to.users);
        filter = to;
    }
    int GetRowCount() override { return static_cast<int>(rows().size()); }
    std::string GetField(int, int row) override { return rows().at(static_cast<std::size_t>(row)); }
    void SelectRow(int row, bool) override {
        record_.note("SelectRow " + std::to_string(row));
        selected = GetField(1, row);
    }

private:
    // The ids of the contact's activities of the types and users asked for.
    std::vector<std::string> rows() {
        store::ActivityQuery query{.contact = contact};
        if (!filter.users.empty())
            query.users = {filter.users};
        std::vector<std::string> ids;
        for (const store::Activity& activity : store_.activities(query))
            if ((filter.mask & act::filter_mask::of(activity.type)) &&
                (!activity.cleared || filter.mask & act::filter_mask::cleared))
                ids.push_back(activity.id);
        return ids;
    }

    store::Store& store_;
    CallRecord& record_;
    int count_ = 0;
};

} // namespace support
