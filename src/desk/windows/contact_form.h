#pragma once

#include "desk/store/records.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QObject>

#include <map>

namespace windows {

// The detail fields of a contact as labelled lines in a grid, all the fields that the store has.
class ContactForm : public QObject {
    Q_OBJECT

public:
    // Puts its lines into the grid, which belongs to the page.
    ContactForm(QGridLayout& grid, QWidget* page);

    void show_contact(const store::Contact& contact);
    // The record with what has been typed.
    store::Contact contact() const;
    bool is_changed() const { return contact().fields != shown_.fields; }

    void set_enabled(bool enabled);
    void focus_first();

signals:
    void edited();

private:
    struct Place {
        int row;
        int column; // of the label; the line stands in the next
    };
    void add_line(QGridLayout& grid, QWidget* page, int number, Place place);

    store::Contact shown_;
    std::map<int, QLineEdit*> lines_; // by field number
};

} // namespace windows
