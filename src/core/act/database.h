#pragma once

#include "core/act/activity.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace act {

// The contact fields by position. Positions have gaps, and a gap gives the id -1. The other members take a
// field's id; one that there is not fails with 381.
class Fields {
public:
    virtual ~Fields() = default;
    virtual int Count() const = 0;
    virtual int ID(int position) const = 0;
    virtual std::string Label(int id) const = 0;
    virtual std::string Type(int id) const = 0; // the store's own number for the kind of field, as text
    virtual bool HasPopupList(int id) const = 0;
};

// Edit fails with 91 where there is no current record.
class Contact {
public:
    virtual ~Contact() = default;
    virtual class Fields& Fields() = 0;
    virtual bool Goto(const std::string& id) = 0; // false, and no current record, when it doesn't exist
    virtual Value Data(int field) const = 0;      // nothing without a record, or for a field that there is not
    // Only between Edit and Update, else with 440, as for the id, which stays; a field that there is not fails
    // with 381. A value that is no text is stored in its text form.
    virtual void Data(int field, const Value& value) = 0;
    virtual void Edit() = 0; // a change that Update hasn't stored is given up by this and by Goto
    // As act::Activity::Update.
    virtual std::string Update() = 0;
};

class Group {
public:
    virtual ~Group() = default;
    virtual bool Goto(const std::string& id) = 0;
    virtual Value Data(int field) const = 0; // 1 the id, 25 the name
};

// The database's users, by index from 1. An index outside 1 to Count fails with 9.
class Users {
public:
    virtual ~Users() = default;
    virtual int Count() const = 0;
    virtual std::string uniqueID(int index) const = 0; // 12 characters, the last can be a blank
    virtual std::string name(int index) const = 0;
    virtual std::string Security(int index) const = 0;
    virtual std::string Access(int index) const = 0;
};

// The data access root. The tables belong to it and live until Close, but for the activity lists: each call of
// Activity makes a new one.
class Database {
public:
    virtual ~Database() = default;
    // Opens the database at a path, or with "" the one that the running application has open. Fails with 440
    // and a sentence that says why.
    virtual void OpenEx(const std::string& path) = 0;
    virtual void Close() = 0;
    virtual class Contact& Contact() = 0;
    virtual std::unique_ptr<class Activity> Activity() = 0;
    virtual class Users& Users() = 0;
    virtual class Group& Group() = 0;

    // Looks once what other programs have changed, and not again as long as the result lives: what many records
    // are read for then tells of one moment. Empty where nothing is gained by it.
    virtual std::shared_ptr<void> One_Look() { return nullptr; }
    // Of the last look, for Activity::IdsGoneSince: greater after each change, and never the same for two
    // states of the database. Meaningful while it stays open.
    virtual std::int64_t Moment() { return 0; }

    // An activity that stands for an occurrence while it is edited is remembered durably. Its program says when it
    // is made, so that what changes it afterwards counts as the user's work, and when it is kept or gone. Those of
    // programs that died before that are taken back: where the user changed nothing, the activity goes and the
    // series has its occurrence again; the others stay, and are given.
    struct LeftInstance {
        std::string regarding;
        values::DateTime day;
    };
    virtual void Instance_Is_Made([[maybe_unused]] const std::string& instance) {}
    virtual void Forget_Instance([[maybe_unused]] const std::string& instance) {}
    virtual std::vector<LeftInstance> Take_Back_Instances() { return {}; }
};

} // namespace act
