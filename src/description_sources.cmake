set(PANELKIT_DESCRIPTION_SOURCES
  baselib/base.cpp
)
