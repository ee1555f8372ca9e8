#pragma once

// The controls of the common controls' library.
#include "toolkit/animate_ctrl.h"
#include "toolkit/date_time_ctrl.h"
#include "toolkit/header_ctrl.h"
#include "toolkit/hot_key_ctrl.h"
#include "toolkit/image_list.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/progress_ctrl.h"
#include "toolkit/slider_ctrl.h"
#include "toolkit/spin_button_ctrl.h"
#include "toolkit/tab_ctrl.h"
#include "toolkit/tool_tip_ctrl.h"
#include "toolkit/tree_ctrl.h"
