#pragma once

// The window system's own controls.
#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/edit.h"
#include "toolkit/list_box.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/static.h"
