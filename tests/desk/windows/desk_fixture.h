#pragma once

#include "desk/windows/open_database.h"
#include "support/with_dialogs.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <functional>
#include <map>
#include <string>

// A database in a folder of its own, open in a session whose clock stands at Wednesday 2024-03-06 10:10: two
// users, four contacts, two groups and a few activities.
class DeskTest : public testing::Test {
protected:
    using DateTime = values::DateTime;

    static DateTime at(int month, int day, int hour = 0, int minute = 0) {
        return DateTime::of(2024, month, day, hour, minute);
    }

    DeskTest() : session(values::english_us(), [] { return at(3, 6, 10, 10); }) {
        path = in_folder("team.desk");
        auto store = store::Store::create(path, [] { return at(3, 1, 8, 0); });
        store->together([&] { fill(*store); });
    }

    std::string in_folder(const std::string& name) const { return folder.filePath(name.c_str()).toStdString(); }

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
        return store.add(store::Contact{{}, {{25, company}, {26, name}}, 0});
    }

    // The database as another process sees it.
    std::unique_ptr<store::Store> elsewhere() const { return store::Store::open(path); }

    template <typename Widget>
    static Widget* child(const QWidget& parent, const char* name) {
        auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << "no widget " << name;
        return found;
    }

    static void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    static void type(QWidget* widget, const char* text) { QTest::keyClicks(widget, QString::fromUtf8(text)); }

    // Selects what the field holds and types over it.
    static void retype(QWidget* widget, const char* text) {
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        type(widget, text);
    }

    void fill(store::Store& store) {
        anna = store.add(store::User{{}, "Anna Berg", "Administrator", "Enabled"});
        bert = store.add(store::User{{}, "Bert Cole", "Standard", "Enabled"});
        amber = contact(store, "Amber Works", "Zoe Quinn");
        birch = contact(store, "Birch Ltd", "Yann Reed");
        cedar = contact(store, "Cedar Inc", "Xenia Stone");
        dahlia = contact(store, "Dahlia Farm", "Will Tanner");
        friends = store.add(store::Group{{}, "Friends", {birch, cedar}});
        suppliers = store.add(store::Group{{}, "Suppliers", {}});
        call = activity(store, store::ActivityType::call, at(3, 6, 9, 0), "Ask for prices", anna, {amber});
        meeting =
            activity(store, store::ActivityType::meeting, at(3, 8, 14, 0), "Show the plan", bert, {amber, birch});
        old_task = activity(store, store::ActivityType::to_do, at(2, 1, 8, 0), "Send the letter", anna, {amber});
        auto done = *store.activity(old_task);
        done.cleared = true;
        store.update(done);
        auto weekly =
            sample_activity(store::ActivityType::meeting, at(1, 3, 8, 30), "Weekly round", anna, {cedar});
        weekly.recurrence = {store::RecurrenceKind::weekly, 1, std::nullopt, 1 << 3, 0, 0};
        series = store.add(weekly);
    }

    QTemporaryDir folder;
    std::string path;
    std::string anna, bert;
    std::string amber, birch, cedar, dahlia;
    std::string friends, suppliers;
    std::string call, meeting, old_task, series;
    windows::OpenDatabase session;
};
