-- A database as version 2 of its tables left it.
PRAGMA application_id = 1330796110;
PRAGMA user_version = 2;
PRAGMA foreign_keys=OFF;
BEGIN TRANSACTION;
CREATE TABLE counters (
    name TEXT NOT NULL PRIMARY KEY,
    value INTEGER NOT NULL
);
INSERT INTO counters VALUES('revision',9);
INSERT INTO counters VALUES('users',1);
INSERT INTO counters VALUES('groups',1);
INSERT INTO counters VALUES('contacts',2);
INSERT INTO counters VALUES('notes',1);
INSERT INTO counters VALUES('activities',3);
CREATE TABLE users (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    name TEXT NOT NULL,
    security TEXT NOT NULL,
    access TEXT NOT NULL
);
INSERT INTO users VALUES('U00000000001',1,'Ann Lee','Administrator','Enabled');
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
INSERT INTO contacts VALUES('C00000000001',2,'Hooper Ltd.','Max Hooper','','','','','','','','','','','','','','','','','','','','','','','');
INSERT INTO contacts VALUES('C00000000002',3,'Hooper Ltd.','Eve Hooper','','','','','','','','','','','','','','','','','','','','','','','');
CREATE TABLE contact_groups (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    name TEXT NOT NULL
);
INSERT INTO contact_groups VALUES('G00000000001',4,'Suppliers');
CREATE TABLE group_members (
    contact_group TEXT NOT NULL REFERENCES contact_groups (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
    PRIMARY KEY (contact_group, position)
);
INSERT INTO group_members VALUES('G00000000001',0,'C00000000001');
CREATE TABLE notes (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
    written_at INTEGER NOT NULL,
    text TEXT NOT NULL
);
INSERT INTO notes VALUES('N00000000001',5,'C00000000001',3918456000,'Called about the offer.');
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
INSERT INTO activities VALUES('A00000000001',6,3919309200,1,2,'Weekly meeting',3919312800,3919316400,60,0,0,0,NULL,'U00000000001',NULL,NULL,0,0,'','',0,2,1,3944764800,2,0,0);
INSERT INTO activities VALUES('A00000000002',7,3919309200,0,0,'Offer',3919395600,3919397400,30,0,0,0,255,'U00000000001','G00000000001','C00000000001',2,0,'','Bring the slides.',1,0,1,NULL,0,0,0);
CREATE TABLE further_contacts (
    activity TEXT NOT NULL REFERENCES activities (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id),
    PRIMARY KEY (activity, position)
);
INSERT INTO further_contacts VALUES('A00000000002',1,'C00000000002');
CREATE TABLE exceptions (
    activity TEXT NOT NULL REFERENCES activities (id) ON DELETE CASCADE,
    date INTEGER NOT NULL,
    PRIMARY KEY (activity, date)
);
INSERT INTO exceptions VALUES('A00000000001',3919881600);
CREATE TABLE removed_activities (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL
);
INSERT INTO removed_activities VALUES('A00000000003',9);
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
CREATE INDEX contacts_changed ON contacts (revision);
CREATE INDEX notes_of_contact ON notes (contact, written_at);
CREATE INDEX activities_in_order ON activities
    (starts_at, id, edited_at, type, priority, cleared, recurrence);
CREATE INDEX activities_changed ON activities (revision);
CREATE INDEX activities_of_contact ON activities (contact);
CREATE INDEX further_contacts_of_contact ON further_contacts (contact, activity);
CREATE INDEX removed_activities_changed ON removed_activities (revision);
CREATE INDEX activities_recurring ON activities
    (until, starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, revision, scheduled_for,
     contact_group, contact, contact_count, duration, alarm_lead, colour, private, alarm, has_details, frequency,
     days_of_week, weeks_of_month, days_of_month, regarding)
    WHERE recurrence <> 0;
CREATE INDEX activities_edited ON activities (edited_at);
COMMIT;
