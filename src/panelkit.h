#pragma once

// The whole library: the host brings the headers of every kind it builds, the others are for programs that
// make their own windows, read their own files or shape their own regions. A null pointer
// where something is wanted is refused: the result is 0 and nothing changes, unless it is said otherwise.
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "controls/buttons/new_rotate_btn.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "controls/lists/filling.h"
#include "controls/text/text_box.h"
#include "controls/text/tool_tip.h"
#include "dialog/basic_dialog.h"
#include "dialog/reading_diagnostics.h"
#include "dialog/relation.h"
#include "editing/description_editor.h"
#include "form/form_host.h"
#include "pictures/bmp_reader.h"
#include "pictures/bmp_record.h"
#include "pictures/region_functions.h"
#include "pictures/resampling.h"
#include "records/scaling.h"
