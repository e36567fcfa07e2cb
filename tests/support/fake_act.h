#pragma once

#include "core/act/objects.h"
#include "core/values/failure.h"
#include "core/values/ids.h"

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

// The contact manager in memory, for tests of the core. A test fills a FakeActData, hands it to a FakeServer or a
// FakeDatabase, and looks at the data and the calls afterwards.
namespace support {

using values::DateTime;
using values::Value;

// An activity record: its fields by number, and its rule.
struct FakeActivityRecord {
    std::map<int, Value> fields;
    act::RecurrenceKind recurring_type = act::RecurrenceKind::none;
    int frequency = 1;
    DateTime until = DateTime::of(2099, 12, 31);
    int days_of_week = 0, days_of_month = 0, weeks_of_month = 0; // bits
    std::vector<DateTime> exceptions;
    std::vector<std::string> contacts;

    Value field(int number) const {
        const auto found = fields.find(number);
        return found == fields.end() ? Value{} : found->second;
    }
    std::string id() const {
        const Value value = field(act::activity_field::id);
        const auto* text = std::get_if<std::string>(&value);
        return text ? *text : std::string();
    }
    DateTime start() const {
        const Value value = field(act::activity_field::start);
        const auto* date = std::get_if<DateTime>(&value);
        return date ? *date : DateTime();
    }
    bool has(int number, int expected) const { return field(number) == Value(std::int64_t(expected)); }
};

struct FakeUser {
    std::string id, name, security, access;
};

struct FakeField {
    int id = -1; // -1: a gap
    std::string label, type;
    bool has_popup = false;
};

struct FakeActData {
    std::deque<FakeActivityRecord> activities;
    std::map<std::string, std::map<int, Value>> contacts, groups; // by id, then by field number
    std::vector<FakeUser> users;
    std::vector<FakeField> fields;  // by position
    std::vector<std::string> calls; // what was called, in order
    std::set<std::string> failing;  // calls by name that fail with 440
    int next_id = 1;

    void call(const std::string& name) {
        calls.push_back(name);
        if (failing.contains(name))
            throw values::Failure(values::FailureNumber::automation);
    }

    // A plain call of an hour for the user, uncleared, of low priority.
    FakeActivityRecord& add_activity(const std::string& id, DateTime start, const std::string& user_id) {
        namespace field = act::activity_field;
        activities.push_back({});
        activities.back().fields = {{field::id, id},
                                    {field::start, start},
                                    {field::end, start.plus_minutes(60)},
                                    {field::date, start.date()},
                                    {field::duration, std::int64_t(60)},
                                    {field::type, std::int64_t(0)},
                                    {field::priority, std::int64_t(2)},
                                    {field::cleared, std::string("0")},
                                    {field::scheduled_for, user_id}};
        return activities.back();
    }
    FakeActivityRecord* find(const std::string& id) {
        const auto found =
            std::find_if(activities.begin(), activities.end(), [&](const auto& one) { return one.id() == id; });
        return found == activities.end() ? nullptr : &*found;
    }
};

class FakeExceptionInfo : public act::ExceptionInfo {
public:
    explicit FakeExceptionInfo(std::vector<DateTime>& dates) : dates_(&dates) {}
    int Count() const override { return static_cast<int>(dates_->size()); }
    Value value(int index) const override {
        if (index < 1 || index > Count())
            throw values::Failure(values::FailureNumber::subscript_out_of_range);
        return (*dates_)[static_cast<std::size_t>(index - 1)];
    }
    void Add(DateTime date) override {
        Remove(date);
        dates_->push_back(date);
    }
    void Remove(DateTime date) override { std::erase(*dates_, date); }

private:
    std::vector<DateTime>* dates_;
};

class FakeActivity : public act::Activity {
public:
    explicit FakeActivity(FakeActData& data) : data_(data) { apply(); }

    void Rebuild() override { data_.call("Activity.Rebuild"), apply(); }
    void MoveFirst() override { next_ = 0, MoveNext(); }
    void MoveNext() override {
        current_ = next_ < list_.size() ? list_[next_] : std::string();
        ++next_;
    }
    bool isEOF() const override { return current_.empty(); }
    bool Goto(const std::string& id) override {
        data_.call("Activity.Goto " + id);
        const bool found = data_.find(id) != nullptr;
        current_ = found ? id : std::string();
        next_ = 0;
        while (found && next_ < list_.size() && !before(id, list_[next_]))
            ++next_;
        return found;
    }

