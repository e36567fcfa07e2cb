#include "grid/layout.h"
