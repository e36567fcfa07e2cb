#include "adapters/records/activity_draft.h"

#include "adapters/records/activity_fields.h"
#include "core/act/edit_conflict.h"

namespace records {

namespace field = act::activity_field;

const store::ActivityRow& ActivityDraft::row() const { return row_ = row_of(record_); }

act::Value ActivityDraft::field(int number) const {
    return number == field::details ? act::Value(record_.details) : row_field(row(), number);
}

void ActivityDraft::set_field(int number, const act::Value& value, const values::Locale& locale) {
    const int duration = record_.duration;
    records::set_field(record_, number, value, locale);
    // A duration that a stored activity has already says nothing about its end.
    if (number != field::duration || record_.id.empty() || record_.duration != duration)
        written_.insert(number);
}

void ActivityDraft::take_over_exceptions(const store::Activity& before, const store::Activity& after) {
    if (record_.id != before.id || record_.revision != before.revision)
        return;
    record_.revision = after.revision;
    record_.exceptions = after.exceptions;
}

std::string ActivityDraft::store_in(store::Store& store) {
    settle_times(record_, written_);
    if (record_.id.empty())
        return store_new(store);
    if (series_change_ == act::RecurringChange::only_this &&
        record_.recurrence.kind != store::RecurrenceKind::none)
        return store_first_date_alone(store);
    store.update(record_);
    return record_.id;
}

std::string ActivityDraft::store_new(store::Store& store) const {
    if (!occurrence_)
        return store.add(record_);
    store::TemporaryInstance one = *occurrence_;
    store.together([&] {
        one.instance = store.add(record_);
        store.temporary_instances().remember(one);
    });
    return one.instance;
}

// The series loses its first date, and what was changed becomes a plain activity.
std::string ActivityDraft::store_first_date_alone(store::Store& store) const {
    std::string id;
    store.together([&] {
        store::Activity series = stored_activity(store, record_.id);
        series.revision = record_.revision;
        if (series.start)
            series.exceptions.push_back(*series.start);
        store.update(series);
        store::Activity instance = record_;
        instance.id.clear();
        instance.recurrence = {};
        instance.exceptions.clear();
        id = store.add(instance);
    });
    return id;
}

store::Activity stored_activity(store::Store& store, const std::string& id) {
    auto record = store.activity(id);
    if (!record)
        fail_as_deleted();
    return *record;
}

void fail_as_deleted() {
    throw act::EditConflict(act::EditConflict::Cause::deleted, "The activity was deleted by somebody else.");
}

} // namespace records
