#pragma once

#include "records_fixture.h"

namespace support {

// A list of activities of the open database.
class ActivityListData : public DeskData {
protected:
    std::unique_ptr<act::Activity> list;

    void SetUp() override {
        DeskData::SetUp();
        list = database->Activity();
    }
    std::string contact() { return store.add(store::Contact{}); }
    std::vector<std::string> scheduled_with() {
        std::vector<std::string> all;
        for (std::string one = list->FirstScheduledWith(); !one.empty(); one = list->NextScheduledWith())
            all.push_back(one);
        return all;
    }
};

} // namespace support
