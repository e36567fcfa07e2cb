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
    virtual void minimise() = 0;
};

} // namespace interaction
