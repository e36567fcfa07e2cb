#pragma once

#include "host/message_box.h"

#include <deque>
#include <vector>

namespace support {

// Records every box and answers from a list; when the list is used up, with the box's first button.
class FakeMessageBox : public host::MessageBox {
public:
    host::Answer show(const host::Message& message) override {
        shown.push_back(message);
        if (answers.empty())
            return message.buttons == host::Buttons::yes_no ? host::Answer::yes : host::Answer::ok;
        const host::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<host::Message> shown;
    std::deque<host::Answer> answers;
};

} // namespace support
