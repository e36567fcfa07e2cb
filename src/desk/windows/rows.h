#pragma once

#include "core/values/locale.h"
#include "desk/model/directory.h"
#include "desk/store/records.h"
#include "desk/windows/record_model.h"

#include <string>
#include <vector>

// The records as rows of the tables, each with its columns.
namespace windows {

std::vector<Column> contact_columns();
// Unknown ids are left out.
std::vector<Row> contact_rows(const std::vector<std::string>& contacts, const model::Directory& directory);

inline constexpr int date_column = 1; // of the activities
std::vector<Column> activity_columns();
std::vector<Row> activity_rows(const std::vector<store::Activity>& activities, const model::Directory& directory,
                               const values::Locale& locale);

std::vector<Column> note_columns();
std::vector<Row> note_rows(const std::vector<store::Note>& notes, const values::Locale& locale);

std::vector<Column> group_columns();
std::vector<Row> group_rows(const std::vector<store::Group>& groups);

// The name of a contact field; empty for a number that there is not.
QString field_label(int number);
QString type_name(store::ActivityType type);
QString priority_name(store::Priority priority);
QIcon type_icon(store::ActivityType type);

} // namespace windows
