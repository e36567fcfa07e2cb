#pragma once

#include "core/values/locale.h"
#include "desk/model/directory.h"
#include "desk/store/store.h"

#include <QObject>

#include <memory>
#include <string>

namespace windows {

// The open database, shared by the windows, and what they know of their surroundings.
class OpenDatabase : public QObject {
    Q_OBJECT

public:
    explicit OpenDatabase(const values::Locale& locale, store::Clock clock = store::wall_clock);

    // Each closes the database that was open before, but only once the other one is there. Failures are the
    // store's.
    void create(const std::string& path);
    void open(const std::string& path);
    void close();

    bool is_open() const { return store_ != nullptr; }
    // Fails with 440 when no database is open.
    store::Store& store() const;
    // For work during which events come in: it stays usable when the database is closed meanwhile. Fails likewise.
    std::shared_ptr<store::Store> kept_store() const;
    std::string path() const; // empty when no database is open
    const model::Directory& directory() const { return directory_; }

    // Rereads when any process, this one included, has changed the database since the last time.
    void refresh();

    const values::Locale& locale() const { return locale_; }
    values::DateTime today() const { return clock_().date(); }
    values::DateTime now() const { return clock_(); }

signals:
    void opened();
    void closed();  // also before another one is opened
    void changed(); // other records are in the database now, or another database is open, or none

private:
    void take(std::unique_ptr<store::Store> store);

    const values::Locale& locale_;
    const store::Clock clock_;
    std::shared_ptr<store::Store> store_;
    std::int64_t seen_ = 0;
    model::Directory directory_;
};

} // namespace windows
