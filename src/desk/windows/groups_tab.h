#pragma once

#include "desk/windows/open_database.h"

#include <QListWidget>
#include <QWidget>

#include <string>

namespace windows {

// All groups, each ticked when the contact belongs to it. A tick takes effect at once.
class GroupsTab : public QWidget {
    Q_OBJECT

public:
    explicit GroupsTab(OpenDatabase& database, QWidget* parent = nullptr);

    void show_contact(const std::string& contact); // empty for none

private:
    void reload();
    void take_tick(const QListWidgetItem& item);

    OpenDatabase& database_;
    QListWidget* list_;
    std::string contact_;
};

} // namespace windows
