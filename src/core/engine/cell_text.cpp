#include "core/engine/cell_text.h"

#include "core/engine/phone.h"
#include "core/settings/catalogue.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"
#include "core/values/value.h"

namespace engine {

namespace {

constexpr int first_activity_field = 901;
constexpr int last_activity_field = 999;

// A number that no field can have stands for none.
int field_number(std::string_view text) {
    const double number = values::leading_number(text);
    return number >= 0 && number < 100'000 ? values::to_int32(number) : 0;
}

std::string_view priority_name(int priority) {
    if (priority < 0 || priority >= static_cast<int>(Priorities.size()))
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return Priorities[static_cast<std::size_t>(priority)];
}

} // namespace

void CellText::read_settings() {
    extra_fields_.clear();
    const std::string_view view = layout_.view_name();
    for (int line = 0; line < settings::keys::extra_fields; ++line) {
        const std::string field = read(settings_.ini, settings::keys::extra_field(view, line));
        if (field.empty())
            continue;
        const bool new_line = read(settings_.ini, settings::keys::extra_field_new_line(view, line)) == "1";
        extra_fields_.push_back({.number = field_number(field),
                                 .label = read(settings_.ini, settings::keys::extra_field_label(view, line)),
                                 .separator = new_line ? "\r" : ", "});
    }
}

std::string CellText::GetContactInfo(const std::string& contact_id, const std::string& activity_id) {
    return here_.guarded("in modRefresh: Function GetContactInfo - Line # ", [&](host::Step& step) {
        step = 10;
        act_.session.ActContact->Goto(contact_id);
        step = 20;
        act_.session.ActActivity->Goto(activity_id);
        step = 30;
        std::string text = values::text_of(act_.session.ActContact->Data(DisplayContactField), here_.locale);
        for (const ExtraField& field : extra_fields_) {
            step = 40;
            const std::string value = value_of(field);
            if (value.empty())
                continue;
            text += field.separator;
            if (!field.label.empty())
                text.append(field.label).append(" ");
            text += value;
        }
        return text;
    });
}

std::string CellText::value_of(const ExtraField& field) {
    if (field.number >= first_activity_field && field.number <= last_activity_field)
        return activity_value(field.number);
    std::string value = values::text_of(act_.session.ActContact->Data(field.number), here_.locale);
    return value.starts_with("+1 (") ? Format_Phone(value) : value;
}

std::string CellText::activity_value(int field) {
    namespace choice = act::activity_choice;
    const act::Activity& activity = *act_.session.ActActivity;
    switch (field) {
    case choice::priority:
        return std::string(priority_name(values::int16_of(activity.Data(act::activity_field::priority))));
    case choice::date:
    case choice::time: {
        const values::Value start = activity.Data(act::activity_field::start);
        const auto date = values::date_of(start, here_.locale);
        if (!date)
            return values::text_of(start, here_.locale);
        return field == choice::date ? values::short_date(*date, here_.locale) : values::hh_nn_am_pm(*date);
    }
    case choice::scheduled_for: {
        std::string user = values::text_of(activity.Data(act::activity_field::scheduled_for), here_.locale);
        return act_.lists.GetUserDetails(user)[0];
    }
    case choice::group:
        return GetGroupName(values::text_of(activity.Data(act::activity_field::group), here_.locale));
    default:
        return values::text_of(activity.Data(field - first_activity_field + 1), here_.locale);
    }
}

std::string CellText::GetGroupName(const std::string& group_id) {
    constexpr int id = 1, name = 25;
    act::Group& group = *act_.session.ActGroup;
    group.Goto(group_id);
    if (values::text_of(group.Data(id), here_.locale) != group_id)
        return {};
    return values::text_of(group.Data(name), here_.locale);
}

} // namespace engine
