#include "support/visual_styles.h"
#include <windows.h>

namespace testing_support {

bool HasVisualStyles()
{
    // They come with classes in place of the system's.
    ACTCTX_SECTION_KEYED_DATA found {};
    found.cbSize = sizeof found;
    return FindActCtxSectionStringW(
               0, nullptr, ACTIVATION_CONTEXT_SECTION_WINDOW_CLASS_REDIRECTION, L"Button", &found)
        != FALSE;
}

} // namespace testing_support
