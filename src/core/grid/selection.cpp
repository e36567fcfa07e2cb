#include "core/grid/selection.h"

#include "core/values/failure.h"

namespace grid {

clsMsgSchedCell& Selection::set(const CellReference& cell) {
    if (!cell)
        throw values::Failure(values::FailureNumber::object_not_set);
    return *cell;
}

} // namespace grid
