#pragma once

#include "desk/windows/lookup.h"

#include <QWidget>

#include <memory>
#include <string>

namespace Ui {
class GroupsView;
}

namespace windows {

// The groups, and the contacts of the one that is chosen.
class GroupsView : public QWidget {
    Q_OBJECT

public:
    GroupsView(OpenDatabase& database, Lookup& lookup, QWidget* parent = nullptr);
    ~GroupsView() override;

signals:
    void opened(const std::string& contact);
    void looked_up(); // the group's contacts are the lookup now

private:
    void connect_buttons();
    void reload();
    void show_members();
    void show_buttons();
    void add_group();
    void rename_group();
    void add_contacts();
    void look_up();
    std::string group() const; // the chosen one, empty for none

    OpenDatabase& database_;
    Lookup& lookup_;
    std::unique_ptr<Ui::GroupsView> ui_;
};

} // namespace windows
