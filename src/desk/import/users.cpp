#include "desk/import/users.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/import/activity_text.h"

#include <algorithm>
#include <initializer_list>

namespace importing {
namespace {

[[noreturn]] void fail(const std::string& sentence) {
    throw values::Failure(values::FailureNumber::automation, sentence);
}

bool is_one_of(const std::string& text, std::initializer_list<std::string_view> words) {
    return std::ranges::find(words, text) != words.end();
}

// What a file tells isn't trusted further than the words that there are.
store::User made_as(const std::vector<store::User>& told, const std::string& name) {
    const auto same = [&](const store::User& user) { return values::equal_ignoring_case(user.name, name); };
    const auto place = std::ranges::find_if(told, same);
    store::User user{.name = name, .security = "Standard", .access = "Enabled"};
    if (place != told.end() && is_one_of(place->security, {"Administrator", "Standard", "Browse"}))
        user.security = place->security;
    if (place != told.end() && is_one_of(place->access, {"Enabled", "Disabled"}))
        user.access = place->access;
    return user;
}

} // namespace

Users::Users(store::Store& store, const std::string& chosen) : store_(store), users_(store.users()) {
    if (chosen.empty())
        return;
    if (const store::User* user = find(chosen)) {
        chosen_ = user->name;
        return;
    }
    std::string names;
    for (const store::User& user : users_)
        names += (names.empty() ? "" : ", ") + user.name;
    fail("There is no user \"" + chosen + "\". The users are: " + names + ".");
}

const store::User* Users::find(const std::string& name) const {
    const auto same = [&](const store::User& user) { return values::equal_ignoring_case(user.name, name); };
    const auto place = std::ranges::find_if(users_, same);
    return place == users_.end() ? nullptr : &*place;
}

std::string Users::name() const { return !chosen_.empty() || users_.empty() ? chosen_ : users_.front().name; }

std::string Users::usual_id() const {
    const store::User* user = find(name());
    return user ? user->id : std::string();
}

std::string Users::id_for(const std::optional<std::string>& told_name) {
    const std::string wanted = chosen_.empty() && told_name ? single_line(*told_name) : name();
    if (wanted.empty() && told_name)
        return {};
    if (wanted.empty())
        fail("The database has no user for whom activities could be scheduled.");
    if (!find(wanted)) {
        store::User user = made_as(told_, wanted);
        user.id = store_.add(user);
        users_.push_back(user);
    }
    const store::User& user = *find(wanted);
    if (std::ranges::find(used_, user.name) == used_.end())
        used_.push_back(user.name);
    return user.id;
}

std::string Users::summary() const {
    return used_.size() > 1 ? std::to_string(used_.size()) + " users" : used_.empty() ? name() : used_.front();
}

} // namespace importing
