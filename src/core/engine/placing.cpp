#include "core/engine/placing.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"
#include "core/values/value.h"

namespace engine {

namespace {

constexpr std::size_t most_date_texts = 10'000;

std::string_view flag(bool on) { return on ? "1" : "0"; }

} // namespace

void Placing::read_settings() {
    slots_.read(layout_.slot_times(), layout_.SlotsCount);
    cell_text_.read_settings();
    user_colours_.clear();
    last_ = {};
    if (date_texts_.size() > most_date_texts)
        date_texts_.clear();
}

void Placing::Treat_Activity(DateTime date, int duration, bool recurring) {
    guarded_("in modRefresh: Sub Treat_Activity - Line # ", [&](host::Step& step) {
        namespace field = act::activity_field;
        const act::Activity& activity = *session_.ActActivity;
        step = 10;
        const int col = layout_.GetDayCol(date);
        step = 20;
        if (last_.id.empty() || values::text_of(activity.Data(field::id), locale_) != last_.id)
            last_ = read_current(step);
        step = 80;
        const std::optional<int> slot = slots_.slot_of(date);
        if (!slot)
            return;
        step = 90;
        if (last_.colour.empty())
            last_.colour = colour_of(last_.own_colour, last_.user);
        step = 100;
        const int further_slots = GetSlotSpan(*slot + 1, date.plus_minutes(duration));
        step = 110;
        if (!DisplayedIDs.contains(last_.id))
            DisplayedIDs.append(last_.id);
        step = 120;
        if (last_.text.empty()) { // as it also is when it failed; then the next try fails for itself
            last_.text = cell_text_.GetContactInfo(last_.contact, last_.id);
            step = 130;
            last_.sort_text = user_name(last_.user) + "||" + start_text(activity.Data(field::start)) + last_.text;
        }
        step = 140;
        layout_.Slots(*slot, col)
            .SetCell(last_.id, last_.contact, flag(recurring), flag(last_.cleared), "", last_.colour, last_.type,
                     last_.text, last_.sort_text, flag(last_.has_details), further_slots);
    });
}

Placing::Shared Placing::read_current(host::Step& step) const {
    namespace field = act::activity_field;
    const act::Activity& activity = *session_.ActActivity;
    const auto text = [&](int number) { return values::text_of(activity.Data(number), locale_); };
    Shared shared;
    shared.own_colour = text(field::colour);
    if (!values::is_numeric(shared.own_colour))
        shared.own_colour = "0";
    step = 30;
    shared.contact = text(field::contact);
    step = 40;
    shared.type = std::to_string(values::int16_of(activity.Data(field::type)) + 1);
    step = 50;
    shared.id = text(field::id);
    step = 60;
    shared.cleared = text(field::cleared) == "1";
    shared.user = text(field::scheduled_for);
    step = 70;
    shared.has_details = activity.HasDetails();
    return shared;
}

std::string Placing::colour_of(const std::string& own_colour, const std::string& user_id) {
    switch (static_cast<ActyColors>(ShowActyColorsMode)) {
    case ActyColors::own:
        return std::to_string(values::to_int32(own_colour));
    case ActyColors::fixed:
        return std::to_string(values::to_int32(FixedActyColor));
    case ActyColors::of_user: {
        const std::string& name = user_name(user_id);
        const auto [place, is_new] = user_colours_.try_emplace(name);
        if (is_new)
            place->second = read(settings_, settings::keys::user_color(name));
        return std::to_string(values::to_int32(place->second));
    }
    }
    return "0";
}

const std::string& Placing::user_name(const std::string& user_id) const {
    static const std::string nobody;
    const auto found = users_.UserIdToName.find(user_id);
    return found == users_.UserIdToName.end() ? nobody : found->second;
}

std::string Placing::start_text(const values::Value& start) {
    const auto* date = std::get_if<DateTime>(&start);
    if (!date)
        return values::text_of(start, locale_);
    const DateTime day = date->date(), time = date->time();
    if (day == DateTime() || time == DateTime())
        return date_text(*date);
    return date_text(day) + " " + date_text(time);
}

const std::string& Placing::date_text(DateTime date) {
    const auto [place, is_new] = date_texts_.try_emplace(date.seconds());
    if (is_new)
        place->second = values::default_text(date, locale_);
    return place->second;
}

} // namespace engine
