# cmake --install gives a folder that may be moved: programs and panelkit.dll in bin, what a linker, CMake and
# pkg-config need in lib, the headers, the docs.
install(DIRECTORY docs/ DESTINATION share/doc/panelkit PATTERN doxygen EXCLUDE)
install(FILES CHANGELOG.md DESTINATION share/doc/panelkit)
install(TARGETS panelkit_command)
install(TARGETS panelkit EXPORT panelkitTargets)
install(CODE "set(PANELKIT_SOURCE \"${PROJECT_SOURCE_DIR}/src\")
set(PANELKIT_STAGE \"${PROJECT_BINARY_DIR}/include\")")
install(SCRIPT cmake/install_headers.cmake)
if(NOT WIN32)
  return() # The native library is for the command and the tests.
endif()

install(EXPORT panelkitTargets NAMESPACE panelkit:: DESTINATION lib/cmake/panelkit)
include(CMakePackageConfigHelpers)
set(version_file ${PROJECT_BINARY_DIR}/panelkitConfigVersion.cmake)
write_basic_package_version_file(${version_file} COMPATIBILITY SameMinorVersion)
configure_file(cmake/panelkit.pc.in ${PROJECT_BINARY_DIR}/panelkit.pc @ONLY)
install(FILES ${version_file} cmake/panelkitConfig.cmake cmake/todays_look.cmake cmake/todays_look.manifest
  DESTINATION lib/cmake/panelkit)
install(FILES ${PROJECT_BINARY_DIR}/panelkit.pc DESTINATION lib/pkgconfig)

if(CMAKE_OBJCOPY AND CMAKE_STRIP)
  install(CODE "set(PANELKIT_OBJCOPY \"${CMAKE_OBJCOPY}\")
set(PANELKIT_STRIP \"${CMAKE_STRIP}\")")
  install(SCRIPT cmake/install_debug.cmake)
endif()
