#include "adapters/desk/data_activity_cache.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace desk {

using store::ActivityEntry;
using store::ActivityKey;
using store::ActivityRow;
using store::Id;

namespace {

// Beyond so many rows, reading afresh what is needed is cheaper than carrying on.
constexpr std::size_t most_rows = 400000;
constexpr int rows_at_once = 256;
constexpr int most_steps = 4;

bool by_key(const ActivityEntry& left, const ActivityEntry& right) { return left.key < right.key; }

bool by_entry_key(const std::shared_ptr<const ActivityRow>& left,
                  const std::shared_ptr<const ActivityRow>& right) {
    return left->entry.key < right->entry.key;
}

bool holds(const Scope& scope, std::int64_t start) { return scope.from <= start && start < scope.to; }

std::unordered_set<Id> ids_of(const store::ActivityChanges& changes) {
    std::unordered_set<Id> ids(changes.removed.begin(), changes.removed.end());
    for (const ActivityRow& row : changes.changed)
        ids.insert(row.entry.key.id);
    return ids;
}

} // namespace

void ActivityCache::take_in(const store::ActivityChanges& changes) {
    for (const ActivityRow& row : changes.changed) {
        const Id& id = row.entry.key.id;
        const bool was_kept = by_id_.contains(id);
        drop(id);
        if (was_kept || is_wanted(row))
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
    update_series(changes);
    edited_since_.reset();
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

void ActivityCache::update_series(const store::ActivityChanges& changes) {
    const std::unordered_set<Id> outdated = ids_of(changes);
    std::erase_if(series_, [&](const auto& row) { return outdated.contains(row->entry.key.id); });
    for (const ActivityRow& row : changes.changed)
        if (const auto kept = by_id_.find(row.entry.key.id); kept != by_id_.end() && is_of_series(row)) {
            const auto place =
                std::upper_bound(series_.begin(), series_.end(), kept->second->second, by_entry_key);
            series_.insert(place, kept->second->second);
        }
}

bool ActivityCache::is_of_series(const ActivityRow& row) const {
    const std::int64_t start = row.entry.key.start;
    const auto& until = row.recurrence.until;
    return series_dates_ && row.entry.recurring && start != ActivityKey::no_start && start <= series_dates_->to &&
           (!until || until->seconds() >= series_dates_->from);
}

bool ActivityCache::is_wanted(const ActivityRow& row) const {
    const auto holds_it = [&](const Scope& scope) { return holds(scope, row.entry.key.start); };
    return is_of_series(row) || std::any_of(loaded_scopes_.begin(), loaded_scopes_.end(), holds_it);
}

void ActivityCache::forget_all() {
    by_id_.clear();
    rows_.clear();
    last_kept_ = last_given_ = rows_.end();
    loaded_scopes_.clear();
    series_dates_.reset();
    series_.clear();
    edited_since_.reset();
    has_own_ids_alone_.reset();
    entries_.reset();
    exceptions_.reset();
    details_.clear();
}

const std::shared_ptr<const ActivityRow>& ActivityCache::keep(ActivityRow row) {
    const auto behind_last = last_kept_ == rows_.end() ? last_kept_ : std::next(last_kept_);
    const ActivityKey key = row.entry.key;
    last_kept_ = rows_.insert_or_assign(behind_last, key, std::make_shared<const ActivityRow>(std::move(row)));
    const auto [known, is_new] = by_id_.try_emplace(key.id, last_kept_);
    if (!is_new && known->second != last_kept_) { // it has moved since it was read
        erase(known->second);
        known->second = last_kept_;
    }
    return last_kept_->second;
}

void ActivityCache::erase(Rows::iterator row) {
    for (Rows::iterator* last : {&last_kept_, &last_given_})
        if (*last == row)
            *last = rows_.end();
    rows_.erase(row);
}

void ActivityCache::drop(const Id& id) {
    if (const auto known = by_id_.find(id); known != by_id_.end()) {
        erase(known->second);
        by_id_.erase(known);
    }
    if (exceptions_)
        exceptions_->erase(id);
    details_.erase(id);
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
                           [this](ActivityRow&& row) { keep(std::move(row)); });
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

const std::vector<std::shared_ptr<const ActivityRow>>& ActivityCache::series(const SeriesDates& dates) {
    if (series_dates_ == dates)
        return series_;
    make_room();
    series_dates_.reset();
    series_.clear();
    reading_.each_series(store::DateTime::from_seconds(dates.from), store::DateTime::from_seconds(dates.to),
                         [this](ActivityRow&& row) { series_.push_back(keep(std::move(row))); });
    std::sort(series_.begin(), series_.end(), by_entry_key);
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
        const auto found = rows_.lower_bound({.start = scope->from, .id = {}});
        return found != rows_.end() && holds(*scope, found->first.start) ? &found->second->entry : nullptr;
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
                               ? rows_.upper_bound(place)
                               : rows_.lower_bound({.start = scope->from, .id = {}});
        return found != rows_.end() && holds(*scope, found->first.start) ? &found->second->entry : nullptr;
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

std::shared_ptr<const ActivityRow> ActivityCache::row(const ActivityEntry& entry) {
    if (auto row = known(entry))
        return row;
    reading_.each_from(entry.key, rows_at_once, [this](ActivityRow&& row) { keep(std::move(row)); });
    return find(entry.key.id);
}

std::shared_ptr<const ActivityRow> ActivityCache::known(const ActivityEntry& entry) {
    // A walk asks for them in order, so the wanted one is mostly among the next few.
    auto near = last_given_;
    for (int steps = 0; near != rows_.end() && near->first < entry.key && steps < most_steps; ++steps)
        ++near;
    if (near == rows_.end() || near->first != entry.key) {
        const auto found = by_id_.find(entry.key.id);
        if (found == by_id_.end())
            return nullptr;
        near = found->second;
    }
    last_given_ = near;
    return near->second;
}

std::shared_ptr<const ActivityRow> ActivityCache::find(const Id& id) {
    const auto known = by_id_.find(id);
    if (known != by_id_.end())
        return known->second->second;
    const auto row = reading_.row(id);
    if (!row)
        return nullptr;
    keep(*row);
    return by_id_.at(id)->second;
}

const std::vector<store::DateTime>& ActivityCache::exceptions(const Id& id) {
    if (!exceptions_) {
        exceptions_.emplace();
        reading_.each_exception(
            [this](const Id& series, store::DateTime date) { (*exceptions_)[series].push_back(date); });
    }
    static const std::vector<store::DateTime> none;
    const auto known = exceptions_->find(id);
    return known == exceptions_->end() ? none : known->second;
}

const std::string& ActivityCache::details(const Id& id) {
    const auto [known, is_new] = details_.try_emplace(id);
    if (is_new)
        known->second = reading_.details(id);
    return known->second;
}

} // namespace desk
