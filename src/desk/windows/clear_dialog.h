#pragma once

#include "desk/windows/open_database.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ClearDialog;
}

namespace windows {

// Clears a stored activity: tells how it ended, keeps the record and takes it off the list of what is to be done.
// An activity that is cleared already can be opened again; any can be erased. Where storing fails the dialog stays
// open with what was typed. What nobody typed into stays as it was stored, and OK without a change stores nothing.
class ClearDialog : public QDialog {
    Q_OBJECT

public:
    ClearDialog(OpenDatabase& database, store::Activity activity, QWidget* parent);
    ~ClearDialog() override;

    void accept() override;

private:
    void show_activity();
    bool is_series() const { return activity_.recurrence.kind != store::RecurrenceKind::none; }
    bool may_clear(); // asks before a whole series is cleared
    store::Activity typed() const;
    void store_typed();
    void erase();

    OpenDatabase& database_;
    const store::Activity activity_;
    std::unique_ptr<Ui::ClearDialog> ui_;
};

} // namespace windows
