#include "core/grid/layout.h"
