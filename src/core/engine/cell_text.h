#pragma once

#include "core/act/connection.h"
#include "core/grid/layout.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

// The names of an activity's priorities, by their number.
inline constexpr std::array<std::string_view, 3> Priorities = {"High", "Medium", "Low"};

// Composes the text of a cell: a field of the activity's contact and up to six extra fields of contact and
// activity.
class CellText {
public:
    CellText(const host::Platform& here, const settings::Settings& settings, act::Connection& act,
             const grid::Layout& layout)
        : here_(here), settings_(settings), act_(act), layout_(layout) {}

    int DisplayContactField = 26; // the contact field with which the text begins

    // Takes the extra fields of the present view from the settings. The texts composed afterwards show those.
    void read_settings();

    // The text for an activity of a contact. Both objects stand on those records afterwards.
    std::string GetContactInfo(const std::string& contact_id, const std::string& activity_id);
    // The name of a group, empty when there is none of that id. Has no failure handler.
    std::string GetGroupName(const std::string& group_id);

private:
    struct ExtraField {
        int number; // of a contact field, or 901 to 999 for an activity's
        std::string label;
        std::string_view separator; // from the text before it
    };
    std::string value_of(const ExtraField& field);
    std::string activity_value(int field);

    const host::Platform& here_;
    const settings::Settings& settings_;
    act::Connection& act_;
    const grid::Layout& layout_;
    std::vector<ExtraField> extra_fields_;
};

} // namespace engine
