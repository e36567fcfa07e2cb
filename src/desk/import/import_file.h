#pragma once

#include "desk/import/activity_taking.h"
#include "desk/import/local_zone.h"
#include "desk/import/report.h"
#include "desk/import/work.h"
#include "desk/import/zones.h"
#include "desk/store/store.h"

#include <string>
#include <string_view>

// Takes what an iCalendar or a vCard file holds into the database.
//
// Times become wall-clock times of the local zone; a floating time stays what it is. An all-day entry starts at
// midnight and lasts its days of 1440 minutes each. An event without an end lasts no time, and a whole day when it
// has no time of day either. A to-do without a start stands at its due time.
//
// An activity's contacts are the entry's attendees and its organiser. One without any has the contact that is
// named as its calendar is, as an activity without a contact would be an empty cell.
//
// An entry that was imported before, for the same user, is known again by its UID and the date of the occurrence:
// what the file has changed since is changed, and what it has no longer is removed, as far as nobody changed it
// here; what was deleted here stays deleted unless it is asked for.
//
// A rule of recurrence becomes a series when the calendar shows that series on exactly the rule's dates; any other
// becomes single activities: at most `most_of_a_rule` of them, and of a rule without an end those up to
// `years_of_a_rule` years from today.
//
// How much work an import may be follows from the size of its file; an entry that would take a fourth of what is
// left, or more, is skipped.
namespace importing {

inline constexpr std::size_t largest_file = 64 * 1024 * 1024; // bytes
// Units of work (work.h).
inline constexpr std::size_t least_work = 100'000'000;
inline constexpr std::size_t work_for_a_byte = 200;
inline constexpr std::size_t most_of_a_rule = 1000;
inline constexpr int years_of_a_rule = 2;

struct Options {
    // The name of whom activities are scheduled for. Empty for those whom a desk's own file names and else for the
    // database's first.
    std::string user{};
    store::DateTime now = store::wall_clock();
    LocalTime local_time = system_local_time;
    Deleted deleted = Deleted::stay_deleted;
    ZoneNames other_zone_names{}; // of zones that the machine doesn't know by the file's name
    Progress progress{};          // told often; false cancels the import
};

// All or nothing: a failure (values::Failure, with a sentence for the user) leaves the database as it was. It
// comes when the file can't be read or is no whole file of these kinds, when the user isn't there, when the import
// is cancelled, and from the store. An entry that can't be taken though the file is sound is told in the report.
Report import_file(store::Store& store, const std::string& path, const Options& options = {});

// The same for what such a file holds; the name is for messages alone.
Report import_bytes(store::Store& store, std::string_view bytes, const std::string& name, const Options& options);

// Whether a desk wrote the file and names in it whose activities they are. False also for what can't be read.
bool names_users(const std::string& path);

} // namespace importing
