#include "desk/store/sql.h"

// The tables of each version of the database.
namespace store::sql {

namespace {

constexpr std::string_view tables_of_version_1 = R"(
CREATE TABLE counters (
    name TEXT NOT NULL PRIMARY KEY,
    value INTEGER NOT NULL
);
INSERT INTO counters (name, value)
    VALUES ('revision', 0), ('users', 0), ('groups', 0), ('contacts', 0), ('notes', 0), ('activities', 0);

CREATE TABLE users (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    name TEXT NOT NULL,
    security TEXT NOT NULL,
    access TEXT NOT NULL
);

CREATE TABLE contacts (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    company TEXT NOT NULL,
    name TEXT NOT NULL,
    address TEXT NOT NULL,
    address_2 TEXT NOT NULL,
    address_3 TEXT NOT NULL,
    city TEXT NOT NULL,
    state TEXT NOT NULL,
    postcode TEXT NOT NULL,
    country TEXT NOT NULL,
    status TEXT NOT NULL,
    phone TEXT NOT NULL,
    fax TEXT NOT NULL,
    home_phone TEXT NOT NULL,
    mobile TEXT NOT NULL,
    pager TEXT NOT NULL,
    salutation TEXT NOT NULL,
    title TEXT NOT NULL,
    department TEXT NOT NULL,
    birthday TEXT NOT NULL,
    e_mail TEXT NOT NULL,
    web_site TEXT NOT NULL,
    referred_by TEXT NOT NULL,
    extension TEXT NOT NULL,
    record_creator TEXT NOT NULL,
    record_manager TEXT NOT NULL
);
CREATE INDEX contacts_changed ON contacts (revision);

CREATE TABLE contact_groups (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    name TEXT NOT NULL
);
CREATE TABLE group_members (
    contact_group TEXT NOT NULL REFERENCES contact_groups (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
    PRIMARY KEY (contact_group, position)
);

CREATE TABLE notes (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
    written_at INTEGER NOT NULL,
    text TEXT NOT NULL
);
CREATE INDEX notes_of_contact ON notes (contact, written_at);

CREATE TABLE activities (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    edited_at INTEGER NOT NULL,
    type INTEGER NOT NULL,
    priority INTEGER NOT NULL,
    regarding TEXT NOT NULL,
    starts_at INTEGER,
    ends_at INTEGER NOT NULL,
    duration INTEGER NOT NULL,
    private INTEGER NOT NULL,
    alarm INTEGER NOT NULL,
    alarm_lead INTEGER NOT NULL,
    colour INTEGER,
    scheduled_for TEXT REFERENCES users (id),
    contact_group TEXT REFERENCES contact_groups (id),
    contact TEXT REFERENCES contacts (id),
    contact_count INTEGER NOT NULL,
    cleared INTEGER NOT NULL,
    result TEXT NOT NULL,
    details TEXT NOT NULL,
    has_details INTEGER NOT NULL,
    recurrence INTEGER NOT NULL,
    frequency INTEGER NOT NULL,
    until INTEGER,
    days_of_week INTEGER NOT NULL,
    weeks_of_month INTEGER NOT NULL,
    days_of_month INTEGER NOT NULL
);
-- The list's order with what a walk over all of it needs.
CREATE INDEX activities_in_order ON activities
    (starts_at, id, edited_at, type, priority, cleared, recurrence);
-- The series, with everything that their rows are read for.
CREATE INDEX activities_recurring ON activities
    (starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, revision, scheduled_for, contact_group,
     contact, contact_count, duration, alarm_lead, colour, private, alarm, has_details, frequency, until,
     days_of_week, weeks_of_month, days_of_month, regarding)
    WHERE recurrence <> 0;
CREATE INDEX activities_changed ON activities (revision);
CREATE INDEX activities_of_contact ON activities (contact);

CREATE TABLE further_contacts (
    activity TEXT NOT NULL REFERENCES activities (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id),
    PRIMARY KEY (activity, position)
);
CREATE INDEX further_contacts_of_contact ON further_contacts (contact, activity);

CREATE TABLE exceptions (
    activity TEXT NOT NULL REFERENCES activities (id) ON DELETE CASCADE,
    date INTEGER NOT NULL,
    PRIMARY KEY (activity, date)
);

CREATE TABLE removed_activities (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL
);
CREATE INDEX removed_activities_changed ON removed_activities (revision);

CREATE TABLE toolbar_commands (
    name TEXT NOT NULL PRIMARY KEY,
    program TEXT NOT NULL,
    folder TEXT NOT NULL,
    title TEXT NOT NULL,
    caption TEXT NOT NULL,
    icon TEXT NOT NULL,
    large_icon TEXT NOT NULL,
    flag INTEGER NOT NULL
);
CREATE TABLE toolbar_places (
    command TEXT NOT NULL REFERENCES toolbar_commands (name) ON DELETE CASCADE,
    place INTEGER NOT NULL,
    view INTEGER NOT NULL,
    PRIMARY KEY (command, place, view)
);
)";

constexpr std::string_view changes_of_version_2 = R"(
-- The series by their end, so that those which are over needn't be read, with all that their rows are read for.
DROP INDEX activities_recurring;
CREATE INDEX activities_recurring ON activities
    (until, starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, revision, scheduled_for,
     contact_group, contact, contact_count, duration, alarm_lead, colour, private, alarm, has_details, frequency,
     days_of_week, weeks_of_month, days_of_month, regarding)
    WHERE recurrence <> 0;
CREATE INDEX activities_edited ON activities (edited_at);
)";

constexpr std::string_view changes_of_version_3 = R"(
-- What came from files, so that it is found again when the file comes again. A record may have been deleted since.
CREATE TABLE imported_records (
    kind INTEGER NOT NULL,
    scheduled_for TEXT NOT NULL,
    uid TEXT NOT NULL,
    occurrence TEXT NOT NULL,
    record TEXT NOT NULL,
    told TEXT NOT NULL,
    kept TEXT NOT NULL,
    PRIMARY KEY (kind, scheduled_for, uid, occurrence)
);
-- A number of this database's own, by which what it exports is told from what others export.
INSERT INTO counters (name, value) VALUES ('identity', random());
)";

constexpr std::string_view changes_of_version_4 = R"(
-- Instances that stand for an occurrence while it is edited, by the process that edits it.
CREATE TABLE temporary_instances (
    instance TEXT NOT NULL PRIMARY KEY,
    series TEXT NOT NULL,
    day INTEGER NOT NULL,
    owner TEXT NOT NULL,
    settled_revision INTEGER
);
)";

} // namespace

std::string_view create_tables() { return tables_of_version_1; }
std::string_view change_to_version_2() { return changes_of_version_2; }
std::string_view change_to_version_3() { return changes_of_version_3; }
std::string_view change_to_version_4() { return changes_of_version_4; }

} // namespace store::sql
