#include "desk/windows/lookup.h"

#include "core/values/text.h"

#include <algorithm>
#include <utility>

namespace windows {
namespace {

bool has_text(const store::Contact& contact, const std::string& lower_text, const std::vector<int>& fields) {
    return std::any_of(fields.begin(), fields.end(), [&](int field) {
        return values::contains(values::lower(model::field_of(contact, field)), lower_text);
    });
}

} // namespace

Lookup::Lookup(OpenDatabase& database) : database_(database) {
    connect(&database, &OpenDatabase::opened, this, [this] { members_.reset(); });
    connect(&database, &OpenDatabase::changed, this, &Lookup::reread);
    reread();
}

void Lookup::show_all() { replace(std::nullopt); }

void Lookup::show(const std::vector<std::string>& contacts) {
    replace(std::set(contacts.begin(), contacts.end()));
}

std::vector<std::string> Lookup::matching(const std::string& text, const std::vector<int>& fields) const {
    std::vector<std::string> found;
    const std::string lower_text = values::lower(text);
    for (const store::Contact& contact : database_.directory().contacts())
        if (has_text(contact, lower_text, fields))
            found.push_back(contact.id);
    return found;
}

void Lookup::include(const std::string& contact) {
    if (members_)
        members_->insert(contact);
    fill();
    emit changed();
    go_to(contact);
}

bool Lookup::go_to(const std::string& contact) {
    if (!database_.directory().contact(contact))
        return false;
    make_current(contact);
    return true;
}

void Lookup::step(int places) {
    if (contacts_.empty())
        return;
    const int last = static_cast<int>(contacts_.size()) - 1;
    make_current(contacts_[static_cast<std::size_t>(std::clamp(position() + places, 0, last))]);
}

int Lookup::position() const {
    const auto place = std::find(contacts_.begin(), contacts_.end(), current_);
    return place == contacts_.end() ? -1 : static_cast<int>(place - contacts_.begin());
}

// The contacts that have gone leave the lookup; nothing can be kept on a contact that is no more.
void Lookup::reread() {
    fill();
    const std::string before = current_;
    if (!database_.directory().contact(current_))
        current_ = contacts_.empty() ? std::string() : contacts_.front();
    emit changed();
    if (current_ != before)
        emit current_changed();
}

void Lookup::fill() {
    contacts_.clear();
    for (const store::Contact& contact : database_.directory().contacts())
        if (!members_ || members_->contains(contact.id))
            contacts_.push_back(contact.id);
}

// The id is a copy: leaving may store what was typed, and the lookup is then filled again.
void Lookup::make_current(std::string contact) {
    if (before_leaving)
        before_leaving();
    if (contact == current_)
        return;
    current_ = std::move(contact);
    emit current_changed();
}

void Lookup::replace(std::optional<std::set<std::string>> members) {
    if (before_leaving)
        before_leaving();
    members_ = std::move(members);
    fill();
    emit changed();
    make_current(contacts_.empty() ? std::string() : contacts_.front());
}

} // namespace windows
