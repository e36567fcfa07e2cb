#include "adapters/records/activity_cache.h"

#include <algorithm>
#include <unordered_set>

namespace records {

using store::ActivityEntry;
using store::ActivityKey;
using store::ActivityRow;
using store::Id;

namespace {

// Beyond so many rows, reading afresh what is needed is cheaper than carrying on.
constexpr std::size_t most_rows = 400000;
constexpr int rows_at_once = 256;

bool by_key(const ActivityEntry& left, const ActivityEntry& right) { return left.key < right.key; }

const ActivityKey& key_of(const ActivityCache::Row& row) { return row->entry.key; }

bool holds(const Scope& scope, std::int64_t start) { return scope.from <= start && start < scope.to; }

// The rows in order, and in memory one after the other, since they are walked again and again.
std::vector<ActivityCache::Row> side_by_side(std::vector<ActivityRow> rows) {
    std::vector<ActivityRow*> order;
    order.reserve(rows.size());
    for (ActivityRow& row : rows)
        order.push_back(&row);
    std::ranges::sort(order, {}, [](const ActivityRow* row) -> const ActivityKey& { return row->entry.key; });
    const auto block = std::make_shared<std::vector<ActivityRow>>();
    block->reserve(rows.size());
    std::vector<ActivityCache::Row> result;
    result.reserve(rows.size());
    for (ActivityRow* row : order)
        result.emplace_back(block, &block->emplace_back(std::move(*row)));
    return result;
}

std::unordered_set<Id> ids_of(const store::ActivityChanges& changes) {
    std::unordered_set<Id> ids(changes.removed.begin(), changes.removed.end());
    for (const ActivityRow& row : changes.changed)
        ids.insert(row.entry.key.id);
    return ids;
}

} // namespace

void ActivityCache::take_in(const store::ActivityChanges& changes) {
    last_exceptions_.reset();
    for (const ActivityRow& row : changes.changed) {
        const Id& id = row.entry.key.id;
        const bool was_kept = rows_.contains(id);
        drop(id);
        if (was_kept || is_of_series(row) || is_of_loaded_scope(row))
            keep(row);
        if (exceptions_)
            (*exceptions_)[id] = reading_.exceptions(id);
    }
    for (const Id& id : changes.removed)
        drop(id);
    if (changes.changed.empty() && changes.removed.empty())
        return;
    if (entries_)
        update_entries(changes);
    edited_since_.reset();
    const auto is_own = [](const ActivityRow& row) {
        return row.entry.key.id.characters.front() == store::first_of_own_ids;
    };
    if (has_own_ids_alone_ != true || !std::ranges::all_of(changes.changed, is_own))
        has_own_ids_alone_.reset();
}

void ActivityCache::update_entries(const store::ActivityChanges& changes) {
    const std::unordered_set<Id> outdated = ids_of(changes);
    std::erase_if(*entries_, [&](const ActivityEntry& entry) { return outdated.contains(entry.key.id); });
    const auto kept = static_cast<std::ptrdiff_t>(entries_->size());
    for (const ActivityRow& row : changes.changed)
        entries_->push_back(row.entry);
    std::sort(entries_->begin() + kept, entries_->end(), by_key);
    std::inplace_merge(entries_->begin(), entries_->begin() + kept, entries_->end(), by_key);
}

bool ActivityCache::is_of_series(const ActivityRow& row) const {
    const std::int64_t start = row.entry.key.start;
    const auto& until = row.recurrence.until;
    return series_dates_ && row.entry.recurring && start != ActivityKey::no_start && start <= series_dates_->to &&
           (!until || until->seconds() >= series_dates_->from);
}

bool ActivityCache::is_of_loaded_scope(const ActivityRow& row) const {
    return std::any_of(loaded_scopes_.begin(), loaded_scopes_.end(),
                       [&](const Scope& scope) { return holds(scope, row.entry.key.start); });
}

void ActivityCache::forget_all() {
    rows_.clear();
    loaded_scopes_.clear();
    scoped_.clear();
    series_dates_.reset();
    series_.clear();
    edited_since_.reset();
    has_own_ids_alone_.reset();
    entries_.reset();
    exceptions_.reset();
    last_exceptions_.reset();
    details_.clear();
}

const ActivityCache::Row& ActivityCache::keep(ActivityRow row) {
    return keep(std::make_shared<const ActivityRow>(std::move(row)));
}

const ActivityCache::Row& ActivityCache::keep(Row fresh) {
    Row& kept = rows_[key_of(fresh).id];
    if (kept && (key_of(kept) != key_of(fresh) || !is_of_series(*fresh)))
        take_out_of_order(*kept);
    kept = std::move(fresh);
    put_in_order(kept);
    return kept;
}

void ActivityCache::drop(const Id& id) {
    if (const Row* known = rows_.find(id)) {
        take_out_of_order(**known);
        rows_.erase(id);
    }
    if (exceptions_)
        exceptions_->erase(id);
    details_.erase(id);
}

void ActivityCache::put_in_order(const Row& row) {
    if (is_of_loaded_scope(*row))
        scoped_.insert_or_assign(key_of(row), row);
    if (!is_of_series(*row))
        return;
    const auto place = std::ranges::lower_bound(series_, key_of(row), {}, key_of);
    if (place != series_.end() && key_of(*place) == key_of(row))
        *place = row;
    else
        series_.insert(place, row);
}

void ActivityCache::take_out_of_order(const ActivityRow& row) {
    scoped_.erase(row.entry.key);
    const auto place = std::ranges::lower_bound(series_, row.entry.key, {}, key_of);
    if (place != series_.end() && key_of(*place) == row.entry.key)
        series_.erase(place);
}

bool ActivityCache::is_loaded(const Scope& scope) const {
    return std::any_of(loaded_scopes_.begin(), loaded_scopes_.end(),
                       [&](const Scope& loaded) { return loaded.from <= scope.from && scope.to <= loaded.to; });
}

void ActivityCache::load_scope(const Scope& scope) {
    if (scope.from >= scope.to || is_loaded(scope))
        return;
    make_room();
    reading_.each_in_scope(store::DateTime::from_seconds(scope.from), store::DateTime::from_seconds(scope.to),
                           [this](ActivityRow&& row) {
                               const Row& kept = keep(std::move(row));
                               scoped_.insert_or_assign(scoped_.end(), key_of(kept), kept);
                           });
    Scope whole = scope;
    std::erase_if(loaded_scopes_, [&](const Scope& loaded) {
        if (loaded.to < whole.from || whole.to < loaded.from)
            return false;
        whole = {std::min(loaded.from, whole.from), std::max(loaded.to, whole.to)};
        return true;
    });
    loaded_scopes_.push_back(whole);
}

void ActivityCache::make_room() {
    if (rows_.size() > most_rows)
        forget_all();
}

void ActivityCache::load_entries() {
    if (entries_)
        return;
    entries_.emplace();
    reading_.each_entry([this](const ActivityEntry& entry) { entries_->push_back(entry); });
}

const std::vector<ActivityCache::Row>& ActivityCache::series(const SeriesDates& dates) {
    if (series_dates_ == dates)
        return series_;
    make_room();
    series_dates_.reset();
    series_.clear();
    std::vector<ActivityRow> read;
    reading_.each_series(store::DateTime::from_seconds(dates.from), store::DateTime::from_seconds(dates.to),
                         [&](ActivityRow&& row) { read.push_back(std::move(row)); });
    std::vector<Row> series = side_by_side(std::move(read));
    for (const Row& row : series)
        keep(row);
    series_ = std::move(series);
    series_dates_ = dates;
    return series_;
}

const std::vector<ActivityEntry>& ActivityCache::edited_since(std::int64_t moment) {
    if (edited_since_ != moment) {
        edited_since_.reset();
        edited_.clear();
        reading_.each_edited(store::DateTime::from_seconds(moment),
                             [this](const ActivityEntry& entry) { edited_.push_back(entry); });
        std::sort(edited_.begin(), edited_.end(), by_key);
        edited_since_ = moment;
    }
    return edited_;
}

bool ActivityCache::has_own_ids_alone() {
    if (!has_own_ids_alone_)
        has_own_ids_alone_ = reading_.has_own_ids_alone();
    return *has_own_ids_alone_;
}

const ActivityEntry* ActivityCache::first(const std::optional<Scope>& scope, Hint& hint) {
    if (scope) {
        load_scope(*scope);
        const auto found = scoped_.lower_bound({.start = scope->from, .id = {}});
        return found != scoped_.end() && holds(*scope, found->first.start) ? &found->second->entry : nullptr;
    }
    load_entries();
    hint = 0;
    return entries_->empty() ? nullptr : &entries_->front();
}

const ActivityEntry* ActivityCache::next(const ActivityKey& place, const std::optional<Scope>& scope, Hint& hint) {
    if (scope) {
        load_scope(*scope);
        // From a record before the scope, the next one is the scope's first.
        const auto found = std::max(place, ActivityKey{.start = scope->from, .id = {}}) == place
                               ? scoped_.upper_bound(place)
                               : scoped_.lower_bound({.start = scope->from, .id = {}});
        return found != scoped_.end() && holds(*scope, found->first.start) ? &found->second->entry : nullptr;
    }
    load_entries();
    if (hint < entries_->size() && (*entries_)[hint].key == place) {
        ++hint;
    } else {
        const auto found =
            std::upper_bound(entries_->begin(), entries_->end(), ActivityEntry{.key = place}, by_key);
        hint = static_cast<std::size_t>(found - entries_->begin());
    }
    return hint < entries_->size() ? &(*entries_)[hint] : nullptr;
}

ActivityCache::Row ActivityCache::row(const ActivityEntry& entry) {
    if (!rows_.contains(entry.key.id))
        reading_.each_from(entry.key, rows_at_once, [this](ActivityRow&& row) { keep(std::move(row)); });
    return find(entry.key.id);
}

ActivityCache::Row ActivityCache::find(const Id& id) {
    if (const Row* known = rows_.find(id))
        return *known;
    auto row = reading_.row(id);
    return row ? keep(std::move(*row)) : nullptr;
}

const std::vector<store::DateTime>& ActivityCache::exceptions(const Id& id) {
    if (!exceptions_) {
        exceptions_.emplace();
        reading_.each_exception(
            [this](const Id& series, store::DateTime date) { (*exceptions_)[series].push_back(date); });
    }
    static const std::vector<store::DateTime> none;
    if (!last_exceptions_ || last_exceptions_->first != id) {
        const auto* known = exceptions_->find(id);
        last_exceptions_.emplace(id, known ? known : &none);
    }
    return *last_exceptions_->second;
}

const std::string& ActivityCache::details(const Id& id) {
    if (const std::string* known = details_.find(id))
        return *known;
    return details_[id] = reading_.details(id);
}

} // namespace records
