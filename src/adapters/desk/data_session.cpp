#include "adapters/desk/data_session.h"

#include "values/failure.h"
#include "values/ids.h"

namespace desk {

namespace {

// Beyond so many changes, reading afresh what is needed is cheaper than taking them in.
constexpr std::int64_t most_changes = 20000;

} // namespace

Session::Session(std::unique_ptr<store::Store> store, const values::Locale& locale)
    : locale_(locale), store_(std::move(store)), activities_(std::make_unique<ActivityCache>(store_->reading())),
      seen_(store_->revision()) {}

void Session::close() {
    activities_.reset();
    store_.reset();
}

void Session::require_open() const {
    if (!store_)
        throw values::Failure(values::FailureNumber::automation, "The database has been closed.");
}

store::Store& Session::store() {
    require_open();
    return *store_;
}

ActivityCache& Session::activities() {
    require_open();
    return *activities_;
}

void Session::catch_up() {
    require_open();
    if (looks_ > 0)
        return;
    const std::int64_t revision = store_->revision();
    if (revision == seen_)
        return;
    if (revision - seen_ > most_changes) {
        activities_->forget_all();
        contacts_.clear();
    } else {
        const store::ActivityChanges changes = store_->reading().changes_since(seen_);
        activities_->take_in(changes);
        for (const std::string& contact : changes.contacts)
            contacts_.erase(contact);
    }
    group_names_.clear();
    seen_ = revision;
}

void Session::begin_look() {
    catch_up();
    ++looks_;
}

const ContactFields* Session::contact(const std::string& given) {
    const std::string id = values::whole_id(given);
    if (const auto known = contacts_.find(id); known != contacts_.end())
        return &known->second;
    const auto contact = store().contact(id);
    if (!contact)
        return nullptr;
    return &contacts_.emplace(id, ContactFields(contact->fields.begin(), contact->fields.end())).first->second;
}

const std::string* Session::group_name(const std::string& given) {
    const std::string id = values::whole_id(given);
    if (const auto known = group_names_.find(id); known != group_names_.end())
        return &known->second;
    const auto group = store().group(id);
    return group ? &group_names_.emplace(id, group->name).first->second : nullptr;
}

} // namespace desk
