#include "core/act/populate_lists.h"

#include "core/values/ids.h"
#include "core/values/numbers.h"
#include "core/values/text.h"

namespace act {

namespace {

constexpr std::string_view top_item = "vbTopItem";
constexpr std::string_view refused_fields = "|202|203|";

std::string barred(const std::string& text) { return "|" + text + "|"; }

// Selects as told by `select`: nothing, the first entry, or the first one that `matches`.
template <typename Matches>
void select_entry(ItemList& list, const std::string& select, Matches matches) {
    if (select.empty())
        return;
    if (select == top_item) {
        list.ListIndex(0);
        return;
    }
    for (int index = 0; index < list.ListCount(); ++index)
        if (matches(index)) {
            list.ListIndex(index);
            return;
        }
}

} // namespace

void ListPopulator::Populate_cboUsers(ItemList& list, const WantedUsers& wanted) {
    guarded_("in modPopulateACTLists: Sub Populate_cboUsers - Line # ", [&](host::Step& step) {
        step = 10;
        list.Clear();
        if (wanted.with_empty_entry)
            list.AddItem("", 0);
        step = 20;
        Users& users = *session_.ActUsers;
        const int count = users.Count();
        for (int user = 1; user <= count; ++user) {
            step = 30;
            bool taken = wanted.security.empty() || values::contains(users.Security(user), wanted.security);
            step = 40;
            if (!wanted.access.empty())
                taken = values::contains(users.Access(user), wanted.access);
            step = 50;
            if (taken)
                list.AddItem(users.name(user), user);
        }
        step = 60;
        select_entry(list, wanted.select, [&](int index) { return list.List(index) == wanted.select; });
    });
}

void ListPopulator::Populate_cboFields(ItemList& list, const std::string& accepted_types, PopupMode popup_mode,
                                       const std::string& extra, const std::string& select) {
    guarded_("in modPopulateACTLists: Sub Populate_cboFields - Line # ", [&](host::Step& step) {
        step = 10;
        Fields& fields = *session_.ActFields;
        const int count = fields.Count();
        int found = 0;
        for (int position = 0; found < count; ++position) {
            step = 20;
            values::to_int16(static_cast<double>(position)); // beyond 16 bits there are no positions
            step = 30;
            try {
                const int id = fields.ID(position);
                if (id == -1)
                    continue;
                ++found;
                if (Include_Field(id, accepted_types, popup_mode, extra))
                    list.AddItem(fields.Label(id), id);
            } catch (const values::Failure&) {
                continue; // positions have gaps
            }
        }
        step = 40;
        select_entry(list, select,
                     [&](int index) { return list.ItemData(index) == values::leading_number(select); });
    });
}

bool ListPopulator::Include_Field(int field_id, const std::string& accepted_types, PopupMode popup_mode,
                                  const std::string&) {
    return guarded_("in modPopulateACTLists: Function Include_Field - Line # ", [&](host::Step& step) {
        step = 10;
        Fields& fields = *session_.ActFields;
        if (!values::contains(accepted_types, barred(fields.Type(field_id))))
            return false;
        step = 20;
        if (popup_mode == PopupMode::only_with && !fields.HasPopupList(field_id))
            return false;
        if (popup_mode == PopupMode::only_without && fields.HasPopupList(field_id))
            return false;
        step = 30;
        return !values::contains(refused_fields, barred(std::to_string(field_id)));
    });
}

void ListPopulator::Populate_cboActyFields(ItemList& list) {
    guarded_("in modPopulateACTLists: Sub Populate_cboActyFields - Line # ", [&](host::Step& step) {
        step = 10;
        list.AddItem("__None", activity_choice::none);
        list.AddItem("_Activity Date", activity_choice::date);
        list.AddItem("_Activity Details", activity_choice::details);
        list.AddItem("_Activity Time", activity_choice::time);
        list.AddItem("_Activity Priority", activity_choice::priority);
        list.AddItem("_Activity Regarding", activity_choice::regarding);
        list.AddItem("_Activity Scheduled For", activity_choice::scheduled_for);
        list.AddItem("_Activity Group", activity_choice::group);
    });
}

std::array<std::string, 2> ListPopulator::GetUserDetails(std::string& user_id) {
    return guarded_("in modPopulateACTLists: Function GetUserDetails - Line # ",
                    [&](host::Step& step) -> std::array<std::string, 2> {
                        step = 10;
                        user_id = values::whole_id(user_id);
                        step = 20;
                        Users& users = *session_.ActUsers;
                        const int count = users.Count();
                        for (int user = 1; user <= count; ++user) {
                            step = 30;
                            if (users.uniqueID(user) == user_id)
                                return {users.name(user), std::to_string(user)};
                        }
                        return {};
                    });
}

} // namespace act
