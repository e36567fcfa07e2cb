#include "adapters/records/cursor.h"

#include <algorithm>

namespace records {

using store::ActivityEntry;
using store::ActivityRow;

namespace {

const ActivityEntry& entry_in(const ActivityEntry& entry) { return entry; }
const ActivityEntry& entry_in(const std::shared_ptr<const ActivityRow>& row) { return row->entry; }
std::shared_ptr<const ActivityRow> row_in(const ActivityEntry&) { return nullptr; }
std::shared_ptr<const ActivityRow> row_in(const std::shared_ptr<const ActivityRow>& row) { return row; }

} // namespace

bool ListFilters::pass(const ActivityEntry& entry) const {
    return !(without_cleared && entry.cleared) && (without_types.empty() || !without_types.contains(entry.type)) &&
           (without_priorities.empty() || !without_priorities.contains(entry.priority));
}

void Cursor::set_filters(const ListFilters& filters) {
    filters_ = filters;
    to_first();
}

void Cursor::to_first() {
    place_ = Place::before_first;
    row_.reset();
}

void Cursor::look_up() {
    if (place_ == Place::before_first) {
        session_->catch_up();
        skip_to_passing(session_->activities().first(filters_.scope, hint_));
    } else if (place_ == Place::after_record) {
        skip_to_passing(session_->activities().next(entry_.key, filters_.scope, hint_));
    }
}

void Cursor::to_next() {
    look_up();
    if (place_ == Place::on_record || place_ == Place::after_deleted)
        place_ = Place::after_record;
    row_.reset();
}

void Cursor::to_series(const SeriesDates& dates) {
    if (place_ == Place::before_first)
        session_->catch_up();
    to_next_of(session_->activities().series(dates));
}

void Cursor::to_edited(std::int64_t since) {
    if (place_ == Place::before_first)
        session_->catch_up();
    to_next_of(session_->activities().edited_since(since));
}

bool Cursor::lists(const ActivityEntry& entry) const {
    const auto& scope = filters_.scope;
    const std::int64_t start = entry.key.start;
    return filters_.pass(entry) && (!scope || (scope->from <= start && start < scope->to));
}

template <typename Records>
void Cursor::to_next_of(const Records& records) {
    if (place_ == Place::after_deleted || place_ == Place::at_end || place_ == Place::nowhere)
        return;
    const auto is_here = [&](std::size_t at) {
        return at < records.size() && entry_in(records[at]).key == entry_.key;
    };
    std::size_t at = 0;
    if (place_ != Place::before_first) {
        const auto comes_before = [this](const auto& record) { return entry_in(record).key < entry_.key; };
        at = is_here(hint_)
                 ? hint_
                 : static_cast<std::size_t>(std::partition_point(records.begin(), records.end(), comes_before) -
                                            records.begin());
        if (is_here(at)) {
            if (place_ == Place::on_record)
                return;
            ++at;
        }
    }
    while (at < records.size() && !lists(entry_in(records[at])))
        ++at;
    hint_ = at;
    walked_here_ = true;
    place_ = at < records.size() ? Place::on_record : Place::at_end;
    if (place_ == Place::on_record) {
        entry_ = entry_in(records[at]);
        row_ = row_in(records[at]);
    } else {
        row_.reset();
    }
}

std::optional<std::vector<std::string_view>> Cursor::ids_gone_since(std::span<const std::string_view> ids,
                                                                    std::int64_t moment) {
    session_->catch_up();
    const auto changed = session_->changed_since(moment);
    if (!changed)
        return std::nullopt;
    std::vector<std::string_view> gone;
    for (const std::string_view text : ids)
        if (const store::Id id = id_of(text); changed->contains(id) && !lists(id))
            gone.push_back(text);
    return gone;
}

bool Cursor::lists(const store::Id& id) {
    const auto row = session_->activities().find(id);
    return row && lists(row->entry);
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
    place_ = Place::after_deleted;
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

} // namespace records
