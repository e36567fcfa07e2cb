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
    slots_.read(layout_.slot_times(), layout_.SlotsCount());
    cell_text_.read_settings();
    user_colours_.clear();
    last_ = {};
    if (date_texts_.size() > most_date_texts)
        date_texts_.clear();
}

void Placing::Treat_Activity(DateTime date, int duration, Kind kind) {
    here_.guarded("in modRefresh: Sub Treat_Activity - Line # ", [&](host::Step& step) {
        namespace field = act::activity_field;
        const act::Activity& activity = *act_.session.ActActivity;
        const auto text = [&](int number) { return values::text_of(activity.Data(number), here_.locale); };
        step = 10;
        const int col = layout_.GetDayCol(date);
        step = 20;
        if (last_.id.empty() || text(field::id) != last_.id) {
            Shared fresh{.own_colour = text(field::colour)};
            if (!values::is_numeric(fresh.own_colour))
                fresh.own_colour = "0";
            step = 30;
            fresh.contact = text(field::contact);
            step = 40;
            fresh.type = std::to_string(values::int16_of(activity.Data(field::type)) + 1);
            step = 50;
            fresh.id = text(field::id);
            step = 60;
            fresh.cleared = text(field::cleared) == "1";
            fresh.user = text(field::scheduled_for);
            step = 70;
            fresh.has_details = activity.HasDetails();
            last_ = std::move(fresh);
        }
        step = 80;
        const std::optional<grid::SlotNumber> slot = slots_.slot_of(date);
        if (!slot)
            return;
        step = 90;
        if (last_.colour.empty())
            last_.colour = colour_of(last_.own_colour, last_.user);
        step = 100;
        const int further_slots = GetSlotSpan(slot->next(), date.plus_minutes(duration));
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
            .SetCell({.ActivityID = last_.id,
                      .ContactID = last_.contact,
                      .Recurring = flag(kind == Kind::of_series),
                      .Cleared = flag(last_.cleared),
                      .BackColor = "",
                      .ForeColor = last_.colour,
                      .Type = last_.type,
                      .Text = last_.text,
                      .Detail = last_.sort_text,
                      .HasDetails = flag(last_.has_details),
                      .GoesBeyond = further_slots});
    });
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
            place->second = read(settings_.ini, settings::keys::user_color(name));
        return place->second; // as it stands: the drawing ignores what is no number
    }
    }
    return "0";
}

const std::string& Placing::user_name(const std::string& user_id) const {
    static const std::string nobody;
    const auto found = act_.users.UserIdToName.find(user_id);
    return found == act_.users.UserIdToName.end() ? nobody : found->second;
}

std::string Placing::start_text(const values::Value& start) {
    const auto* date = std::get_if<DateTime>(&start);
    if (!date)
        return values::text_of(start, here_.locale);
    const DateTime day = date->date(), time = date->time();
    if (day == DateTime() || time == DateTime())
        return date_text(*date);
    return date_text(day) + " " + date_text(time);
}

const std::string& Placing::date_text(DateTime date) {
    const auto [place, is_new] = date_texts_.try_emplace(date.seconds());
    if (is_new)
        place->second = values::default_text(date, here_.locale);
    return place->second;
}

} // namespace engine
