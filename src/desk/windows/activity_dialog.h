#pragma once

#include "desk/model/desk.h"
#include "desk/windows/open_database.h"

#include <QDialog>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ui {
class ActivityDialog;
}

namespace windows {

// Schedules a new activity, one without an id, or edits a stored one. OK stores it, unless it is stored already as
// it stands; where that fails the dialog stays open with what was typed. What nobody typed into stays as it was
// stored, also where a field can't show all of it.
class ActivityDialog : public QDialog, public model::ActivityDialog {
    Q_OBJECT

public:
    ActivityDialog(OpenDatabase& database, store::Activity activity, QWidget* parent);
    ~ActivityDialog() override;

    enum class Tab { general, details, recurring };
    void show_tab(Tab tab); // with the keyboard's focus on its first field

    bool is_new() const override { return activity_.id.empty(); }
    void fill(const model::ActivityValues& values) override;
    void show_tab(const std::string& name) override; // "General", "Details" or "Recurring"

    void accept() override;

private:
    void show_choices();
    void show_activity();
    void connect_parts();
    void show_date(values::DateTime date);
    // The record as it stands in the dialog. Fails with 440 when something is missing or contradicts itself.
    store::Activity typed() const;
    void require_complete(const store::Activity& activity) const;
    std::optional<store::DateTime> typed_start() const;
    void store_typed();

    OpenDatabase& database_;
    const store::Activity activity_;
    std::vector<std::string> contacts_shown_; // at first
    std::unique_ptr<Ui::ActivityDialog> ui_;
};

} // namespace windows
