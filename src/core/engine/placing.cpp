#include "engine/placing.h"

#include "settings/catalogue.h"
#include "values/numbers.h"
#include "values/text_forms.h"
#include "values/value.h"

namespace engine {

namespace {

constexpr std::size_t most_start_texts = 10'000;

std::string flag(bool on) { return on ? "1" : "0"; }

} // namespace

void Placing::read_settings() {
    slots_.read(layout_.slot_times(), layout_.SlotsCount);
    cell_text_.read_settings();
    user_colours_.clear();
    last_text_.clear();
    if (start_texts_.size() > most_start_texts)
        start_texts_.clear();
}

void Placing::Treat_Activity(DateTime date, int duration, bool recurring) {
    guarded_("in modRefresh: Sub Treat_Activity - Line # ", [&](host::Step& step) {
        namespace field = act::activity_field;
        act::Activity& activity = *session_.ActActivity;
        const auto text = [&](int number) { return values::text_of(activity.Data(number), locale_); };
        step = 10;
        const int col = layout_.GetDayCol(date);
        step = 20;
        std::string own_colour = text(field::colour);
        if (!values::is_numeric(own_colour))
            own_colour = "0";
        step = 30;
        std::string contact = text(field::contact);
        step = 40;
        const int type = values::int16_of(activity.Data(field::type));
        step = 50;
        std::string id = text(field::id);
        step = 60;
        const bool cleared = text(field::cleared) == "1";
        step = 70;
        const bool has_details = activity.HasDetails();
        step = 80;
        const std::optional<int> slot = slots_.slot_of(date);
        if (!slot)
            return;
        step = 90;
        const std::string user = text(field::scheduled_for);
        std::string colour = colour_of(own_colour, user);
        step = 100;
        const int further_slots = GetSlotSpan(*slot + 1, date.plus_minutes(duration));
        step = 110;
        if (!DisplayedIDs.contains(id))
            DisplayedIDs.append(id);
        step = 120;
        std::string cell_text = text_of_cell(contact, id);
        step = 130;
        std::string sort_text = user_name(user);
        sort_text.append("||").append(start_text(activity.Data(field::start))).append(cell_text);
        step = 140;
        layout_.Slots(*slot, col)
            .SetCell(std::move(id), std::move(contact), flag(recurring), flag(cleared), "", std::move(colour),
                     std::to_string(type + 1), std::move(cell_text), std::move(sort_text), flag(has_details),
                     further_slots);
    });
}

const std::string& Placing::text_of_cell(const std::string& contact, const std::string& activity) {
    // A text that failed is empty, and its next try fails for itself.
    if (last_text_.empty() || last_activity_ != activity || last_contact_ != contact) {
        last_text_ = cell_text_.GetContactInfo(contact, activity);
        last_contact_ = contact;
        last_activity_ = activity;
    }
    return last_text_;
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
    const auto [place, is_new] = start_texts_.try_emplace(date->seconds());
    if (is_new)
        place->second = values::default_text(*date, locale_);
    return place->second;
}

} // namespace engine
