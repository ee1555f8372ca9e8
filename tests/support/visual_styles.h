#pragma once

namespace testing_support {

// Whether the program's windows are those of the common controls 6, as where its manifest asks for visual
// styles.
bool HasVisualStyles();

} // namespace testing_support
