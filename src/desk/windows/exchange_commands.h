#pragma once

#include "desk/windows/long_task.h"
#include "desk/windows/open_database.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace windows {

// How a file is to be taken in.
struct Taking {
    std::string file{};
    std::string user{};        // the name of whose activities they become; empty for those whom the file names
    bool with_deleted = false; // what was taken before and deleted since comes back

    bool operator==(const Taking&) const = default;
};

struct Taken {
    std::string report{};         // what came of it, in a sentence or more
    std::size_t left_deleted = 0; // activities that would come back with_deleted
};

// What the desk exchanges with other programs by files. An unset member can't be done.
struct Exchange {
    // Runs on a thread of its own.
    std::function<Taken(store::Store& store, const Taking& taking, const Progress& progress)> take{};
    std::function<bool(const std::string& file)> names_users{};
    // Writes the activities of the user of that name, or of everybody without one, to a file that ends in ".ics",
    // or all contacts to one that ends in ".vcf", and tells what came of it.
    std::function<std::string(store::Store& store, const std::string& file, const std::string& user)> write{};
};

// The commands of the File menu that bring files in and out. Each ends a failure in its box.
class ExchangeCommands {
public:
    ExchangeCommands(OpenDatabase& database, QWidget& window, Exchange exchange)
        : database_(database), window_(window), exchange_(std::move(exchange)) {}

    bool can_import() const { return static_cast<bool>(exchange_.take); }
    bool can_export() const { return static_cast<bool>(exchange_.write); }

    // Asks for the file and, for a calendar where there are several, for the user whose activities they become.
    void import_file();
    // The same the other way round.
    void export_file();

private:
    // A user's name, or an empty one for that word, which is left out when it is empty. Absent when the question
    // was cancelled.
    std::optional<std::string> ask_user(const QString& title, const QString& question, const QString& all);
    // The user chosen last, else whoever sits here, where the database has them by their login name.
    QString user_here() const;
    std::string ask_file_to_write();
    void take(store::Store& store, const Taking& taking);

    OpenDatabase& database_;
    QWidget& window_;
    const Exchange exchange_;
    std::string last_user_;
};

} // namespace windows
