# Run by the install: programs without what only debuggers read; that of the library stands beside it, where they
# look for it.
set(bin $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin)
execute_process(COMMAND_ERROR_IS_FATAL ANY
  COMMAND ${PANELKIT_OBJCOPY} --only-keep-debug panelkit.dll panelkit.dll.debug WORKING_DIRECTORY ${bin})
foreach(program panelkit.dll panelkit.exe) # Packed: 512 bytes are what the file format asks for.
  execute_process(COMMAND_ERROR_IS_FATAL ANY
    COMMAND ${PANELKIT_OBJCOPY} --strip-all --file-alignment=512 ${program} WORKING_DIRECTORY ${bin})
endforeach()
execute_process(COMMAND_ERROR_IS_FATAL ANY
  COMMAND ${PANELKIT_OBJCOPY} --add-gnu-debuglink=panelkit.dll.debug panelkit.dll WORKING_DIRECTORY ${bin})
list(APPEND CMAKE_INSTALL_MANIFEST_FILES ${CMAKE_INSTALL_PREFIX}/bin/panelkit.dll.debug)
