#include "desk/windows/sample_file.h"

#include "desk/store/sample.h"
#include "desk/store/store.h"

#include <filesystem>

namespace windows {

void create_sample(const std::string& path, values::DateTime day) {
    auto store = store::Store::create(path);
    try {
        store->together([&] { store::fill_sample(*store, day); });
    } catch (...) {
        store.reset();
        std::error_code ignored; // the failure that is under way says more
        std::filesystem::remove(path, ignored);
        throw;
    }
}

} // namespace windows
