#include "adapters/records/activity_table.h"

#include "adapters/records/activity_fields.h"
#include "core/values/failure.h"
#include "core/values/ids.h"

namespace records {

using act::DateTime;
using act::Value;
using values::Failure;
using values::FailureNumber;

namespace {

const DateTime end_of_endless_series = DateTime::of(2099, 12, 31);

} // namespace

// The exceptions of the record that was current when they were asked for.
class ActivityTable::Exceptions final : public act::ExceptionInfo {
public:
    explicit Exceptions(ActivityTable& list) : list_(list) {}
    void belong_to(const store::Id& activity) { activity_ = activity; }

    int Count() const override { return static_cast<int>(dates().size()); }

    Value value(int index) const override {
        if (index < 1 || index > Count())
            throw Failure(FailureNumber::subscript_out_of_range);
        return dates()[static_cast<std::size_t>(index - 1)];
    }

    void Add(DateTime date) override {
        const std::string id = activity_.text();
        list_.store_at_once(id, [&] { list_.session_->store().add_exception(id, date); });
    }

    void Remove(DateTime date) override {
        const std::string id = activity_.text();
        list_.store_at_once(id, [&] { list_.session_->store().remove_exception(id, date); });
    }

private:
    const std::vector<DateTime>& dates() const { return list_.session_->activities().exceptions(activity_); }

