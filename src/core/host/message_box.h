#pragma once

#include <string>

namespace host {

enum class Icon { none, critical, question, exclamation, information };
enum class Buttons { ok, ok_cancel, yes_no, cancel_try_continue };
enum class Answer { ok, cancel, yes, no, try_again, go_on };

struct Message {
    std::string text; // a carriage return begins a new line
    std::string title;
    Icon icon = Icon::none;
    Buttons buttons = Buttons::ok;
    bool second_is_default = false;
};

// Shows a box over the program's window and waits for the answer. Closing the box counts as its last button.
class MessageBox {
public:
    virtual ~MessageBox() = default;
    virtual Answer show(const Message& message) = 0;
};

} // namespace host
