#include "desk/store/contact_fields.h"

namespace store {

const std::vector<ContactField>& contact_fields() {
    using namespace contact_field;
    static const std::vector<ContactField> fields = {
        {company, "Company", "1", true},
        {name, "Contact", "1", false},
        {address, "Address 1", "1", false},
        {address_2, "Address 2", "1", false},
        {address_3, "Address 3", "1", false},
        {city, "City", "1", true},
        {state, "State", "2", true},
        {postcode, "ZIP Code", "1", false},
        {country, "Country", "1", true},
        {status, "ID/Status", "1", true},
        {phone, "Phone", "4", false},
        {fax, "Fax", "4", false},
        {home_phone, "Home Phone", "4", false},
        {mobile, "Mobile Phone", "4", false},
        {pager, "Pager", "4", false},
        {salutation, "Salutation", "1", true},
        {title, "Title", "1", true},
        {department, "Department", "1", true},
        {birthday, "Birthday", "3", false},
        {e_mail, "E-mail", "9", false},
        {web_site, "Web Site", "10", false},
        {referred_by, "Referred By", "1", true},
        {extension, "Phone Extension", "1", false},
        {record_creator, "Record Creator", "1", false},
        {record_manager, "Record Manager", "1", true},
    };
    return fields;
}

} // namespace store
