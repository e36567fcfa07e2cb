#pragma once

#include "desk/model/directory.h"

#include <QListWidget>
#include <QPushButton>
#include <QWidget>

#include <string>
#include <vector>

namespace windows {

// A list of contacts, to which the user adds and from which they remove. The first is the activity's own contact.
class ContactChooser : public QWidget {
    Q_OBJECT

public:
    explicit ContactChooser(QWidget* parent = nullptr);

    void show_contacts(const std::vector<std::string>& contacts, const model::Directory& directory);
    std::vector<std::string> contacts() const;

private:
    void add(const std::string& contact);
    void pick();

    model::Directory directory_;
    QListWidget* list_;
    QPushButton* remove_button_;
};

} // namespace windows
