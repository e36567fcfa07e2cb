#include "windows/session.h"

#include "windows/refusal.h"

namespace windows {

Session::Session(const values::Locale& locale, store::Clock clock) : locale_(locale), clock_(std::move(clock)) {}

void Session::create(const std::string& path) { take(store::Store::create(path, clock_)); }

void Session::open(const std::string& path) { take(store::Store::open(path, clock_)); }

void Session::take(std::unique_ptr<store::Store> store) {
    const auto revision = store->revision();
    Directory directory(*store);
    close();
    store_ = std::move(store);
    seen_ = revision;
    directory_ = std::move(directory);
    emit opened();
    emit changed();
}

void Session::close() {
    if (!is_open())
        return;
    store_.reset();
    directory_ = {};
    emit closed();
    emit changed();
}

store::Store& Session::store() const {
    if (!store_)
        refuse("No database is open.");
    return *store_;
}

std::string Session::path() const { return store_ ? store_->path() : std::string(); }

void Session::refresh() {
    if (!is_open())
        return;
    const auto revision = store_->revision();
    if (revision == seen_)
        return;
    directory_ = Directory(*store_);
    seen_ = revision;
    emit changed();
}

} // namespace windows
