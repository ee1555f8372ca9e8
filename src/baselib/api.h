#pragma once

// PANELKIT_API marks what the shared library exports; natively everything is linked statically.
#if defined(PANELKIT_STATIC)
#define PANELKIT_API
#elif defined(PANELKIT_BUILDING)
#define PANELKIT_API __declspec(dllexport)
#else
// What the library exports: an application imports it.
#define PANELKIT_API __declspec(dllimport)
#endif
