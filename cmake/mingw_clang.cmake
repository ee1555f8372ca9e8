# The same by clang, with the headers and the C++ library of MinGW-w64's g++. A second opinion: what is shipped is g++'s.
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
set(triple ${PANELKIT_PROCESSOR}-w64-windows-gnu)
file(GLOB gcc_folder /usr/lib/gcc/${PANELKIT_PROCESSOR}-w64-mingw32/*-posix)
set(CMAKE_C_COMPILER clang)
set(CMAKE_C_COMPILER_TARGET ${triple})
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET ${triple})
set(gcc_headers ${gcc_folder}/include/c++)
set(CMAKE_CXX_FLAGS_INIT "-isystem ${gcc_headers} -isystem ${gcc_headers}/${PANELKIT_PROCESSOR}-w64-mingw32")
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -L${gcc_folder}")
endforeach()
# What g++ adds itself.
set(CMAKE_CXX_STANDARD_LIBRARIES "-lkernel32 -luser32 -lgdi32 -lshell32 -lole32 -loleaut32 -luuid -lcomdlg32 -ladvapi32 -lwinpthread"
  CACHE STRING "")
