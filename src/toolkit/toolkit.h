#pragma once

// The window classes, their message maps and the drawing objects; the only header of them to include.
// With PANELKIT_TOOLKIT_SYSTEM the vendor's own classes take their place.
#ifdef PANELKIT_TOOLKIT_SYSTEM
#include <afxwin.h>

#include <afxdlgs.h>

#include <afxcmn.h>
#include <afxtempl.h>
#else
#include "toolkit/app.h"
#include "toolkit/arrays.h"
#include "toolkit/cmd_ui.h"
#include "toolkit/common_controls.h"
#include "toolkit/common_dialogs.h"
#include "toolkit/controls.h"
#include "toolkit/dc.h"
#include "toolkit/ddx.h"
#include "toolkit/diagnostics.h"
#include "toolkit/dialog.h"
#include "toolkit/exceptions.h"
#include "toolkit/file.h"
#include "toolkit/gbk_string.h"
#include "toolkit/gdi_objects.h"
#include "toolkit/geometry.h"
#include "toolkit/lists.h"
#include "toolkit/maps.h"
#include "toolkit/menu.h"
#include "toolkit/message_box.h"
#include "toolkit/message_map.h"
#include "toolkit/module.h"
#include "toolkit/object.h"
#include "toolkit/sync.h"
#include "toolkit/text.h"
#include "toolkit/thread.h"
#include "toolkit/wide_text.h"
#include "toolkit/window_class.h"
#include "toolkit/window_dc.h"
#include "toolkit/wnd.h"
#endif
