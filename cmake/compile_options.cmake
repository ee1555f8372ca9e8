# Flags of all of our own code; third-party code is built without the warnings. By language: the compiler of
# resources understands none of them.
add_library(panelkit_options INTERFACE)
target_compile_options(panelkit_options INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;$<IF:$<CXX_COMPILER_ID:Clang>,-Wshadow,-Wshadow=local>>
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual>
  # Whose project we are part of has a compiler of his own, which may know other warnings.
  $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<BOOL:${PROJECT_IS_TOP_LEVEL}>>:-Werror>
  # Seeing through the calls between the files of a unity build, it takes every cast to a base for a null one.
  $<$<AND:$<COMPILE_LANG_AND_ID:CXX,GNU>,$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>>:-Wnull-dereference>
  $<$<COMPILE_LANGUAGE:CXX>:-Wno-cast-function-type;-Wno-attributes>)
if(PANELKIT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
if(PANELKIT_LIBFUZZER)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(WIN32)
  add_compile_definitions(UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601 __USE_MINGW_ANSI_STDIO=1)
  # No compiler runtime beside the programs: each carries its own.
  add_link_options(-static -static-libgcc -static-libstdc++)
  # Parts of whole pages: Wine then maps the file, with what debuggers read, where else it reads all of it at each start.
  # What is installed is packed again.
  set(mapped_by_wine LINKER:--file-alignment=4096)
endif()

# What nobody calls stays out, above all of the compiler's runtime. Every function has an entry in .pdata, by which
# frames are unwound; the linker's own script keeps all of these, and with them every function of a file of which one
# is called. By ours an entry holds nothing, but what .xdata names does: what unwinds frames, what is thrown and
# caught. The entries of functions that went are empty and come first.
function(panelkit_drop_unused target)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    return()
  endif()
  target_link_options(${target} PRIVATE LINKER:--gc-sections)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/${target}.ld)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -shared -Wl,--verbose -o ${file}.probe OUTPUT_VARIABLE said ERROR_QUIET)
  file(REMOVE ${file}.probe)
  if(said MATCHES "\n====+\n(.*)\n====+\n")
    string(REPLACE "KEEP(*(.pdata*))" "*(.pdata*)" script "${CMAKE_MATCH_1}")
    if(NOT script STREQUAL CMAKE_MATCH_1) # 32-bit code is unwound by other means.
      file(CONFIGURE OUTPUT ${file} CONTENT "${script}" @ONLY)
      target_link_options(${target} PRIVATE LINKER:-T,${file})
      set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${file})
    endif()
  endif()
endfunction()

# What Windows shows as the details of a program or library, and installers compare.
function(panelkit_version_resource target description)
  if(WIN32)
    set(PANELKIT_FILE $<TARGET_FILE_NAME:${target}>)
    set(PANELKIT_DESCRIPTION ${description})
    get_target_property(type ${target} TYPE)
    set(PANELKIT_FILE_TYPE VFT_APP)
    if(type STREQUAL "SHARED_LIBRARY")
      set(PANELKIT_FILE_TYPE VFT_DLL)
    endif()
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${resource}.in @ONLY)
    file(GENERATE OUTPUT ${resource} INPUT ${resource}.in TARGET ${target})
    target_sources(${target} PRIVATE ${resource})
  endif()
endfunction()
