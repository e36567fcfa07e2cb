#include "core/engine/recurring.h"

#include "core/values/text_forms.h"
#include "core/values/value.h"

namespace engine {

void Recurring::Treat_Recurring() {
    here_.guarded("in modRefresh: Sub Treat_Recurring - Line # ", [&](host::Step& step) {
        namespace field = act::activity_field;
        act::Activity& activity = *act_.session.ActActivity;
        step = 10;
        activity.ClearDateScope();
        step = 20;
        activity.MoveFirst();
        step = 30;
        const auto skip = [&] { activity.SkipToRecurring(layout_.StartDate(), layout_.EndDate()); };
        for (skip(); !activity.isEOF(); activity.MoveNext(), skip()) {
            if (!activity.isRecurring())
                continue;
            step = 40;
            if (!act_.users.passes_filter(values::text_of(activity.Data(field::scheduled_for), here_.locale)))
                continue;
            step = 50;
            const auto start = values::date_of(activity.Data(field::start), here_.locale);
            if (!start || *start > layout_.EndDate())
                continue;
            step = 60;
            if (activity.GetRecurringUntilDate() < layout_.StartDate())
                continue;
            step = 70;
            treat_series(*start, values::int16_of(activity.Data(field::duration)));
            step = 80;
        }
    });
}

void Recurring::treat_series(DateTime start, int duration) {
    switch (act_.session.ActActivity->recurringType()) {
    case act::RecurrenceKind::daily:
        return Treat_Daily(start, duration);
    case act::RecurrenceKind::weekly:
        return Treat_Weekly(start, duration);
    case act::RecurrenceKind::days_of_month:
        return Treat_Custom(start, duration);
    case act::RecurrenceKind::weekdays_of_month:
        return Treat_Monthly(start, duration);
    case act::RecurrenceKind::none:
        return;
    }
}

void Recurring::Treat_Daily(DateTime start, int duration) {
    treat("in modRefresh: Sub Treat_Daily - Line # ", recurrence::daily_starts, start, duration);
}

void Recurring::Treat_Weekly(DateTime start, int duration) {
    treat("in modRefresh: Sub Treat_Weekly - Line # ", recurrence::weekly_starts, start, duration);
}

void Recurring::Treat_Custom(DateTime start, int duration) {
    treat("in modRefresh: Sub Treat_Custom - Line # ", recurrence::custom_starts, start, duration);
}

void Recurring::Treat_Monthly(DateTime start, int duration) {
    treat("in modRefresh: Sub Treat_Monthly - Line # ", recurrence::monthly_starts, start, duration);
}

void Recurring::treat(std::string_view place, Walk walk, DateTime start, int duration) {
    here_.guarded(place, [&](host::Step& step) {
        act::Activity& activity = *act_.session.ActActivity;
        step = 10;
        const recurrence::Rule rule{.start = start,
                                    .frequency = activity.GetRecurringFrequency(),
                                    .until = activity.GetRecurringUntilDate(),
                                    .days_of_week = activity.GetDaysOfWeekBits(),
                                    .weeks_of_month = activity.GetWeeksOfMonthBits(),
                                    .days_of_month = activity.GetDaysOfMonthBits()};
        step = 20;
        walk(rule, {layout_.StartDate(), layout_.EndDate()},
             {.Exception = [this](DateTime date) { return Exception(date); },
              .occurrence =
                  [&](DateTime date) { placing_.Treat_Activity(date, duration, Placing::Kind::of_series); }});
    });
}

bool Recurring::Exception(DateTime date) {
    return here_.guarded("in modRefresh: Function Exception - Line # ", [&](host::Step& step) {
        step = 10;
        const act::ExceptionInfo& exceptions = act_.session.ActActivity->ExceptionInfo();
        step = 20;
        for (int index = 1; index <= exceptions.Count(); ++index) {
            const values::Value value = exceptions.value(index);
            const auto exception = values::date_of(value, here_.locale);
            if (!exception)
                throw values::Failure(values::FailureNumber::type_mismatch);
            if (recurrence::Form_Dat(*exception) == recurrence::Form_Dat(date))
                return true;
        }
        return false;
    });
}

} // namespace engine
