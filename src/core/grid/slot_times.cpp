#include "core/grid/slot_times.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"

namespace grid {

SlotTimes::Known& SlotTimes::known(SlotNumber slot) const {
    const auto found = known_.find(slot.value);
    if (found != known_.end())
        return found->second;
    const settings::NumberedKey start = settings::keys::slot_start(slot.value, locale_);
    const settings::NumberedKey duration = settings::keys::slot_duration(slot.value);
    return known_[slot.value] = {.start_name = start.name,
                                 .start_default = start.default_value,
                                 .duration_name = duration.name,
                                 .duration_default = duration.default_value,
                                 .text = {},
                                 .time = {}};
}

values::DateTime SlotTimes::start(SlotNumber slot) const {
    Known& here = known(slot);
    std::string text = start_text(slot);
    if (text != here.text) {
        here.time = values::to_date(text, locale_);
        here.text = std::move(text);
    }
    return here.time;
}

std::string SlotTimes::start_text(SlotNumber slot) const {
    const Known& here = known(slot);
    return ini_.GetKeyValue(settings::sections::slots, here.start_name, here.start_default);
}

std::string SlotTimes::duration_text(SlotNumber slot) const {
    const Known& here = known(slot);
    return ini_.GetKeyValue(settings::sections::slots, here.duration_name, here.duration_default);
}

int SlotTimes::duration(SlotNumber slot) const { return values::to_int16(duration_text(slot)); }

} // namespace grid
