#pragma once

#include "ui_frmMain.h"
