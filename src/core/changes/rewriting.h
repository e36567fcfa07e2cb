#pragma once

#include "core/changes/fields.h"
#include "core/changes/scheduled_with.h"

#include <optional>

namespace changes {

// New values for fields, and perhaps the contacts, of the record on which the activity list stands.
struct Rewriting {
    enum class Record { single, whole_series };

    Record record = Record::single;
    Fields fields;
    std::optional<ScheduledWith> contacts{}; // absent: they stay

    // Fails as act::Activity::Update does, with nothing stored.
    void apply(act::Activity& activity) const;
    // What brings back the values that apply would replace, asked for before it.
    Rewriting inverse(act::Activity& activity) const;
};

} // namespace changes
