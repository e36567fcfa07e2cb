#pragma once

#include "desk/store/store.h"

namespace bench {

// Fills an empty database with so many activities of twenty users, for measuring.
//
// Their starts lie in the ten years before `day` and the year after it. A tenth are series of the four kinds,
// begun anywhere in those years, some without an end; one in twenty of them has exceptions. For every twenty
// activities there is a contact. Records are added about in the order in which people would have made them, and
// the same arguments always give the same records.
void fill_bulk(store::Store& store, store::DateTime day, int activities);

} // namespace bench
