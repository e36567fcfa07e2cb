#include "core/shell/geometry.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"

namespace shell {

namespace keys = settings::keys;

namespace {

constexpr int least_width = 2000; // twips; a window has to be larger
constexpr int least_height = 3600;

int stored(const settings::PerUserStore& store, const settings::UserKey& key, double otherwise) {
    const std::string text = settings::read(store, key, values::single_text(otherwise));
    return values::to_int32(values::to_double(text));
}

} // namespace

void restore_geometry(MainWindow& window, const settings::PerUserStore& store) {
    const double screen_width = window.screen_width(), screen_height = window.screen_height();
    window.set_left(stored(store, keys::window_left, (screen_width - window.width()) / 2));
    window.set_top(stored(store, keys::window_top, (screen_height - window.height()) / 2));
    const int width = stored(store, keys::window_width, screen_width / 2);
    const int height = stored(store, keys::window_height, screen_height / 2);
    if (width > least_width && height > least_height)
        window.set_size(width, height);
}

void store_geometry(const MainWindow& window, settings::PerUserStore& store) {
    settings::write(store, keys::window_state, std::to_string(static_cast<int>(window.window_state())));
    settings::write(store, keys::window_left, values::single_text(window.left()));
    settings::write(store, keys::window_top, values::single_text(window.top()));
    settings::write(store, keys::window_width, values::single_text(window.width()));
    settings::write(store, keys::window_height, values::single_text(window.height()));
}

} // namespace shell