    void SetDateScope(DateTime from, DateTime to) override {
        data_.call("Activity.SetDateScope"), scope_ = {from, to}, scoped_ = true, apply();
    }
    void ClearDateScope() override { data_.call("Activity.ClearDateScope"), scoped_ = false, apply(); }
    void SetTypeFilter(act::ActivityType type) override {
        data_.call("Activity.SetTypeFilter"), types_.insert(type), apply();
    }
    void ClearTypeFilter() override { data_.call("Activity.ClearTypeFilter"), types_.clear(), apply(); }
    void SetPriorityFilter(act::Priority priority) override {
        data_.call("Activity.SetPriorityFilter"), priorities_.insert(priority), apply();
    }
    void ClearPriorityFilter() override {
        data_.call("Activity.ClearPriorityFilter"), priorities_.clear(), apply();
    }
    void SetClearedFilter() override { data_.call("Activity.SetClearedFilter"), uncleared_only_ = true, apply(); }
    void ClearClearedFilter() override {
        data_.call("Activity.ClearClearedFilter"), uncleared_only_ = false, apply();
    }

    Value Data(int field) const override {
        const FakeActivityRecord* record = editing_ ? &draft_ : data_.find(current_);
        return record ? record->field(field) : Value{};
    }
    void Data(int field, const Value& value) override {
        if (!editing_)
            throw values::Failure(values::FailureNumber::automation);
        draft_.fields[field] = value;
    }
    void Edit() override { data_.call("Activity.Edit"), draft_ = record(), editing_ = true; }
    void Add() override { data_.call("Activity.Add"), draft_ = {}, current_.clear(), editing_ = true; }
    std::string Update() override {
        data_.call("Activity.Update");
        if (!editing_)
            throw values::Failure(values::FailureNumber::automation);
        editing_ = false;
        if (current_.empty()) {
            const std::string number = std::to_string(data_.next_id++);
            current_ = std::string(values::id_length - number.size(), 'N') + number;
            draft_.fields[act::activity_field::id] = current_;
            data_.activities.push_back(draft_);
        } else
            record() = draft_;
        return current_;
    }
    void Delete() override {
        data_.call("Activity.Delete");
        const std::string id = record().id();
        std::erase_if(data_.activities, [&](const auto& one) { return one.id() == id; });
        apply();
    }

    bool isRecurring() const override { return record().recurring_type != act::RecurrenceKind::none; }
    act::RecurrenceKind recurringType() const override { return record().recurring_type; }
    int GetRecurringFrequency() const override { return record().frequency; }
    DateTime GetRecurringUntilDate() const override { return record().until; }
    int GetDaysOfWeekBits() const override { return record().days_of_week; }
    int GetDaysOfMonthBits() const override { return record().days_of_month; }
    int GetWeeksOfMonthBits() const override { return record().weeks_of_month; }
    act::ExceptionInfo& ExceptionInfo() override {
        exceptions_ = FakeExceptionInfo(record().exceptions);
        return exceptions_;
    }
    void RecurringChangeMode(act::RecurringChange change) override {
        const bool only_this = change == act::RecurringChange::only_this;
        data_.call(std::string("Activity.RecurringChangeMode ") + (only_this ? "true" : "false"));
    }

    std::string FirstScheduledWith() override { return contact_ = 0, scheduled_with(); }
    std::string NextScheduledWith() override { return ++contact_, scheduled_with(); }
    void FirstScheduledWith(const std::string& contact) override { contact_ = 0, schedule_with(contact); }
    void NextScheduledWith(const std::string& contact) override { ++contact_, schedule_with(contact); }

private:
    FakeActivityRecord& record() const {
        FakeActivityRecord* found = data_.find(current_);
        if (found == nullptr)
            throw values::Failure(values::FailureNumber::object_not_set);
        return *found;
    }
    bool before(const std::string& left, const std::string& right) const {
        const DateTime a = data_.find(left) ? data_.find(left)->start() : DateTime();
        const DateTime b = data_.find(right) ? data_.find(right)->start() : DateTime();
        return a != b ? a < b : left < right;
    }
    bool passes(const FakeActivityRecord& one) const {
        namespace field = act::activity_field;
        // A start that is no date can't be compared, so the scope lets it through.
        const bool dated = std::holds_alternative<DateTime>(one.field(field::start));
        if (scoped_ && dated && (one.start() < scope_.first || one.start() >= scope_.second))
            return false;
        return std::none_of(types_.begin(), types_.end(),
                            [&](auto type) { return one.has(field::type, static_cast<int>(type)); }) &&
               std::none_of(priorities_.begin(), priorities_.end(),
                            [&](auto priority) { return one.has(field::priority, static_cast<int>(priority)); }) &&
               !(uncleared_only_ && one.field(field::cleared) == Value(std::string("1")));
    }
    void apply() {
        list_.clear();
        for (const FakeActivityRecord& one : data_.activities)
            if (passes(one))
                list_.push_back(one.id());
        std::stable_sort(list_.begin(), list_.end(),
                         [&](const auto& left, const auto& right) { return before(left, right); });
        editing_ = false;
        MoveFirst();
    }
    std::string scheduled_with() const {
        const auto& contacts = record().contacts;
        return contact_ < contacts.size() ? contacts[contact_] : std::string();
    }
    void schedule_with(const std::string& contact) {
        auto& contacts = record().contacts;
        contacts.resize(std::max(contacts.size(), contact_ + 1));
        contacts[contact_] = contact;
    }

