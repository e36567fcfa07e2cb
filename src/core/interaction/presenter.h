#pragma once

#include "core/interaction/popup_menu.h"

namespace interaction {

// The pictures under the pointer while the user drags: images 1 and 2 of ilsIcons.
enum class DragIcon { permitted = 1, no_drop = 2 };

// What mouse and commands ask of the main window.
class Presenter {
public:
    virtual ~Presenter() = default;
    // Opens the context menu at the pointer. Returns after the user's choice.
    virtual void show_mnuPopup(const PopupMenu& menu) = 0;
    virtual void begin_drag() = 0; // until the user lets the button go
    virtual void show_drag_icon(DragIcon icon) = 0;
    // Shows frmActivityChange and waits: 0 this instance, 1 all instances, 2 cancel.
    virtual int ask_activity_change() = 0;
    virtual void minimise() = 0;
    virtual void Switch_View(int col) = 0; // opens the day of the column, or its week again
};

} // namespace interaction
