#pragma once

#include "desk/store/store.h"

namespace store {

// Fills an empty database with a small company's people, contacts and appointments round the week of `day`. The
// same day always gives the same records.
void fill_sample(Store& store, DateTime day);

} // namespace store