    FakeActData& data_;
    std::pair<DateTime, DateTime> scope_;
    bool scoped_ = false, uncleared_only_ = false, editing_ = false;
    std::set<act::ActivityType> types_;
    std::set<act::Priority> priorities_;
    std::vector<std::string> list_; // ids in order
    std::size_t next_ = 0;          // the place in the list at which MoveNext arrives
    std::string current_;           // empty: no current record
    FakeActivityRecord draft_;
    std::vector<DateTime> none_;
    FakeExceptionInfo exceptions_{none_};
    std::size_t contact_ = 0;
};

class FakeFields : public act::Fields {
public:
    explicit FakeFields(FakeActData& data) : data_(data) {}
    int Count() const override {
        return static_cast<int>(std::count_if(data_.fields.begin(), data_.fields.end(),
                                              [](const FakeField& field) { return field.id != -1; }));
    }
    int ID(int position) const override {
        return position >= 0 && position < static_cast<int>(data_.fields.size())
                   ? data_.fields[static_cast<std::size_t>(position)].id
                   : -1;
    }
    std::string Label(int id) const override { return field(id).label; }
    std::string Type(int id) const override { return field(id).type; }
    bool HasPopupList(int id) const override { return field(id).has_popup; }

private:
    const FakeField& field(int id) const {
        const auto found = std::find_if(data_.fields.begin(), data_.fields.end(),
                                        [&](const FakeField& one) { return one.id == id; });
        if (id == -1 || found == data_.fields.end())
            throw values::Failure(values::FailureNumber::invalid_property_index);
        return *found;
    }
    FakeActData& data_;
};

// Contacts and groups alike: records by id.
template <typename Table>
class FakeTable : public Table {
public:
    explicit FakeTable(const std::map<std::string, std::map<int, Value>>& records) : records_(records) {}
    bool Goto(const std::string& id) override { return (current_ = records_.find(id)) != records_.end(); }
    using Table::Data;
    Value Data(int field) const override {
        if (current_ == records_.end() || !current_->second.contains(field))
            return {};
        return current_->second.at(field);
    }

private:
    const std::map<std::string, std::map<int, Value>>& records_;
    std::map<std::string, std::map<int, Value>>::const_iterator current_ = records_.end();
};

using FakeGroup = FakeTable<act::Group>;

class FakeContact : public FakeTable<act::Contact> {
public:
    explicit FakeContact(FakeActData& data) : FakeTable(data.contacts), data_(data), fields_(data) {}
    act::Fields& Fields() override { return data_.call("Contact.Fields"), fields_; }
    // The calendar writes to no contact.
    using FakeTable::Data;
    void Data(int, const Value&) override { throw values::Failure(values::FailureNumber::automation); }
    void Edit() override { throw values::Failure(values::FailureNumber::automation); }
    std::string Update() override { throw values::Failure(values::FailureNumber::automation); }

private:
    FakeActData& data_;
    FakeFields fields_;
};

class FakeUsers : public act::Users {
public:
    explicit FakeUsers(FakeActData& data) : data_(data) {}
    int Count() const override { return static_cast<int>(data_.users.size()); }
    std::string uniqueID(int index) const override { return user(index).id; }
    std::string name(int index) const override { return user(index).name; }
    std::string Security(int index) const override { return user(index).security; }
    std::string Access(int index) const override { return user(index).access; }

private:
    const FakeUser& user(int index) const {
        if (index < 1 || index > Count())
            throw values::Failure(values::FailureNumber::subscript_out_of_range);
        return data_.users[static_cast<std::size_t>(index - 1)];
    }
    FakeActData& data_;
};

class FakeDatabase : public act::Database {
public:
    explicit FakeDatabase(FakeActData& data) : data_(data), contact_(data), users_(data), group_(data.groups) {}
    void OpenEx(const std::string& path) override { data_.call("Database.OpenEx(" + path + ")"); }
    void Close() override { data_.call("Database.Close"); }
    act::Contact& Contact() override { return data_.call("Database.Contact"), contact_; }
    std::unique_ptr<act::Activity> Activity() override {
        data_.call("Database.Activity");
        return std::make_unique<FakeActivity>(data_);
    }
    act::Users& Users() override { return data_.call("Database.Users"), users_; }
    act::Group& Group() override { return data_.call("Database.Group"), group_; }

private:
    FakeActData& data_;
    FakeContact contact_;
    FakeUsers users_;
    FakeGroup group_;
};

} // namespace support