    ActivityTable& list_;
    store::Id activity_;
};

ActivityTable::ActivityTable(std::shared_ptr<SharedStore> session)
    : session_(std::move(session)), cursor_(session_), exceptions_(std::make_unique<Exceptions>(*this)) {}

ActivityTable::~ActivityTable() = default;

void ActivityTable::move_to_first() {
    give_up_change();
    session_->catch_up();
    cursor_.to_first();
}

void ActivityTable::MoveNext() {
    give_up_change();
    cursor_.to_next();
}

void ActivityTable::SkipToRecurring(DateTime from, DateTime to) {
    give_up_change();
    cursor_.to_series({.from = from.seconds(), .to = to.seconds()});
}

void ActivityTable::SkipToEdited(DateTime since) {
    give_up_change();
    cursor_.to_edited(since.seconds());
}

std::optional<char> ActivityTable::FirstCharacterOfIds() {
    session_->catch_up();
    return session_->activities().has_own_ids_alone() ? std::optional(store::first_of_own_ids) : std::nullopt;
}

bool ActivityTable::Goto(const std::string& id) {
    give_up_change();
    return cursor_.go_to(id);
}

void ActivityTable::set_filters(const ListFilters& filters) {
    give_up_change();
    cursor_.set_filters(filters);
}

void ActivityTable::SetDateScope(DateTime from, DateTime to) {
    ListFilters filters = cursor_.filters();
    filters.scope = {.from = from.seconds(), .to = to.seconds()};
    set_filters(filters);
}

void ActivityTable::ClearDateScope() {
    ListFilters filters = cursor_.filters();
    filters.scope.reset();
    set_filters(filters);
}

void ActivityTable::SetTypeFilter(act::ActivityType type) {
    ListFilters filters = cursor_.filters();
    filters.without_types.insert(type);
    set_filters(filters);
}

void ActivityTable::ClearTypeFilter() {
    ListFilters filters = cursor_.filters();
    filters.without_types.clear();
    set_filters(filters);
}

void ActivityTable::SetPriorityFilter(act::Priority priority) {
    ListFilters filters = cursor_.filters();
    filters.without_priorities.insert(priority);
    set_filters(filters);
}

void ActivityTable::ClearPriorityFilter() {
    ListFilters filters = cursor_.filters();
    filters.without_priorities.clear();
    set_filters(filters);
}

void ActivityTable::SetClearedFilter() {
    ListFilters filters = cursor_.filters();
    filters.without_cleared = true;
    set_filters(filters);
}

void ActivityTable::ClearClearedFilter() {
    ListFilters filters = cursor_.filters();
    filters.without_cleared = false;
    set_filters(filters);
}

void ActivityTable::give_up_change() {
    draft_.reset();
    contact_place_ = 0;
    contacts_.clear();
}

const store::ActivityEntry& ActivityTable::entry() const {
    if (draft_)
        return row().entry;
    const store::ActivityEntry* entry = cursor_.entry();
    if (!entry)
        throw Failure(FailureNumber::object_not_set);
    return *entry;
}

const store::ActivityRow& ActivityTable::row() const {
    if (draft_)
        return draft_->row();
    entry();
    const store::ActivityRow* row = cursor_.row();
    if (!row)
        fail_as_deleted();
    return *row;
}

Value ActivityTable::Data(int field) const {
    if (draft_)
        return draft_->field(field);
    const store::ActivityEntry* entry = cursor_.entry();
    if (!entry)
        return {};
    if (is_entry_field(field))
        return entry_field(*entry, field);
    const store::ActivityRow* row = cursor_.row();
    if (!row)
        return {};
    if (field == act::activity_field::details)
        return row->has_details ? session_->activities().details(row->entry.key.id) : std::string();
    return row_field(*row, field);
}

void ActivityTable::Data(int field, const Value& value) {
    if (!draft_)
        throw Failure(FailureNumber::automation, "No activity is being edited.");
    draft_->set_field(field, value, session_->locale());
}

bool ActivityTable::HasDetails() const {
    if (draft_)
        return !draft_->record().details.empty();
    const store::ActivityRow* row = cursor_.row();
    return row && row->has_details;
}

void ActivityTable::Edit() {
    give_up_change();
    draft_.emplace(stored());
}

void ActivityTable::Add() {
    give_up_change();
    session_->store(); // there must be one
    cursor_.to_nowhere();
    draft_.emplace(store::Activity{});
}

store::Activity ActivityTable::stored() const { return stored_activity(session_->store(), entry().key.id.text()); }

std::string ActivityTable::Update() {
    if (!draft_)
        throw Failure(FailureNumber::automation, "No activity is being edited.");
    std::string id = draft_->store_in(session_->store());
    give_up_change();
    cursor_.go_to_written(id);
    return id;
}

void ActivityTable::Delete() {
    give_up_change();
    session_->store().remove_activity(entry().key.id.text());
    cursor_.record_was_removed();
}

void ActivityTable::store_at_once(const std::string& id, const std::function<void()>& write) {
    store::Store& store = session_->store();
    store.together([&] {
        const auto before = store.activity(id);
        write();
        const auto after = store.activity(id);
        if (draft_ && before && after)
            draft_->take_over_exceptions(*before, *after);
    });
    cursor_.record_was_written();
}

act::RecurrenceKind ActivityTable::recurringType() const {
    return entry().recurring ? row().recurrence.kind : act::RecurrenceKind::none;
}

int ActivityTable::GetRecurringFrequency() const { return row().recurrence.frequency; }

DateTime ActivityTable::GetRecurringUntilDate() const {
    return row().recurrence.until.value_or(end_of_endless_series);
}

int ActivityTable::GetDaysOfWeekBits() const { return row().recurrence.days_of_week; }

int ActivityTable::GetDaysOfMonthBits() const { return static_cast<int>(row().recurrence.days_of_month); }

int ActivityTable::GetWeeksOfMonthBits() const { return row().recurrence.weeks_of_month; }

act::ExceptionInfo& ActivityTable::ExceptionInfo() {
    exceptions_->belong_to(entry().key.id);
    return *exceptions_;
}

std::string ActivityTable::FirstScheduledWith() {
    const store::ActivityRow& current = row();
    if (draft_)
        contacts_ = draft_->record().contacts;
    else if (current.contact_count > 1)
        contacts_ = session_->store().reading().contacts(current.entry.key.id);
    else
        contacts_.assign(current.contact.empty() ? 0 : 1, current.contact.text());
    contact_place_ = 0;
    return scheduled_with();
}

std::string ActivityTable::NextScheduledWith() {
    entry();
    ++contact_place_;
    return scheduled_with();
}

std::string ActivityTable::scheduled_with() {
    return contact_place_ < contacts_.size() ? contacts_[contact_place_] : std::string();
}

void ActivityTable::FirstScheduledWith(const std::string& contact) {
    contact_place_ = 0;
    schedule_with(contact);
}

void ActivityTable::NextScheduledWith(const std::string& contact) {
    ++contact_place_;
    schedule_with(contact);
}

void ActivityTable::schedule_with(const std::string& contact) {
    entry();
    const auto put = [&](std::vector<std::string>& contacts) {
        if (contact_place_ >= contacts.size()) {
            if (!contact.empty())
                contacts.push_back(values::whole_id(contact));
        } else if (!contact.empty()) {
            contacts[contact_place_] = values::whole_id(contact);
        } else {
            contacts.erase(contacts.begin() + static_cast<std::ptrdiff_t>(contact_place_));
            --contact_place_; // what came after it is the next
        }
        contacts_ = contacts;
    };
    if (draft_) {
        std::vector<std::string> contacts = draft_->record().contacts;
        put(contacts);
        draft_->schedule_with(contacts);
        return;
    }
    session_->store().together([&] {
        store::Activity activity = stored();
        const std::vector<std::string> before = activity.contacts;
        put(activity.contacts);
        if (activity.contacts != before)
            session_->store().update(activity);
    });
    cursor_.record_was_written();
}

} // namespace records
