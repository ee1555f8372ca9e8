#pragma once
// Everything that tests of the control half share.
#include "support/handles.h"
#include "support/input.h"
#include "support/message_box.h"
#include "support/message_recorder.h"
#include "support/pixels.h"
#include "support/pump.h"
#include "support/script.h"
#include "support/visual_styles.h"
#include "support/window.h"
