#include "adapters/records/shared_store.h"

#include "core/values/failure.h"
#include "core/values/ids.h"

namespace records {

namespace {

// Beyond so many changes, reading afresh what is needed is cheaper than taking them in.
constexpr std::int64_t most_changes = 20000;
constexpr std::size_t most_noted_changes = 20000;

} // namespace

store::Id id_of(std::string_view text) {
    if (text.size() == values::id_length)
        return store::Id(text);
    const std::string whole = values::whole_id(text);
    return store::Id(whole.size() == values::id_length ? whole : std::string());
}

SharedStore::SharedStore(std::unique_ptr<store::Store> store, const values::Locale& locale)
    : locale_(locale), store_(std::move(store)), activities_(std::make_unique<ActivityCache>(store_->reading())),
      contacts_(std::make_unique<ContactCache>(store_->reading())), seen_(store_->revision()) {}

void SharedStore::close() {
    contacts_.reset();
    activities_.reset();
    store_.reset();
}

void SharedStore::require_open() const {
    if (!store_)
        throw values::Failure(values::FailureNumber::automation, "The database has been closed.");
}

store::Store& SharedStore::store() {
    require_open();
    return *store_;
}

ActivityCache& SharedStore::activities() {
    require_open();
    return *activities_;
}

ContactCache& SharedStore::contacts() {
    require_open();
    return *contacts_;
}

void SharedStore::catch_up() {
    require_open();
    if (looks_ > 0)
        return;
    const std::int64_t revision = store_->revision();
    if (revision == seen_)
        return;
    if (revision - seen_ > most_changes) {
        activities_->forget_all();
        contacts_->forget_all();
        forget_changes(revision);
    } else {
        const store::ActivityChanges changes = store_->reading().changes_since(seen_);
        activities_->take_in(changes);
        for (const std::string& contact : changes.contacts)
            contacts_->forget(store::Id(contact));
        note(changes, revision);
    }
    group_names_.clear();
    seen_ = revision;
}

void SharedStore::note(const store::ActivityChanges& changes, std::int64_t revision) {
    for (const store::ActivityRow& row : changes.changed)
        changed_.emplace_back(revision, row.entry.key.id);
    for (const store::Id& id : changes.removed)
        changed_.emplace_back(revision, id);
    if (changed_.size() > most_noted_changes)
        forget_changes(revision);
}

void SharedStore::forget_changes(std::int64_t revision) {
    changed_.clear();
    changes_known_from_ = revision;
}

std::optional<std::unordered_set<store::Id>> SharedStore::changed_since(std::int64_t moment) const {
    if (moment < changes_known_from_)
        return std::nullopt;
    std::unordered_set<store::Id> ids;
    for (auto change = changed_.rbegin(); change != changed_.rend() && change->first > moment; ++change)
        ids.insert(change->second);
    return ids;
}

void SharedStore::begin_look() {
    if (looks_ == 0) {
        catch_up();
        store_->begin_reading();
    }
    ++looks_;
}

void SharedStore::end_look() {
    if (--looks_ > 0 || !store_)
        return;
    try {
        store_->end_reading();
    } catch (const values::Failure&) {
        // Nothing was written, so nothing is lost; whoever reads next is told.
    }
}

const std::string* SharedStore::group_name(const std::string& given) {
    const std::string id = values::whole_id(given);
    if (const auto known = group_names_.find(id); known != group_names_.end())
        return &known->second;
    const auto group = store().group(id);
    return group ? &group_names_.emplace(id, group->name).first->second : nullptr;
}

} // namespace records
