#pragma once

#include "core/interaction/activity_change.h"
#include "core/interaction/presenter.h"

#include <deque>
#include <functional>
#include <optional>

namespace support {

// Remembers what was asked of the main window.
class FakePresenter : public interaction::Presenter {
public:
    void show_mnuPopup(const interaction::PopupMenu& menu) override {
        popup = menu;
        if (while_showing_menu)
            while_showing_menu();
    }
    void begin_drag() override { ++drags; }
    void show_drag_icon(interaction::DragIcon icon) override { drag_icon = static_cast<int>(icon); }
    void minimise() override { ++minimised; }

    std::optional<interaction::PopupMenu> popup;
    int drags = 0, drag_icon = 0, minimised = 0;
    std::function<void()> while_showing_menu;
};

// Answers frmActivityChange from a list, by the answers' numbers, then with "Cancel".
class FakeActivityChange : public interaction::ActivityChange {
public:
    int questions = 0;
    std::deque<int> answers;
    std::function<void()> while_asking;

private:
    Response ask() override {
        ++questions;
        if (while_asking)
            while_asking();
        if (answers.empty())
            return Response::cancel;
        const int answer = answers.front();
        answers.pop_front();
        return static_cast<Response>(answer);
    }
};

} // namespace support
