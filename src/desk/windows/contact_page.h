#pragma once

#include "desk/windows/contact_form.h"
#include "desk/windows/lookup.h"

#include <QWidget>

#include <memory>
#include <string>

namespace Ui {
class ContactPage;
}

namespace windows {

class ActivityList;
class GroupsTab;
class NotesTab;

// The contact that the lookup shows: its details, and tabs with its activities, notes and groups. What has been
// typed is stored by the Save button and whenever another contact is shown.
class ContactPage : public QWidget {
    Q_OBJECT

public:
    ContactPage(OpenDatabase& database, Lookup& lookup, QWidget* parent = nullptr);
    ~ContactPage() override;

    ActivityList& activities() { return *activities_; }

    // "Activities", "Notes" or "Groups".
    std::string active_tab() const;
    void set_active_tab(const std::string& name); // fails with 440 for a name that there is not

    // Clears the page for a contact that doesn't exist yet; saving adds it. What was typed before is stored first.
    void begin_new();
    void focus_first_field();

    // Stores what has been typed. Failures are the store's; what was typed then stays.
    void save();
    void undo();

private:
    void show_current();
    void show_again(); // the same contact as the database has it now
    void show_heading();
    void show_contact(const store::Contact& contact);
    void connect_parts();

    OpenDatabase& database_;
    Lookup& lookup_;
    std::unique_ptr<Ui::ContactPage> ui_;
    ContactForm* form_;
    ActivityList* activities_;
    NotesTab* notes_;
    GroupsTab* groups_;
    bool is_new_ = false;
};

} // namespace windows
