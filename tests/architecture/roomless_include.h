#pragma once

#include "grid_model.h"
