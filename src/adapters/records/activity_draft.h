#pragma once

#include "core/act/activity.h"
#include "core/values/locale.h"
#include "desk/store/activity_reading.h"
#include "desk/store/store.h"
#include "desk/store/temporary_instances.h"

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace records {

// An activity between Edit or Add and Update.
class ActivityDraft {
public:
    // A record as the store has it, or a new one without an id.
    explicit ActivityDraft(store::Activity record) : record_(std::move(record)) {}

    const store::Activity& record() const { return record_; }
    const store::ActivityRow& row() const; // lives until the next call of any member
    act::Value field(int number) const;
    void set_field(int number, const act::Value& value,
                   const values::Locale& locale); // fails as records::set_field
    void apply_to(act::RecurringChange change) { series_change_ = change; }
    void schedule_with(const std::vector<std::string>& contacts) { record_.contacts = contacts; }

    void stands_for(const std::string& series, values::DateTime day) {
        occurrence_ = {.series = series, .day = day};
    }

    // The stored record was changed from `before` to `after` by this program itself, in its exceptions: this draft
    // doesn't take that for another's change, and has them too.
    void take_over_exceptions(const store::Activity& before, const store::Activity& after);
    // Gives the id of what was stored. Fails with an EditConflict as act::Activity::Update.
    std::string store_in(store::Store& store);

private:
    std::string store_new(store::Store& store) const;
    std::string store_first_date_alone(store::Store& store) const;

    store::Activity record_;
    std::set<int> written_; // numbers of fields
    act::RecurringChange series_change_ = act::RecurringChange::whole_series;
    std::optional<store::TemporaryInstance> occurrence_{}; // that a new record stands for
    mutable store::ActivityRow row_;
};

// A record as the store has it. Fails with an EditConflict when it is gone.
store::Activity stored_activity(store::Store& store, const std::string& id);
[[noreturn]] void fail_as_deleted();

} // namespace records
