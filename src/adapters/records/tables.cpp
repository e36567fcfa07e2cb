#include "adapters/records/tables.h"

#include "core/act/edit_conflict.h"
#include "core/values/failure.h"
#include "core/values/ids.h"
#include "core/values/value.h"
#include "desk/store/contact_fields.h"

#include <algorithm>

namespace records {

using act::Value;
using values::Failure;
using values::FailureNumber;

namespace {

constexpr int id_field = 1;
constexpr int group_name_field = 25;

const store::ContactField* field_of(int number) {
    const auto& fields = store::contact_fields();
    const auto found = std::lower_bound(fields.begin(), fields.end(), number,
                                        [](const store::ContactField& field, int n) { return field.number < n; });
    return found != fields.end() && found->number == number ? &*found : nullptr;
}

const store::ContactField& existing_field(int number) {
    const store::ContactField* field = field_of(number);
    if (!field)
        throw Failure(FailureNumber::invalid_property_index);
    return *field;
}

} // namespace

int ContactFieldList::Count() const { return static_cast<int>(store::contact_fields().size()); }

int ContactFieldList::ID(int position) const { return field_of(position) ? position : -1; }

std::string ContactFieldList::Label(int id) const { return std::string(existing_field(id).label); }

std::string ContactFieldList::Type(int id) const { return std::string(existing_field(id).type); }

bool ContactFieldList::HasPopupList(int id) const { return existing_field(id).has_popup_list; }

bool ContactTable::Goto(const std::string& id) {
    draft_.reset();
    session_->catch_up();
    id_ = id_of(id);
    if (!id_.empty() && !session_->contacts().exists(id_))
        id_ = {};
    return !id_.empty();
}

Value ContactTable::Data(int field) const {
    if (id_.empty())
        return {};
    if (field == id_field)
        return id_.text();
    if (draft_ && field_of(field)) {
        const auto typed = draft_->fields.find(field);
        return typed == draft_->fields.end() ? std::string() : typed->second;
    }
    const std::string* value = field_of(field) ? session_->contacts().field(id_, field) : nullptr;
    return value ? Value(*value) : Value();
}

void ContactTable::Data(int field, const Value& value) {
    store::Contact& contact = draft();
    if (field == id_field)
        throw Failure(FailureNumber::automation, "The id of a contact can't be set.");
    contact.fields[existing_field(field).number] = values::text_of(value, session_->locale());
}

void ContactTable::Edit() {
    draft_.reset();
    if (id_.empty())
        throw Failure(FailureNumber::object_not_set);
    draft_ = session_->store().contact(id_.text());
    if (!draft_)
        throw act::EditConflict(act::EditConflict::Cause::deleted, "The contact was deleted by somebody else.");
}

std::string ContactTable::Update() {
    session_->store().update(draft());
    session_->contacts().forget(id_);
    draft_.reset();
    return id_.text();
}

store::Contact& ContactTable::draft() {
    if (!draft_)
        throw Failure(FailureNumber::automation, "No contact is being edited.");
    return *draft_;
}

bool GroupTable::Goto(const std::string& id) {
    session_->catch_up();
    id_ = session_->group_name(id) ? values::whole_id(id) : std::string();
    return !id_.empty();
}

Value GroupTable::Data(int field) const {
    if (id_.empty())
        return {};
    if (field == id_field)
        return id_;
    const std::string* name = field == group_name_field ? session_->group_name(id_) : nullptr;
    return name ? Value(*name) : Value();
}

const store::User& UserTable::user(int index) const {
    if (index < 1 || index > Count())
        throw Failure(FailureNumber::subscript_out_of_range);
    return users_[static_cast<std::size_t>(index - 1)];
}

} // namespace records
