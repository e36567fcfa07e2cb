#pragma once

#include "adapters/records/activity_draft.h"
#include "adapters/records/cursor.h"
#include "core/act/activity.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace records {

// The list of activities over a store. A change that Update hasn't stored is given up by the next Edit or Add and
// by every move; the contacts that are set meanwhile belong to it.
class ActivityTable final : public act::Activity {
public:
    explicit ActivityTable(std::shared_ptr<SharedStore> session);
    ~ActivityTable() override;

    void Rebuild() override { move_to_first(); }
    void MoveFirst() override { move_to_first(); }
    void MoveNext() override;
    void SkipToRecurring(act::DateTime from, act::DateTime to) override;
    void SkipToEdited(act::DateTime since) override;
    std::optional<std::vector<std::string_view>> IdsGoneSince(std::span<const std::string_view> ids,
                                                              std::int64_t moment) override {
        return cursor_.ids_gone_since(ids, moment);
    }
    std::optional<char> FirstCharacterOfIds() override;
    bool isEOF() const override { return cursor_.is_at_end(); }
    bool Goto(const std::string& id) override;

    void SetDateScope(act::DateTime from, act::DateTime to) override;
    void ClearDateScope() override;
    void SetTypeFilter(act::ActivityType type) override;
    void ClearTypeFilter() override;
    void SetPriorityFilter(act::Priority priority) override;
    void ClearPriorityFilter() override;
    void SetClearedFilter() override;
    void ClearClearedFilter() override;

    act::Value Data(int field) const override;
    void Data(int field, const act::Value& value) override;
    bool HasDetails() const override;

    void Edit() override;
    void Add() override;
    std::string Update() override;
    void Delete() override;
    void StandsFor(const std::string& series, act::DateTime day) override {
        if (draft_)
            draft_->stands_for(series, day);
    }

    bool isRecurring() const override { return entry().recurring; }
    act::RecurrenceKind recurringType() const override;
    int GetRecurringFrequency() const override;
    act::DateTime GetRecurringUntilDate() const override;
    int GetDaysOfWeekBits() const override;
    int GetDaysOfMonthBits() const override;
    int GetWeeksOfMonthBits() const override;
    act::ExceptionInfo& ExceptionInfo() override;
    void RecurringChangeMode(act::RecurringChange change) override {
        if (draft_)
            draft_->apply_to(change);
    }

    std::string FirstScheduledWith() override;
    std::string NextScheduledWith() override;
    void FirstScheduledWith(const std::string& contact) override;
    void NextScheduledWith(const std::string& contact) override;

private:
    void move_to_first();
    void set_filters(const ListFilters& filters);
    void give_up_change();
    const store::ActivityEntry& entry() const; // fails with 91 where there is no record
    const store::ActivityRow& row() const;
    store::Activity
    stored() const; // the current record as the store has it; fails with an EditConflict when it is gone
    // Stores something of the current record beside its Update, which doesn't take it for another's change.
    void store_at_once(const std::string& id, const std::function<void()>& write);
    std::string scheduled_with();
    void schedule_with(const std::string& contact);

    class Exceptions;

    std::shared_ptr<SharedStore> session_;
    mutable Cursor cursor_; // it looks up where it stands when it is asked
    std::unique_ptr<Exceptions> exceptions_;

    std::optional<ActivityDraft> draft_; // between Edit or Add and Update

    std::size_t contact_place_ = 0; // of the walk over the contacts
    std::vector<std::string> contacts_;
};

} // namespace records
