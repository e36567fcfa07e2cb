#pragma once

#include "desk/store/store.h"

#include <optional>
#include <string>
#include <vector>

namespace importing {

// For whom activities are scheduled: the user who was chosen; without a choice the one whom a desk's own file
// names, who is made where the database has nobody of that name, and else the database's first.
class Users {
public:
    // Fails with 440 when the database has no user of the chosen name. An empty name chooses nobody.
    Users(store::Store& store, const std::string& chosen);

    void tell(const store::User& user) { told_.push_back(user); } // how one is to be made
    // The id, empty where the file says that it is nobody's. Fails with 440 when the database has no user at all.
    std::string id_for(const std::optional<std::string>& told_name);
    std::string usual_id() const; // of the user chosen, else of the first; empty when there is none

    std::string name() const;    // of the user chosen, else of the first; empty when there is none
    std::string summary() const; // for whom there were activities

private:
    const store::User* find(const std::string& name) const;

    store::Store& store_;
    std::vector<store::User> users_, told_;
    std::string chosen_; // as the database has it
    std::vector<std::string> used_;
};

} // namespace importing
