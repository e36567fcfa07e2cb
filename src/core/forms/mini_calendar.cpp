#include "core/forms/mini_calendar.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"

namespace forms {

namespace keys = settings::keys;

namespace title_strip {

Rectangle close_box(int client_width) {
    return {.Left = client_width - 7, .Top = 1, .Right = client_width - 1, .Bottom = 7};
}

Press press(int button, int x, int y, const Rectangle& close_box) {
    constexpr int left = 1;
    if (button != left || y >= height)
        return Press::ignored;
    return close_box.contains(x, y) ? Press::closes : Press::drags;
}

} // namespace title_strip

MiniCalendarPlace stored_mini_calendar_place(const settings::PerUserStore& store) {
    const auto stored = [&](const settings::UserKey& key) {
        return values::to_int32(values::to_double(settings::read(store, key)));
    };
    return {.top = stored(keys::mini_cal_top), .left = stored(keys::mini_cal_left)};
}

void store_mini_calendar_place(const MiniCalendarPlace& place, settings::PerUserStore& store) {
    settings::write(store, keys::mini_cal_top, values::single_text(place.top));
    settings::write(store, keys::mini_cal_left, values::single_text(place.left));
}

} // namespace forms
