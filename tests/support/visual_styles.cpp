#include "support/visual_styles.h"
#include "support/temp_file.h"
#include <cstdlib>
#include <windows.h>

namespace testing_support {

namespace {

// What an application says in its manifest, for the thread that the tests run on.
bool activateVisualStyles()
{
    if (std::getenv("PANELKIT_VISUAL_STYLES") == nullptr) {
        return false;
    }
    const TempFile manifest(R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <dependency><dependentAssembly>
    <assemblyIdentity type="win32" name="Microsoft.Windows.Common-Controls" version="6.0.0.0"
      processorArchitecture="*" publicKeyToken="6595b64144ccf1df" language="*"/>
  </dependentAssembly></dependency>
</assembly>
)",
        ".manifest");
    ACTCTXA context {};
    context.cbSize = sizeof context;
    context.lpSource = manifest.path();
    const HANDLE made = CreateActCtxA(&context);
    ULONG_PTR cookie = 0;
    return made != INVALID_HANDLE_VALUE && ActivateActCtx(made, &cookie);
}

const bool isActive = activateVisualStyles(); // Before any window.

} // namespace

bool HasVisualStyles()
{
    return isActive;
}

} // namespace testing_support
