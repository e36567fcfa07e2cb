#include "desk/windows/open_database.h"

#include "desk/model/refusal.h"

namespace windows {

OpenDatabase::OpenDatabase(const values::Locale& locale, store::Clock clock)
    : locale_(locale), clock_(std::move(clock)) {}

void OpenDatabase::create(const std::string& path) { take(store::Store::create(path, clock_)); }

void OpenDatabase::open(const std::string& path) { take(store::Store::open(path, clock_)); }

void OpenDatabase::take(std::unique_ptr<store::Store> store) {
    const auto revision = store->revision();
    model::Directory directory(*store);
    close();
    store_ = std::move(store);
    seen_ = revision;
    directory_ = std::move(directory);
    emit opened();
    emit changed();
}

void OpenDatabase::close() {
    if (!is_open())
        return;
    store_.reset();
    directory_ = {};
    emit closed();
    emit changed();
}

store::Store& OpenDatabase::store() const { return *kept_store(); }

std::shared_ptr<store::Store> OpenDatabase::kept_store() const {
    if (!store_)
        model::refuse("No database is open.");
    return store_;
}

std::string OpenDatabase::path() const { return store_ ? store_->path() : std::string(); }

void OpenDatabase::refresh() {
    if (!is_open())
        return;
    const auto revision = store_->revision();
    if (revision == seen_)
        return;
    directory_ = model::Directory(*store_);
    seen_ = revision;
    emit changed();
}

} // namespace windows
