#pragma once

#include "desk/store/store.h"

#include <string>
#include <string_view>
#include <vector>

// Every SQL text of the store, so that another engine can take the data over by these files alone (sql.h for the
// statements, sql.cpp for those that are put together, schema_scripts.cpp for the tables). Times are seconds since
// 1899-12-30 00:00, dates likewise; absent ids are NULL.
namespace store::sql {

// The state of a new connection, and of a new database's file.
inline constexpr std::string_view set_up = "PRAGMA foreign_keys = ON;"
                                           "PRAGMA synchronous = FULL;"
                                           "PRAGMA cell_size_check = ON;"
                                           "PRAGMA cache_size = -32000;";
inline constexpr std::string_view write_ahead = "PRAGMA journal_mode = WAL";
// For a file that nobody else knows of yet.
inline constexpr std::string_view without_journal = "PRAGMA journal_mode = OFF";
inline constexpr std::string_view application_id = "PRAGMA application_id";
inline constexpr std::string_view schema_version = "PRAGMA user_version";
inline constexpr std::string_view data_version = "PRAGMA data_version";
std::string set_application_id(int id);
std::string set_schema_version(int version);
const std::vector<std::string_view>& tables();
std::string probe(std::string_view table);
std::string_view create_tables(); // those of version 1
std::string_view change_to_version_2();
std::string_view change_to_version_3();
std::string_view change_to_version_4();

inline constexpr std::string_view begin = "BEGIN IMMEDIATE";
inline constexpr std::string_view begin_reading = "BEGIN";
inline constexpr std::string_view commit = "COMMIT";
inline constexpr std::string_view roll_back = "ROLLBACK";
inline constexpr std::string_view begin_inner = "SAVEPOINT inner_block";
inline constexpr std::string_view commit_inner = "RELEASE inner_block";
inline constexpr std::string_view roll_back_inner = "ROLLBACK TO inner_block";

inline constexpr std::string_view counter = "SELECT value FROM counters WHERE name = ?";
inline constexpr std::string_view set_counter = "UPDATE counters SET value = ? WHERE name = ?";

inline constexpr std::string_view users = "SELECT id, name, security, access FROM users ORDER BY lower(name), id";
inline constexpr std::string_view add_user =
    "INSERT INTO users (id, revision, name, security, access) VALUES (?, ?, ?, ?, ?)";

inline constexpr std::string_view groups = "SELECT id, name FROM contact_groups ORDER BY lower(name), id";
inline constexpr std::string_view group = "SELECT id, name FROM contact_groups WHERE id = ?";
inline constexpr std::string_view add_group = "INSERT INTO contact_groups (id, revision, name) VALUES (?, ?, ?)";
inline constexpr std::string_view update_group = "UPDATE contact_groups SET revision = ?, name = ? WHERE id = ?";
inline constexpr std::string_view group_members =
    "SELECT contact FROM group_members WHERE contact_group = ? ORDER BY position";
inline constexpr std::string_view add_group_member =
    "INSERT INTO group_members (contact_group, position, contact) VALUES (?, ?, ?)";
inline constexpr std::string_view clear_group_members = "DELETE FROM group_members WHERE contact_group = ?";

// Contacts: id and revision, then the fields in the order of contact_fields().
std::string_view contacts();
std::string_view contact();
std::string contact_fields(const std::vector<int>& numbers); // of one contact; as columns in this order
std::string_view add_contact();
std::string_view update_contact(); // revision and fields, where id and the revision as read
inline constexpr std::string_view contact_exists = "SELECT 1 FROM contacts WHERE id = ?";
inline constexpr std::string_view changed_contacts = "SELECT id FROM contacts WHERE revision > ?";

inline constexpr std::string_view notes =
    "SELECT id, contact, written_at, text FROM notes WHERE contact = ? ORDER BY written_at DESC, id DESC";
inline constexpr std::string_view add_note =
    "INSERT INTO notes (id, revision, contact, written_at, text) VALUES (?, ?, ?, ?, ?)";

// Activities, whole: the order of the columns in `activities`, `activity`, `add_activity`, `update_activity`
// (which ends with the id and the revision as read).
// The values of a query are parameters: from, to, users, contact twice.
std::string activities(const ActivityQuery& query);
std::string activities(const ActivityQuery& query, int skip, int most);
std::string count_activities(const ActivityQuery& query); // one number
std::string_view activity();
std::string_view add_activity();
std::string_view update_activity();
inline constexpr std::string_view activity_exists = "SELECT 1 FROM activities WHERE id = ?";
inline constexpr std::string_view touch_activity =
    "UPDATE activities SET revision = ?, edited_at = ? WHERE id = ?";
inline constexpr std::string_view remove_activity = "DELETE FROM activities WHERE id = ?";
inline constexpr std::string_view log_removal = "INSERT INTO removed_activities (id, revision) VALUES (?, ?)";
inline constexpr std::string_view forget_removal = "DELETE FROM removed_activities WHERE id = ?";
inline constexpr std::string_view removed_activities = "SELECT id FROM removed_activities WHERE revision > ?";

inline constexpr std::string_view further_contacts =
    "SELECT contact FROM further_contacts WHERE activity = ? ORDER BY position";
inline constexpr std::string_view add_further_contact =
    "INSERT INTO further_contacts (activity, position, contact) VALUES (?, ?, ?)";
inline constexpr std::string_view clear_further_contacts = "DELETE FROM further_contacts WHERE activity = ?";

inline constexpr std::string_view exceptions = "SELECT date FROM exceptions WHERE activity = ? ORDER BY date";
inline constexpr std::string_view all_exceptions = "SELECT activity, date FROM exceptions ORDER BY activity, date";
inline constexpr std::string_view add_exception = // to a series alone
    "INSERT INTO exceptions (activity, date) SELECT id, ?2 FROM activities WHERE id = ?1 AND recurrence <> 0"
    " ON CONFLICT DO NOTHING";
inline constexpr std::string_view remove_exception = "DELETE FROM exceptions WHERE activity = ? AND date = ?";
inline constexpr std::string_view clear_exceptions = "DELETE FROM exceptions WHERE activity = ?";

// Activities for those who keep them, without the long texts: in one order of columns for all of the rows.
std::string_view entries();
std::string_view edited_entries(); // edit date
std::string_view row();
std::string_view ending_series();  // first date, last start
std::string_view endless_series(); // last start
std::string_view rows_in_scope();  // from, to
std::string_view rows_from();      // start, id, count
std::string_view rows_without_start();
std::string_view changed_rows(); // revision
// An id that the store can't have made: its own begin with an A.
inline constexpr std::string_view foreign_ids =
    "SELECT 1 FROM activities WHERE id < 'A' UNION ALL SELECT 1 FROM activities WHERE id >= 'B' LIMIT 1";
inline constexpr std::string_view details = "SELECT details FROM activities WHERE id = ?";
inline constexpr std::string_view first_contact = "SELECT contact FROM activities WHERE id = ?";

inline constexpr std::string_view imported_records = // kind, user, uid
    "SELECT occurrence, record, told, kept FROM imported_records WHERE kind = ? AND scheduled_for = ? AND uid = ?"
    " ORDER BY occurrence";
inline constexpr std::string_view add_imported_record =
    "INSERT INTO imported_records (kind, scheduled_for, uid, occurrence, record, told, kept)"
    " VALUES (?, ?, ?, ?, ?, ?, ?)";
inline constexpr std::string_view remove_imported_record =
    "DELETE FROM imported_records WHERE kind = ? AND scheduled_for = ? AND uid = ? AND occurrence = ?";

inline constexpr std::string_view commands =
    "SELECT name, program, folder, title, caption, icon, large_icon, flag FROM toolbar_commands ORDER BY name";
inline constexpr std::string_view commands_at =
    "SELECT c.name, c.program, c.folder, c.title, c.caption, c.icon, c.large_icon, c.flag FROM toolbar_commands c"
    " JOIN toolbar_places p ON p.command = c.name WHERE p.place = ? AND p.view = ? ORDER BY c.name";
inline constexpr std::string_view command_exists = "SELECT 1 FROM toolbar_commands WHERE name = ?";
inline constexpr std::string_view add_command =
    "INSERT INTO toolbar_commands (name, program, folder, title, caption, icon, large_icon, flag)"
    " VALUES (?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT (name) DO UPDATE SET program = excluded.program,"
    " folder = excluded.folder, title = excluded.title, caption = excluded.caption, icon = excluded.icon,"
    " large_icon = excluded.large_icon, flag = excluded.flag";
inline constexpr std::string_view command_stands =
    "SELECT 1 FROM toolbar_places WHERE command = ? AND place = ? AND view = ?";
inline constexpr std::string_view place_command =
    "INSERT INTO toolbar_places (command, place, view) VALUES (?, ?, ?) ON CONFLICT DO NOTHING";
inline constexpr std::string_view displace_command =
    "DELETE FROM toolbar_places WHERE command = ? AND place = ? AND view = ?";

inline constexpr std::string_view instances =
    "SELECT instance, series, day, owner, settled_revision FROM temporary_instances ORDER BY instance";
inline constexpr std::string_view remember_instance =
    "INSERT INTO temporary_instances (instance, series, day, owner) VALUES (?, ?, ?, ?)";
inline constexpr std::string_view settle_instance =
    "UPDATE temporary_instances SET settled_revision = (SELECT revision FROM activities WHERE id = instance)"
    " WHERE instance = ?";
inline constexpr std::string_view forget_instance = "DELETE FROM temporary_instances WHERE instance = ?";

} // namespace store::sql
