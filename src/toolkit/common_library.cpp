#include "toolkit/common_library.h"
#include "toolkit/platform.h"

void NeedCommonControls()
{
    INITCOMMONCONTROLSEX wanted = { sizeof wanted, ICC_WIN95_CLASSES | ICC_DATE_CLASSES };
    ::InitCommonControlsEx(&wanted);
}
