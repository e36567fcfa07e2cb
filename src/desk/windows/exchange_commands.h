#pragma once

#include "desk/windows/open_database.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace windows {

// What the desk exchanges with other programs by files. An unset member can't be done.
struct Exchange {
    // Takes the records of a file into the database, activities for the user of that name, and tells in a sentence
    // or more what came of it.
    std::function<std::string(store::Store& store, const std::string& file, const std::string& user)> take{};
};

// The commands of the File menu that bring files in and out. Each ends a failure in its box.
class ExchangeCommands {
public:
    ExchangeCommands(OpenDatabase& database, QWidget& window, Exchange exchange)
        : database_(database), window_(window), exchange_(std::move(exchange)) {}

    bool can_import() const { return static_cast<bool>(exchange_.take); }

    // Asks for the file and, for a calendar where there are several, for the user whose activities they become.
    void import_file();

private:
    // Absent when the question was cancelled. The user asked for last is offered first, else whoever sits here,
    // where the database has them by their login name.
    std::optional<std::string> ask_user();

    OpenDatabase& database_;
    QWidget& window_;
    const Exchange exchange_;
    std::string last_user_;
};

} // namespace windows
