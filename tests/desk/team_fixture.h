#pragma once

#include "desk/store/store.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// A database in a folder of its own, with two users, four contacts, two groups and a few activities. It is
// Wednesday 2024-03-06 10:10.
class TeamTest : public testing::Test {
protected:
    using DateTime = values::DateTime;

    static DateTime at(int month, int day, int hour = 0, int minute = 0) {
        return DateTime::of(2024, month, day, hour, minute);
    }
    static DateTime now() { return at(3, 6, 10, 10); }

    TeamTest() {
        const auto store = store::Store::create(path, [] { return at(3, 1, 8, 0); });
        store->together([&] { fill(*store); });
    }

    std::string in_folder(const std::string& name) const { return folder.file(name); }

    static store::Activity sample_activity(store::ActivityType type, DateTime start, const std::string& regarding,
                                           const std::string& user, const std::vector<std::string>& contacts) {
        store::Activity activity;
        activity.type = type;
        activity.start = start;
        activity.duration = 60;
        activity.end = start.plus_minutes(60);
        activity.regarding = regarding;
        activity.user = user;
        activity.contacts = contacts;
        return activity;
    }

    static std::string activity(store::Store& store, store::ActivityType type, DateTime start,
                                const std::string& regarding, const std::string& user,
                                const std::vector<std::string>& contacts) {
        return store.add(sample_activity(type, start, regarding, user, contacts));
    }

    static std::string contact(store::Store& store, const std::string& company, const std::string& name) {
        return store.add(store::Contact{.fields = {{25, company}, {26, name}}});
    }

    // The database as another process sees it.
    std::unique_ptr<store::Store> elsewhere() const { return store::Store::open(path); }

    support::TemporaryFolder folder;
    std::string path = in_folder("team.desk");
    std::string anna, bert;
    std::string amber, birch, cedar, dahlia;
    std::string friends, suppliers;
    std::string call, meeting, old_task, series;

private:
    void fill(store::Store& store) {
        anna = store.add(store::User{.name = "Anna Berg", .security = "Administrator", .access = "Enabled"});
        bert = store.add(store::User{.name = "Bert Cole", .security = "Standard", .access = "Enabled"});
        amber = contact(store, "Amber Works", "Zoe Quinn");
        birch = contact(store, "Birch Ltd", "Yann Reed");
        cedar = contact(store, "Cedar Inc", "Xenia Stone");
        dahlia = contact(store, "Dahlia Farm", "Will Tanner");
        friends = store.add(store::Group{.name = "Friends", .contacts = {birch, cedar}});
        suppliers = store.add(store::Group{.name = "Suppliers"});
        call = activity(store, store::ActivityType::call, at(3, 6, 9, 0), "Ask for prices", anna, {amber});
        meeting =
            activity(store, store::ActivityType::meeting, at(3, 8, 14, 0), "Show the plan", bert, {amber, birch});
        old_task = activity(store, store::ActivityType::to_do, at(2, 1, 8, 0), "Send the letter", anna, {amber});
        auto done = *store.activity(old_task);
        done.cleared = true;
        store.update(done);
        auto weekly =
            sample_activity(store::ActivityType::meeting, at(1, 3, 8, 30), "Weekly round", anna, {cedar});
        weekly.recurrence = {.kind = store::RecurrenceKind::weekly, .days_of_week = 1 << 3};
        series = store.add(weekly);
    }
};
