#include "desk/windows/rows.h"

#include "desk/store/contact_fields.h"
#include "desk/windows/conversions.h"

#include <QStringList>

namespace windows {
namespace {

namespace field = store::contact_field;

constexpr int contact_list_fields[] = {field::company, field::name,   field::title, field::phone,
                                       field::e_mail,  field::mobile, field::city,  field::country};

QString names_of(const std::vector<std::string>& contacts, const model::Directory& directory) {
    QStringList names;
    for (const std::string& contact : contacts)
        names << shown(directory.contact_name(contact));
    names.removeAll(QString());
    return names.join(QStringLiteral("; "));
}

QString one_line(const std::string& text) { return shown(text).simplified(); }

// Beginning and end of a series are told by the mark; an activity without a date comes first.
Cell date_cell(const store::Activity& activity, const values::Locale& locale) {
    if (!activity.start)
        return {{}, qlonglong{0}};
    const bool is_series = activity.recurrence.kind != store::RecurrenceKind::none;
    return {date_text(*activity.start, locale), qlonglong{activity.start->seconds()},
            is_series ? QIcon(QStringLiteral(":/desk/recurring.svg")) : QIcon()};
}

Cell time_cell(const store::Activity& activity, const values::Locale& locale) {
    if (!activity.start)
        return {{}, qlonglong{0}};
    return {time_text(*activity.start, locale), qlonglong{activity.start->time().seconds()}};
}

Row activity_row(const store::Activity& activity, const model::Directory& directory,
                 const values::Locale& locale) {
    return {activity.id,
            {{type_name(activity.type), {}, type_icon(activity.type)},
             date_cell(activity, locale),
             time_cell(activity, locale),
             {duration_text(activity.duration), activity.duration},
             {priority_name(activity.priority), static_cast<int>(activity.priority)},
             {one_line(activity.regarding)},
             {names_of(activity.contacts, directory)},
             {shown(directory.user_name(activity.user))},
             {shown(directory.group_name(activity.group))}},
            activity.cleared};
}

} // namespace

std::vector<Column> contact_columns() {
    std::vector<Column> columns;
    for (const int number : contact_list_fields)
        columns.push_back({field_label(number)});
    return columns;
}

std::vector<Row> contact_rows(const std::vector<std::string>& contacts, const model::Directory& directory) {
    std::vector<Row> rows;
    for (const std::string& id : contacts) {
        const store::Contact* contact = directory.contact(id);
        if (!contact)
            continue;
        Row row{id, {}};
        for (const int number : contact_list_fields)
            row.cells.push_back({one_line(model::field_of(*contact, number))});
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<Column> activity_columns() {
    return {{"Type"}, {"Date"}, {"Time"}, {"Duration"}, {"Priority"}, {"Regarding"}, {"With"}, {"For"}, {"Group"}};
}

std::vector<Row> activity_rows(const std::vector<store::Activity>& activities, const model::Directory& directory,
                               const values::Locale& locale) {
    std::vector<Row> rows;
    rows.reserve(activities.size());
    for (const store::Activity& activity : activities)
        rows.push_back(activity_row(activity, directory, locale));
    return rows;
}

std::vector<Column> note_columns() { return {{"Date"}, {"Time"}, {"Note"}}; }

std::vector<Row> note_rows(const std::vector<store::Note>& notes, const values::Locale& locale) {
    std::vector<Row> rows;
    rows.reserve(notes.size());
    for (const store::Note& note : notes)
        rows.push_back({note.id,
                        {{date_text(note.written, locale), qlonglong{note.written.seconds()}},
                         {time_text(note.written, locale), qlonglong{note.written.time().seconds()}},
                         {one_line(note.text)}}});
    return rows;
}

std::vector<Column> group_columns() { return {{"Group"}, {"Contacts", Qt::AlignRight}}; }

std::vector<Row> group_rows(const std::vector<store::Group>& groups) {
    std::vector<Row> rows;
    for (const store::Group& group : groups) {
        const auto count = static_cast<int>(group.contacts.size());
        rows.push_back({group.id, {{shown(group.name)}, {QString::number(count), count}}});
    }
    return rows;
}

QString field_label(int number) {
    for (const store::ContactField& one : store::contact_fields())
        if (one.number == number)
            return QString::fromUtf8(one.label.data(), static_cast<qsizetype>(one.label.size()));
    return {};
}

QString type_name(store::ActivityType type) {
    switch (type) {
    case store::ActivityType::call:
        return QStringLiteral("Call");
    case store::ActivityType::meeting:
        return QStringLiteral("Meeting");
    case store::ActivityType::to_do:
        return QStringLiteral("To-do");
    }
    return {};
}

QString priority_name(store::Priority priority) {
    switch (priority) {
    case store::Priority::high:
        return QStringLiteral("High");
    case store::Priority::medium:
        return QStringLiteral("Medium");
    case store::Priority::low:
        return QStringLiteral("Low");
    }
    return {};
}

QIcon type_icon(store::ActivityType type) {
    switch (type) {
    case store::ActivityType::call:
        return QIcon(QStringLiteral(":/desk/call.svg"));
    case store::ActivityType::meeting:
        return QIcon(QStringLiteral(":/desk/meeting.svg"));
    case store::ActivityType::to_do:
        return QIcon(QStringLiteral(":/desk/to_do.svg"));
    }
    return {};
}

} // namespace windows
