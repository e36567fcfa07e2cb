#pragma once

#include "core/act/database.h"
#include "core/values/text_forms.h"
#include "core/values/value.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// The contact manager's data with a record of what was called, in order.
namespace support {

struct CallRecord {
    std::vector<std::string> calls;
    // Runs before a call is carried out, with its text; it may throw.
    std::function<void(const std::string&)> before;

    void note(const std::string& call) {
        calls.push_back(call);
        if (before)
            before(call);
    }
};

class RecordingExceptions : public act::ExceptionInfo {
public:
    explicit RecordingExceptions(CallRecord& record) : record_(record) {}
    RecordingExceptions& over(act::ExceptionInfo& real) { return real_ = &real, *this; }

    int Count() const override { return real_->Count(); }
    values::Value value(int index) const override { return real_->value(index); }
    void Add(values::DateTime date) override {
        record_.note("ExceptionInfo.Add " + values::short_date(date, values::english_us()));
        real_->Add(date);
    }
    void Remove(values::DateTime date) override {
        record_.note("ExceptionInfo.Remove " + values::short_date(date, values::english_us()));
        real_->Remove(date);
    }

private:
    CallRecord& record_;
    act::ExceptionInfo* real_ = nullptr;
};

// Notes what reads and writes one record, not what filters and walks the list: "Goto ID", "Data(5)",
// "Data(28, 1/10/2024 9:00:00 AM)", "Update".
class RecordingActivity : public act::Activity {
public:
    RecordingActivity(std::unique_ptr<act::Activity> real, CallRecord& record)
        : real_(std::move(real)), record_(record), exceptions_(record) {}

    void Rebuild() override { record_.note("Rebuild"), real_->Rebuild(); }
    void MoveFirst() override { real_->MoveFirst(); }
    void MoveNext() override { real_->MoveNext(); }
    bool isEOF() const override { return real_->isEOF(); }
    void SkipToRecurring(values::DateTime from, values::DateTime to) override { real_->SkipToRecurring(from, to); }
    void SkipToEdited(values::DateTime since) override { real_->SkipToEdited(since); }
    std::optional<std::vector<std::string_view>> IdsGoneSince(std::span<const std::string_view> ids,
                                                              std::int64_t moment) override {
        return real_->IdsGoneSince(ids, moment);
    }
    std::optional<char> FirstCharacterOfIds() override { return real_->FirstCharacterOfIds(); }
    bool Goto(const std::string& id) override { return record_.note("Goto " + id), real_->Goto(id); }
    void SetDateScope(values::DateTime from, values::DateTime to) override { real_->SetDateScope(from, to); }
    void ClearDateScope() override { real_->ClearDateScope(); }
    void SetTypeFilter(act::ActivityType type) override { real_->SetTypeFilter(type); }
    void ClearTypeFilter() override { real_->ClearTypeFilter(); }
    void SetPriorityFilter(act::Priority priority) override { real_->SetPriorityFilter(priority); }
    void ClearPriorityFilter() override { real_->ClearPriorityFilter(); }
    void SetClearedFilter() override { real_->SetClearedFilter(); }
    void ClearClearedFilter() override { real_->ClearClearedFilter(); }

    values::Value Data(int field) const override {
        record_.note("Data(" + std::to_string(field) + ")");
        return real_->Data(field);
    }
    void Data(int field, const values::Value& value) override {
        record_.note("Data(" + std::to_string(field) + ", " + values::text_of(value, values::english_us()) + ")");
        real_->Data(field, value);
    }
    bool HasDetails() const override {
        record_.note("Data(45)");
        return real_->HasDetails();
    }
    void Edit() override { record_.note("Edit"), real_->Edit(); }
    void Add() override { record_.note("Add"), real_->Add(); }
    std::string Update() override { return record_.note("Update"), real_->Update(); }
    void Delete() override { record_.note("Delete"), real_->Delete(); }
    void StandsFor(const std::string& series, values::DateTime day) override { real_->StandsFor(series, day); }

    bool isRecurring() const override { return real_->isRecurring(); }
    act::RecurrenceKind recurringType() const override { return real_->recurringType(); }
    int GetRecurringFrequency() const override { return real_->GetRecurringFrequency(); }
    values::DateTime GetRecurringUntilDate() const override { return real_->GetRecurringUntilDate(); }
    int GetDaysOfWeekBits() const override { return real_->GetDaysOfWeekBits(); }
    int GetDaysOfMonthBits() const override { return real_->GetDaysOfMonthBits(); }
    int GetWeeksOfMonthBits() const override { return real_->GetWeeksOfMonthBits(); }
    act::ExceptionInfo& ExceptionInfo() override { return exceptions_.over(real_->ExceptionInfo()); }
    void RecurringChangeMode(act::RecurringChange change) override {
        const bool only_this = change == act::RecurringChange::only_this;
        record_.note(std::string("RecurringChangeMode ") + (only_this ? "true" : "false"));
        real_->RecurringChangeMode(change);
    }
    std::string FirstScheduledWith() override {
        return record_.note("FirstScheduledWith"), real_->FirstScheduledWith();
    }
    std::string NextScheduledWith() override {
        return record_.note("NextScheduledWith"), real_->NextScheduledWith();
    }
    void FirstScheduledWith(const std::string& contact) override {
        record_.note("FirstScheduledWith(" + contact + ")");
        real_->FirstScheduledWith(contact);
    }
    void NextScheduledWith(const std::string& contact) override {
        record_.note("NextScheduledWith(" + contact + ")");
        real_->NextScheduledWith(contact);
    }

private:
    std::unique_ptr<act::Activity> real_;
    CallRecord& record_;
    RecordingExceptions exceptions_;
};

class RecordingDatabase : public act::Database {
public:
    RecordingDatabase(std::unique_ptr<act::Database> real, CallRecord& record)
        : real_(std::move(real)), record_(record) {}
    void OpenEx(const std::string& path) override { real_->OpenEx(path); }
    void Close() override { real_->Close(); }
    act::Contact& Contact() override { return real_->Contact(); }
    std::unique_ptr<act::Activity> Activity() override {
        return std::make_unique<RecordingActivity>(real_->Activity(), record_);
    }
    act::Users& Users() override { return real_->Users(); }
    act::Group& Group() override { return real_->Group(); }
    std::shared_ptr<void> One_Look() override { return real_->One_Look(); }
    std::int64_t Moment() override { return real_->Moment(); }
    void Instance_Is_Made(const std::string& instance) override { real_->Instance_Is_Made(instance); }
    void Forget_Instance(const std::string& instance) override { real_->Forget_Instance(instance); }
    std::vector<LeftInstance> Take_Back_Instances() override { return real_->Take_Back_Instances(); }

private:
    std::unique_ptr<act::Database> real_;
    CallRecord& record_;
};

} // namespace support
