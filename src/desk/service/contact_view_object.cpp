#include "desk/service/contact_view_object.h"

#include "core/values/ids.h"
#include "desk/model/refusal.h"
#include "desk/service/answer.h"
#include "desk/service/field_text.h"

namespace service {

using contract::from_wire;
using contract::on_wire;

model::ContactView& ContactViewObject::view() const {
    if (desk_.database_path().empty())
        model::refuse("No database is open in the contact desk.");
    return desk_.contact_view();
}

model::ContactView& ContactViewObject::view_with_row(int row) const {
    auto& result = view();
    if (row < 0 || row >= result.activity_count())
        model::refuse("The list of activities has no row " + std::to_string(row) + ".");
    return result;
}

QString ContactViewObject::GetActiveTab() {
    return answer(*this, [&] { return on_wire(view().active_tab()); });
}

void ContactViewObject::SetActiveTab(const QString& tab) {
    answer(*this, [&] { view().set_active_tab(from_wire(tab)); });
}

void ContactViewObject::CreateLookup(const QString& contacts) {
    answer(*this, [&] { view().create_lookup(values::ids_in(from_wire(contacts))); });
}

int ContactViewObject::GetCount() {
    return answer(*this, [&] { return view().contact_count(); });
}

QString ContactViewObject::Goto(const QString& contact) {
    return answer(*this, [&] { return on_wire(view().go_to(from_wire(contact))); });
}

int ContactViewObject::GetFilter(QString& dates, QString& users) {
    return answer(*this, [&] {
        const auto filter = view().activity_filter();
        dates = on_wire(filter.dates);
        users = on_wire(filter.users);
        return filter.mask;
    });
}

void ContactViewObject::SetFilter(int mask, const QString& dates, const QString& users) {
    answer(*this, [&] { view().set_activity_filter({mask, from_wire(dates), from_wire(users)}); });
}

int ContactViewObject::GetRowCount() {
    return answer(*this, [&] { return view().activity_count(); });
}

QString ContactViewObject::GetField(int field, int row) {
    return answer(*this, [&] { return on_wire(field_text(view_with_row(row).activity(row), field, locale_)); });
}

void ContactViewObject::SelectRow(int row, bool selected) {
    answer(*this, [&] { view_with_row(row).select_activity(row, selected); });
}

} // namespace service
