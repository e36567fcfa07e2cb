#pragma once

#include <QLatin1StringView>
#include <QString>

#include <string>

// Where the desk is found on the session's bus, and how its texts travel. There is one desk for each user session:
// the one that owns the bus name. The members stand in the .xml files beside this one.
namespace contract {

inline constexpr QLatin1StringView bus_name{"org.orvanta.ContactDesk"};
inline constexpr QLatin1StringView application_path{"/org/orvanta/ContactDesk"};
inline constexpr QLatin1StringView contact_view_path{"/org/orvanta/ContactDesk/ContactView"};
inline constexpr QLatin1StringView aux_commands_path{"/org/orvanta/ContactDesk/AuxCommands"};
inline constexpr QLatin1StringView activity_dialog_path{"/org/orvanta/ContactDesk/ActivityDialog"};

// The kinds of dialogs for an activity.
inline constexpr QLatin1StringView new_activity{"new"};
inline constexpr QLatin1StringView stored_activity{"stored"};

// The error that carries a sentence of the desk's own; any other error comes from the way between the processes.
inline constexpr QLatin1StringView failure_error{"org.orvanta.ContactDesk.Failure"};

// Texts travel as they are, trailing blanks of ids included. Bytes that are no UTF-8 become replacement
// characters.
inline QString on_wire(const std::string& text) { return QString::fromStdString(text); }
inline std::string from_wire(const QString& text) { return text.toStdString(); }

} // namespace contract
