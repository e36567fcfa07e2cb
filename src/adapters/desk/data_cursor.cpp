#include "adapters/desk/data_cursor.h"

#include "values/ids.h"

namespace desk {

using store::ActivityEntry;

namespace {

// None for a text that is no id, so that a longer one isn't found by its beginning.
store::Id id_of(const std::string& text) {
    const std::string whole = values::whole_id(text);
    return store::Id(whole.size() == values::id_length ? whole : std::string());
}

} // namespace

bool ListFilters::pass(const ActivityEntry& entry) const {
    return !(without_cleared && entry.cleared) &&
           (without_types.empty() || !without_types.contains(static_cast<int>(entry.type))) &&
           (without_priorities.empty() || !without_priorities.contains(static_cast<int>(entry.priority)));
}

void Cursor::set_filters(const ListFilters& filters) {
    filters_ = filters;
    to_first();
}

void Cursor::to_first() {
    place_ = Place::not_looked_up;
    row_.reset();
}

void Cursor::look_up() {
    if (place_ != Place::not_looked_up)
        return;
    session_->catch_up();
    skip_to_passing(session_->activities().first(filters_.scope, hint_));
}

void Cursor::to_next() {
    look_up();
    if (place_ == Place::on_record || place_ == Place::behind_deleted)
        skip_to_passing(session_->activities().next(entry_.key, filters_.scope, hint_));
}

void Cursor::skip_to_passing(const ActivityEntry* entry) {
    row_.reset();
    while (entry && !filters_.pass(*entry))
        entry = session_->activities().next(store::ActivityKey(entry->key), filters_.scope, hint_);
    place_ = entry ? Place::on_record : Place::at_end;
    walked_here_ = true;
    if (entry)
        entry_ = *entry;
}

bool Cursor::is_at_end() {
    look_up();
    return place_ == Place::at_end || place_ == Place::nowhere;
}

bool Cursor::go_to(const std::string& id) {
    // In a walk this is asked for each record, and the walk began with what the file held.
    if (place_ == Place::on_record && walked_here_ && entry_.key.id == id_of(id))
        return true;
    return go_to_written(id);
}

bool Cursor::go_to_written(const std::string& id) {
    session_->catch_up();
    row_ = session_->activities().find(id_of(id));
    place_ = row_ ? Place::on_record : Place::nowhere;
    walked_here_ = false;
    if (row_)
        entry_ = row_->entry;
    return row_ != nullptr;
}

void Cursor::record_was_written() {
    if (place_ == Place::on_record)
        go_to_written(entry_.key.id.text());
}

void Cursor::record_was_removed() {
    place_ = Place::behind_deleted;
    row_.reset();
}

void Cursor::to_nowhere() {
    place_ = Place::nowhere;
    row_.reset();
}

const ActivityEntry* Cursor::entry() {
    look_up();
    return place_ == Place::on_record ? &entry_ : nullptr;
}

const store::ActivityRow* Cursor::row() {
    if (!entry())
        return nullptr;
    if (!row_)
        row_ = session_->activities().row(entry_);
    return row_.get();
}

} // namespace desk
