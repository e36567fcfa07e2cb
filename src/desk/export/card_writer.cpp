#include "desk/export/card_writer.h"

#include "core/values/text.h"
#include "desk/export/own_writer.h"
#include "desk/import/activity_text.h"
#include "desk/import/card_reader.h"
#include "desk/import/digest.h"
#include "desk/import/own_lines.h"
#include "desk/store/contact_fields.h"

#include <algorithm>

namespace exporting {
namespace {

namespace field = store::contact_field;
namespace own = importing::own;

std::string field_of(const store::Contact& contact, int number) {
    const auto place = contact.fields.find(number);
    return place == contact.fields.end() ? std::string() : place->second;
}

std::string readable_line(const store::Contact& contact, int number) {
    return importing::readable(importing::single_line(field_of(contact, number)));
}

// Empty where all parts are.
std::string line(std::string_view name, const std::vector<std::string>& parts) {
    const bool is_empty = std::ranges::all_of(parts, [](const std::string& part) { return part.empty(); });
    return is_empty ? std::string() : known_line(name, parts);
}

bool is_iso_date(const std::string& text) {
    constexpr std::string_view form = "0000-00-00";
    return std::ranges::equal(text, form,
                              [](char c, char f) { return f == '-' ? c == '-' : c >= '0' && c <= '9'; });
}

std::string name_lines(const store::Contact& contact) {
    const std::string name = readable_line(contact, field::name);
    const std::string company = readable_line(contact, field::company);
    const std::string shown = !name.empty() ? name : !company.empty() ? company : "(unnamed)";
    const std::size_t last = name.rfind(' ');
    const std::string family = name.substr(last == name.npos ? 0 : last + 1);
    const std::string given = last == name.npos ? std::string() : name.substr(0, last);
    return known_line("FN", {shown}) + known_line("N", {family, given, "", "", ""}) +
           line("ORG", {company, readable_line(contact, field::department)});
}

std::string plain_lines(const store::Contact& contact) {
    const auto text = [&](int number) { return readable_line(contact, number); };
    std::string lines =
        line("TITLE", {text(field::title)}) + line("EMAIL;TYPE=INTERNET", {text(field::e_mail)}) +
        line("URL", {text(field::web_site)}) + line("TEL;TYPE=WORK,VOICE", {text(field::phone)}) +
        line("TEL;TYPE=WORK,FAX", {text(field::fax)}) + line("TEL;TYPE=HOME,VOICE", {text(field::home_phone)}) +
        line("TEL;TYPE=CELL", {text(field::mobile)}) + line("TEL;TYPE=PAGER", {text(field::pager)}) +
        line("ADR;TYPE=WORK",
             {text(field::address_3), text(field::address_2), text(field::address), text(field::city),
              text(field::state), text(field::postcode), text(field::country)});
    if (is_iso_date(text(field::birthday)))
        lines += known_line("BDAY", {text(field::birthday)});
    return lines;
}

// The group's name, as other programs know groups.
std::string category_lines(const std::vector<GroupPlace>& groups) {
    std::string lines;
    for (const GroupPlace& group : groups)
        lines += line("CATEGORIES", {importing::readable(importing::single_line(group.name))});
    return lines;
}

std::string group_lines(const std::vector<GroupPlace>& groups) {
    std::string lines;
    for (const GroupPlace& group : groups)
        lines += own_line(own::group, {group.uid, group.name, std::to_string(group.place)});
    return lines;
}

// What a desk reads otherwise, or not at all.
std::string field_lines(const store::Contact& contact, const std::string& card) {
    const importing::Content content = importing::content_of(card);
    const store::Contact read = importing::read_card(content.components.front()).contact;
    std::string lines;
    for (const store::ContactField& known : store::contact_fields())
        if (const std::string text = field_of(contact, known.number); text != field_of(read, known.number))
            lines += own_line(own::field, {std::to_string(known.number), text});
    return lines;
}

} // namespace

std::string card_text(const store::Contact& contact, const std::vector<store::Note>& notes,
                      const std::vector<GroupPlace>& groups, const std::string& identity) {
    std::string card = "BEGIN:VCARD\r\nVERSION:3.0\r\n" + known_line("UID", {own::uid_of(contact.id, identity)}) +
                       name_lines(contact) + plain_lines(contact);
    std::string lines;
    for (const store::Note& note : notes) {
        card += line("NOTE", {importing::readable(importing::several_lines(note.text))});
        lines += own_line(own::note, {std::to_string(note.written.seconds()), note.text});
    }
    card += category_lines(groups) + "END:VCARD\r\n";
    lines += own_line(own::record, {importing::digest_of(contact)});
    return with_lines(card, field_lines(contact, card) + group_lines(groups) + lines);
}

} // namespace exporting
