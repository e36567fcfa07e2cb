#pragma once

#include "desk/windows/activity_dialog.h"
#include "desk/windows/activity_sender.h"
#include "desk/windows/lookup.h"

#include <QPointer>

#include <functional>
#include <string>

namespace windows {

// Schedules, edits, clears, sends and deletes activities in dialogs over a window. One command is under way at a
// time.
class ActivityCommands {
public:
    using Finished = std::function<void()>;

    ActivityCommands(OpenDatabase& database, Lookup& lookup, QWidget& window);

    // Each begins the command and returns; `finished` is called once, when its dialog has closed, whichever way,
    // and what it stored is shown. Each fails with 440 and begins nothing when another one is under way, no
    // database is open or, but for send, it can't be written, and those for an activity when there is no such one.
    void schedule(store::ActivityType type, Finished finished);
    void edit(const std::string& activity, ActivityDialog::Tab tab, Finished finished);
    void clear(const std::string& activity, Finished finished);
    void send(const std::string& activity, Finished finished);
    // Deletes after a question. Fails as above.
    void remove(const std::string& activity);

    bool is_under_way() const { return is_under_way_; }
    // The dialog of the command under way when somebody waits for its end and it is for the fields of an activity.
    ActivityDialog* awaited_dialog() const { return awaited_dialog_; }
    std::function<void()> on_awaited_dialog; // it has opened

    void close_dialog(); // as by Cancel; without one nothing happens
    // The dialog in which something may be typed; none while there is no such one.
    QDialog* open_dialog() const { return dialog_; }

private:
    void require_idle() const;
    void require_writable() const;
    store::Activity stored_activity(const std::string& id) const;
    void open(QDialog* dialog, Finished finished);
    void open_fields(ActivityDialog* dialog, Finished finished);
    Finished ending(Finished finished); // what ends the command

    OpenDatabase& database_;
    Lookup& lookup_;
    QWidget& window_;
    ActivitySender sender_;
    QPointer<QDialog> dialog_;
    QPointer<ActivityDialog> awaited_dialog_;
    bool is_under_way_ = false;
};

} // namespace windows
