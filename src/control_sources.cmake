set(PANELKIT_CONTROL_SOURCES
  toolkit/library.cpp
)
