# Flags of all of our own code; third-party code is built without the warnings.
add_library(panelkit_options INTERFACE)
target_compile_options(panelkit_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow=local -Wnon-virtual-dtor -Woverloaded-virtual
  # Seeing through the calls between the files of a unity build, it takes every cast to a base for a null one.
  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wnull-dereference>
  -Wno-cast-function-type -Wno-attributes)
if(PANELKIT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(WIN32)
  add_compile_definitions(UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601 __USE_MINGW_ANSI_STDIO=1)
  # No compiler runtime beside the programs: each carries its own.
  add_link_options(-static -static-libgcc -static-libstdc++)
endif()
