#pragma once

#include "core/host/message_box.h"

#include <deque>
#include <functional>
#include <vector>

namespace support {

// Records every box and answers from a list; when the list is used up, with the box's first button.
class FakeMessageBox : public host::MessageBox {
public:
    host::Answer show(const host::Message& message) override {
        shown.push_back(message);
        if (while_shown)
            while_shown();
        if (answers.empty())
            return first_button(message.buttons);
        const host::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<host::Message> shown;
    std::deque<host::Answer> answers;
    std::function<void()> while_shown;

private:
    static host::Answer first_button(host::Buttons buttons) {
        switch (buttons) {
        case host::Buttons::yes_no:
            return host::Answer::yes;
        case host::Buttons::cancel_try_continue:
            return host::Answer::cancel;
        default:
            return host::Answer::ok;
        }
    }
};

} // namespace support
