#pragma once

#include "desk/windows/long_task.h"
#include "desk/windows/lookup.h"

#include <QWidget>

#include <functional>
#include <string>

namespace windows {

// Takes the records of a file into the database and tells in a sentence or more what came of it. It runs on a
// thread of its own.
using Import = std::function<std::string(store::Store& store, const std::string& file, const Progress& progress)>;

// The commands of the File menu. Each ends a failure in its box; what was open then stays so.
class DatabaseCommands {
public:
    // Without an import there is no command for it.
    DatabaseCommands(OpenDatabase& database, Lookup& lookup, QWidget& window, Import import);

    void open(const std::string& path);
    // These ask for the file in a dialog.
    void open_another();
    void create();
    void create_sample();
    void import_file();

    bool can_import() const { return static_cast<bool>(import_); }

    void close();
    void add_user();

    // Stores what has been typed. Where that fails, the user decides whether to go on without; false to stay.
    bool leave();

private:
    void make(const std::string& path, const std::string& user);
    QString ask_new_file(const QString& title, const QString& suggestion);

    OpenDatabase& database_;
    Lookup& lookup_;
    QWidget& window_;
    const Import import_;
};

} // namespace windows
