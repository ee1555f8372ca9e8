# panelkit_todays_look(program): its controls have the visual style of the system, and it knows of the dpi of each
# monitor. The manifest that says so becomes a resource of the program.
function(panelkit_todays_look target)
  if(WIN32)
    set(manifest ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/todays_look.manifest)
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}_look.rc)
    file(CONFIGURE OUTPUT ${resource} CONTENT "1 24 \"${manifest}\"\n")
    set_source_files_properties(${resource} PROPERTIES OBJECT_DEPENDS ${manifest})
    target_sources(${target} PRIVATE ${resource})
  endif()
endfunction()
