#pragma once

#include "desk/windows/lookup.h"

#include <QWidget>

#include <string>

namespace windows {

class RecordTable;

// The contacts of the current lookup as a table. The row that is chosen is the contact that is shown.
class ContactList : public QWidget {
    Q_OBJECT

public:
    ContactList(OpenDatabase& database, Lookup& lookup, QWidget* parent = nullptr);

signals:
    void opened(const std::string& contact);

private:
    void reload();
    void follow(const std::string& contact);

    OpenDatabase& database_;
    Lookup& lookup_;
    RecordTable* table_;
};

} // namespace windows
