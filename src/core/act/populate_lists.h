#pragma once

#include "core/act/item_list.h"
#include "core/act/session.h"
#include "core/host/guard.h"

#include <array>
#include <string>
#include <string_view>

namespace act {

// The kinds of contact fields that lists of fields offer, as their Type; a bar round each.
inline constexpr std::string_view offered_field_types = "|1|2|3|4|5|6|8|9|10|14|15|";

// Field numbers of the calendar's own that stand beside the contact fields: what an activity tells.
namespace activity_choice {
inline constexpr int none = 0;
inline constexpr int priority = 926;
inline constexpr int regarding = 927;
inline constexpr int date = 928;
inline constexpr int time = 929;
inline constexpr int scheduled_for = 937;
inline constexpr int group = 939;
inline constexpr int details = 945;
} // namespace activity_choice

// Whether a list of fields looks at popup lists.
enum class PopupMode { any = 0, only_with = 1, only_without = 2 };

// The users whose security and access texts hold the given ones; where an access text is given, it alone decides.
struct WantedUsers {
    std::string security{};
    std::string access{};
    bool with_empty_entry = false; // before them
    std::string select{};
};

// Fills the lists of the windows from the open database. "vbTopItem" as the text to select means the first
// entry; an empty text, or one that no entry has, selects nothing. All have the usual failure handler.
class ListPopulator {
public:
    ListPopulator(Session& session, const host::Guard& guarded) : session_(session), guarded_(guarded) {}

    // The wanted users. The item data is the user's position in ActUsers.
    void Populate_cboUsers(ItemList& list, const WantedUsers& wanted);
    // The contact fields that Include_Field lets through, with the field's id as item data. `select` is such an
    // id. Entries are added to what the list holds.
    void Populate_cboFields(ItemList& list, const std::string& accepted_types, PopupMode popup_mode,
                            const std::string& extra, const std::string& select);
    void Populate_cboActyFields(ItemList& list);
    bool Include_Field(int field_id, const std::string& accepted_types, PopupMode popup_mode,
                       const std::string& extra);
    // A user's name and position in ActUsers, or two empty texts. An id of 11 characters gets its blank back, in
    // the caller's text too.
    std::array<std::string, 2> GetUserDetails(std::string& user_id);

private:
    Session& session_;
    const host::Guard& guarded_;
};

} // namespace act
