#pragma once

#include "adapters/records/shared_store.h"
#include "core/act/database.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace records {

// A field's position is its number, so that gaps in the numbers are gaps in the positions.
class ContactFieldList final : public act::Fields {
public:
    int Count() const override;
    int ID(int position) const override;
    std::string Label(int id) const override;
    std::string Type(int id) const override;
    bool HasPopupList(int id) const override;
};

// Field 1 is the contact's id.
class ContactTable final : public act::Contact {
public:
    explicit ContactTable(std::shared_ptr<SharedStore> session) : session_(std::move(session)) {}
    act::Fields& Fields() override { return fields_; }
    bool Goto(const std::string& id) override;
    act::Value Data(int field) const override;
    void Data(int field, const act::Value& value) override;
    void Edit() override;
    std::string Update() override;

private:
    store::Contact& draft();

    std::shared_ptr<SharedStore> session_;
    ContactFieldList fields_;
    store::Id id_;                        // empty where there is no record
    std::optional<store::Contact> draft_; // between Edit and Update
};

class GroupTable final : public act::Group {
public:
    explicit GroupTable(std::shared_ptr<SharedStore> session) : session_(std::move(session)) {}
    bool Goto(const std::string& id) override;
    act::Value Data(int field) const override;

private:
    std::shared_ptr<SharedStore> session_;
    std::string id_; // empty where there is no record
};

class UserTable final : public act::Users {
public:
    explicit UserTable(std::vector<store::User> users) : users_(std::move(users)) {}
    int Count() const override { return static_cast<int>(users_.size()); }
    std::string uniqueID(int index) const override { return user(index).id; }
    std::string name(int index) const override { return user(index).name; }
    std::string Security(int index) const override { return user(index).security; }
    std::string Access(int index) const override { return user(index).access; }

private:
    const store::User& user(int index) const;

    std::vector<store::User> users_;
};

} // namespace records
