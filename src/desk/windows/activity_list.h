#pragma once

#include "desk/model/activity_filter.h"
#include "desk/windows/open_database.h"
#include "desk/windows/record_model.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class QAction;

namespace Ui {
class ActivityList;
}

namespace windows {

class RecordTable;

// A table of activities under the bar with its filter: of one contact, or of all of them.
class ActivityList : public QWidget {
    Q_OBJECT

public:
    enum class Scope { contact, everybody };

    ActivityList(OpenDatabase& database, Scope scope, QWidget* parent = nullptr);
    ~ActivityList() override;

    // The contact whose activities are shown; nothing is shown with an empty id. Without meaning for everybody's.
    void show_contact(const std::string& contact);
    const std::string& contact() const { return contact_; }

    const model::ActivityFilter& filter() const { return filter_; }
    // The rows are the new ones when it returns. The two dates of a filter that isn't a range don't count.
    void set_filter(const model::ActivityFilter& filter);

    int row_count() const;
    store::Activity activity(int row) const; // as displayed, from 0; fails with 9 outside
    void select(int row, bool selected);     // fails with 9 outside the rows
    std::string current_id() const;          // empty when none is selected

protected:
    void showEvent(QShowEvent* event) override;

signals:
    void opened(const std::string& activity);
    void chosen(const std::string& activity); // empty for none

private:
    template <typename Kind>
    struct Choice {
        Kind kind;
        QAction* action;
    };

    void reload();
    FurtherRows further_rows(const std::shared_ptr<model::FilteredActivities>& found);
    void show_count(int count);
    std::vector<Row> rows_of(std::vector<store::Activity> activities); // keeps them
    void reload_when_seen();
    void show_filter();
    void show_users();
    void take_filter(); // from the bar
    void build_choices();
    void connect_bar();

    OpenDatabase& database_;
    const Scope scope_;
    std::unique_ptr<Ui::ActivityList> ui_;
    std::vector<Choice<store::ActivityType>> types_;
    std::vector<Choice<store::Priority>> priorities_;
    model::ActivityFilter filter_;
    std::string contact_;
    bool is_stale_ = false;                   // the rows are older than the database
    std::vector<store::Activity> activities_; // of the rows that were asked for
};

} // namespace windows
