#pragma once

namespace testing_support {

// Whether the program's windows are those of the common controls 6, as for an application whose manifest asks
// for visual styles: where the environment has PANELKIT_VISUAL_STYLES.
bool HasVisualStyles();

} // namespace testing_support
