#pragma once

#include "desk/windows/open_database.h"

#include <QObject>

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace windows {

// The current lookup, the set of contacts that the windows go through, and the contact that they show.
class Lookup : public QObject {
    Q_OBJECT

public:
    explicit Lookup(OpenDatabase& database);

    // Called before another contact is shown; what it throws keeps the present one.
    std::function<void()> before_leaving;

    void show_all();
    // These contacts, of which unknown ones are left out, and shows the first.
    void show(const std::vector<std::string>& contacts);
    // The contacts of the database whose fields of these numbers hold the text, in any case.
    std::vector<std::string> matching(const std::string& text, const std::vector<int>& fields) const;
    // Puts a contact into the lookup, if it isn't there, and shows it.
    void include(const std::string& contact);
    // Shows a contact of the database, in the lookup or not, and leaves the lookup as it is. False for an unknown
    // one, and nothing changes.
    bool go_to(const std::string& contact);
    void step(int places); // along the lookup, as far as it goes

    const std::vector<std::string>& contacts() const { return contacts_; } // in the database's order
    const std::string& current() const { return current_; }                // empty for none
    int position() const; // of the current contact in the lookup, from 0; -1 outside

signals:
    void changed(); // other contacts are in it
    void current_changed();

private:
    void reread();
    void fill();
    void make_current(std::string contact);
    void replace(std::optional<std::set<std::string>> members);

    OpenDatabase& database_;
    std::optional<std::set<std::string>> members_; // absent for all contacts
    std::vector<std::string> contacts_;
    std::string current_;
};

} // namespace windows
