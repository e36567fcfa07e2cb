#pragma once

#include "core/calendar/calendar.h"
#include "core/table/grid_model.h"
#include "ui/dialogs/form_opener.h"
#include "ui/grid_widget/grid_widget.h"
#include "ui/main_window/grid_hands.h"
#include "ui/main_window/window_face.h"

#include <QMainWindow>

#include <memory>

namespace ui {

// The main window: the calendar's controls, grid and menu. It raises its events on the parts of the calendar and
// shows what they set.
class frmMain : public QMainWindow, private table::GridObserver {
public:
    explicit frmMain(const calendar::Outside& outside);
    ~frmMain() override;

    // Brings the calendar up, and shows the window unless the start was stopped. Called from the event loop, so
    // that it can end it.
    void load();
    // Raises Form_Unload, the first time; while a procedure waits in a box, once that is over. What asks is closed
    // for it, but a box that only tells and the question of frmActivityChange stay until the user has dealt with
    // them.
    void unload();
    // The same for one who can't wait for the user: every box is closed.
    void unload_at_once();

    WindowFace& face() { return face_; }
    calendar::Calendar& calendar() { return calendar_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void connect_menu();
    void connect_controls();
    void finish_unload();
    void grid_changed(table::GridChange change) override;
    // Takes over what the calendar keeps for controls of the window: the year's caption and the users.
    void update_controls();

    std::unique_ptr<Ui::frmMain> controls_;
    WindowFace face_;
    FormOpener forms_;
    GridHands hands_;
    calendar::Calendar calendar_;
    std::unique_ptr<GridWidget> msgSched_;
    bool is_unloading_ = false;
    bool is_in_haste_ = false;
    bool update_is_due_ = false;
};

} // namespace ui
