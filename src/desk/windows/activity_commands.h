#pragma once

#include "windows/lookup.h"

#include <QPointer>

#include <functional>
#include <string>

namespace windows {

class ActivityDialog;

// Schedules, edits and deletes activities in dialogs over a window. One dialog is open at a time.
class ActivityCommands {
public:
    ActivityCommands(Session& session, Lookup& lookup, QWidget& window);

    // Each opens its dialog and returns; `finished` is called when the dialog has closed and what it stored is
    // shown. Each fails with 440 and opens nothing when a dialog is open already, no database is open or it can't
    // be written, and edit also when there is no such activity.
    void schedule(store::ActivityType type, std::function<void()> finished);
    void edit(const std::string& activity, std::function<void()> finished);
    // Deletes after a question. Fails as above.
    void remove(const std::string& activity);

    bool is_dialog_open() const { return !dialog_.isNull(); }

private:
    void require_ready() const;
    store::Activity stored_activity(const std::string& id) const;
    void open(const store::Activity& activity, std::function<void()> finished);

    Session& session_;
    Lookup& lookup_;
    QWidget& window_;
    QPointer<ActivityDialog> dialog_;
};

} // namespace windows
