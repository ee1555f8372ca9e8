# Cross build for 32-bit Windows.
set(PANELKIT_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
