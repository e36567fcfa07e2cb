#pragma once

#include "desk/store/records.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace store {

class ActivityReading;
class ImportedRecords;
class ToolbarCommands;
class TemporaryInstances;

// Tells the present moment. The store stamps each changed activity with it.
using Clock = std::function<DateTime()>;
DateTime wall_clock(); // the machine's own, in its time zone

// Which activities a list holds, and in which order nobody has to ask: by start, then by id; activities without
// a start come first. A bound keeps those without a start out.
struct ActivityQuery {
    std::optional<DateTime> from{}; // starts at or after this
    std::optional<DateTime> to{};   // starts before this
    std::set<ActivityType> without_types{};
    std::set<Priority> without_priorities{};
    bool without_cleared = false;
    std::optional<std::string> contact{}; // that this contact takes part in
    std::set<std::string> users{};        // for one of these; empty for everybody's
};

// A contact manager's database: one file, shared by any number of processes, each with a Store of its own. It is
// used by one thread. Failures are values::Failure with 440 and a sentence for the user: the file is missing, is
// no database, comes from a newer version, can't be written, is damaged, or stays locked for over four seconds.
// A record that names a contact, a user or a group that there is not can't be stored either.
//
// Once the file isn't the one at its path any more, because it was moved, deleted or replaced, nothing is written.
//
// Each writing member is one durable transaction: when it returns, a crash of the machine doesn't undo it; when
// it fails, it has changed nothing. Ids are 12 characters of plain ASCII, of which the last can be a blank; a
// text of 11 given as an id counts with a blank after it.
class Store {
public:
    // Makes a new empty database. Fails when a file stands at the path already.
    static std::unique_ptr<Store> create(const std::string& path, Clock clock = wall_clock);
    // Opens a database, bringing one of an older version up to date. A file that can't be written is opened for
    // reading alone.
    static std::unique_ptr<Store> open(const std::string& path, Clock clock = wall_clock);
    virtual ~Store() = default;

    virtual const std::string& path() const = 0;
    virtual bool is_read_only() const = 0;

    // A number that rises whenever any process changes the database. Costs no query of a table unless it has.
    virtual std::int64_t revision() = 0;

    // Until the end, all reading sees the file as the first of it does, and costs less; other processes aren't
    // kept from writing. Writing here ends it early.
    virtual void begin_reading() = 0;
    virtual void end_reading() = 0;

    virtual std::vector<User> users() = 0;         // by name
    virtual std::string add(const User& user) = 0; // gives the new id; an id that the record brings is kept
    virtual std::vector<Group> groups() = 0;       // by name
    virtual std::optional<Group> group(const std::string& id) = 0;
    virtual std::string add(const Group& group) = 0;
    virtual void update(const Group& group) = 0;

    // A contact field that isn't in contact_fields() can't be stored and fails with 381.
    virtual std::vector<Contact> contacts() = 0; // by company, then by contact name, upper and lower case alike
    virtual std::optional<Contact> contact(const std::string& id) = 0;
    virtual std::string add(const Contact& contact) = 0;
    virtual std::int64_t update(const Contact& contact) = 0; // as below for activities

    virtual std::vector<Note> notes(const std::string& contact) = 0; // newest first
    virtual std::string add(const Note& note) = 0;

    virtual std::vector<Activity> activities(const ActivityQuery& query) = 0;
    // At most so many of them, after the first so many.
    virtual std::vector<Activity> activities(const ActivityQuery& query, int skip, int most) = 0;
    virtual int count(const ActivityQuery& query) = 0;
    virtual std::optional<Activity> activity(const std::string& id) = 0;
    virtual std::string add(const Activity& activity) = 0;
    // Stores the record when nobody changed it since it was read (its revision tells) and gives its new
    // revision; else fails with an act::EditConflict and changes nothing.
    virtual std::int64_t update(const Activity& activity) = 0;
    virtual void remove_activity(const std::string& id) = 0;                    // an absent one is no failure
    virtual void add_exception(const std::string& activity, DateTime date) = 0; // the date counts, not the time
    virtual void remove_exception(const std::string& activity, DateTime date) = 0;

    virtual ActivityReading& reading() = 0;          // for those who keep what they have read (activity_reading.h)
    virtual ToolbarCommands& toolbar_commands() = 0; // buttons of other programs (toolbar_commands.h)
    virtual TemporaryInstances&
    temporary_instances() = 0;                       // of occurrences that are edited (temporary_instances.h)
    virtual ImportedRecords& imported_records() = 0; // what came from files (imported_records.h)

    // 16 hexadecimal digits, made by chance with the database: what it exports is told by them from what others
    // do.
    virtual std::string identity() = 0;

    // Several writes as one transaction: all of them or, when the block throws, none. Blocks may contain blocks.
    virtual void together(const std::function<void()>& block) = 0;

    // Writes all that the database holds to another file, which it replaces; also when its own has been deleted.
    // After each piece it tells how much is done, in any unit; false stops it. True when the copy stands;
    // otherwise what was at the path stays.
    using Progress = std::function<bool(int done, int all)>;
    virtual bool save_copy(const std::string& path, const Progress& progress) = 0;
};

} // namespace store
