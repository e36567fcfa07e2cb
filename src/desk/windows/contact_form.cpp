#include "desk/windows/contact_form.h"

#include "desk/model/directory.h"
#include "desk/store/contact_fields.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"

#include <QLabel>

namespace windows {
namespace {

namespace field = store::contact_field;

const std::vector<std::vector<int>> columns = {
    {field::company, field::name, field::title, field::department, field::salutation, field::status,
     field::referred_by, field::birthday, field::record_creator},
    {field::phone, field::extension, field::mobile, field::home_phone, field::fax, field::pager, field::e_mail,
     field::web_site, field::record_manager},
    {field::address, field::address_2, field::address_3, field::city, field::state, field::postcode,
     field::country},
};

} // namespace

ContactForm::ContactForm(QGridLayout& grid, QWidget* page) : QObject(page) {
    for (int column = 0; const auto& numbers : columns) {
        for (int row = 0; const int number : numbers)
            add_line(grid, page, number, {.row = row++, .column = column});
        grid.setColumnStretch(column + 1, 1);
        column += 2;
    }
}

void ContactForm::add_line(QGridLayout& grid, QWidget* page, int number, Place place) {
    const QString name = field_label(number);
    auto* label = new QLabel(name + ":", page);
    auto* line = new QLineEdit(page);
    line->setObjectName(QStringLiteral("field_%1").arg(number));
    line->setAccessibleName(name);
    label->setBuddy(line);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(label, place.row, place.column);
    grid.addWidget(line, place.row, place.column + 1);
    lines_[number] = line;
    connect(line, &QLineEdit::textEdited, this, &ContactForm::edited);
}

void ContactForm::show_contact(const store::Contact& contact) {
    shown_ = contact;
    for (const auto& [number, line] : lines_) {
        line->setText(shown(model::field_of(contact, number)));
        line->setCursorPosition(0);
    }
}

store::Contact ContactForm::contact() const {
    store::Contact result = shown_;
    for (const auto& [number, line] : lines_) {
        const QString text = line->text();
        // A line shows a text of several lines as one; what nobody typed into stays as it was stored.
        if (!line->isModified())
            continue;
        if (text.isEmpty())
            result.fields.erase(number);
        else
            result.fields[number] = stored(text);
    }
    return result;
}

void ContactForm::set_enabled(bool enabled) {
    for (const auto& [number, line] : lines_)
        line->setEnabled(enabled);
}

void ContactForm::focus_first() { lines_.at(field::company)->setFocus(); }

} // namespace windows
