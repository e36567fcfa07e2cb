#pragma once

#include "core/interaction/instances.h"
#include "interaction_world.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace support {

// A series of Ann's from Monday the 8th on, and Wednesday's occurrence at 9:00.
class Instances : public testing::Test, protected InteractionWorld {
protected:
    using Calls = std::vector<std::string>;
    using Contacts = std::vector<std::string>;

    static values::DateTime at(int day, int hour, int minute = 0) {
        return values::DateTime::of(2024, 1, day, hour, minute);
    }
    store::Activity rich() {
        store::Activity activity = daily(8, 9, 90);
        activity.end = at(8, 12); // the occurrences are longer than the duration says
        activity.type = store::ActivityType::to_do;
        activity.priority = store::Priority::high;
        activity.regarding = "Quarterly figures";
        activity.is_private = true;
        activity.alarm = true;
        activity.alarm_lead = 20;
        activity.colour = 0x8040ff;
        activity.group = group;
        activity.contacts = {chris, dana, erin};
        activity.details = "Bring the\nledger; \"all\" of it";
        return activity;
    }
    void have(const store::Activity& activity) {
        series = add(activity);
        open();
    }
    // As a command would: on the occurrence of Wednesday, 9:00.
    std::string make_instance() {
        select(row_of(1), col_of(10));
        session.ActActivity->Goto(series);
        forget();
        return instance = hands.instances.Change_Instance(selected(), selected(), 60);
    }
    template <typename Change>
    interaction::InstanceChange after(Change change_made) {
        make_instance();
        change(instance, change_made);
        const interaction::InstanceChange found = hands.instances.Compare_Instance(instance);
        store().remove_activity(instance);
        store().remove_exception(series, at(10, 0));
        return found;
    }

    const std::string group = store().add(store::Group{.name = "Board"});
    std::string series, instance;
};

} // namespace support
