#pragma once

// The dialogs that the system brings.
#include "toolkit/color_dialog.h"
#include "toolkit/file_dialog.h"
#include "toolkit/font_dialog.h"
