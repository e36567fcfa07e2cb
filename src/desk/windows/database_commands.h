#pragma once

#include "desk/windows/lookup.h"

#include <QWidget>

#include <string>

namespace windows {

// The commands of the File menu on databases. Each ends a failure in its box; what was open then stays so.
class DatabaseCommands {
public:
    DatabaseCommands(OpenDatabase& database, Lookup& lookup, QWidget& window)
        : database_(database), lookup_(lookup), window_(window) {}

    void open(const std::string& path);
    // These ask for the file in a dialog.
    void open_another();
    void create();
    void create_sample();

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
};

} // namespace windows
