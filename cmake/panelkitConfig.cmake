include(${CMAKE_CURRENT_LIST_DIR}/panelkitTargets.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/todays_look.cmake)
