# Windows programs with windows: beside the compiler, Qt (where ZEL_WINDOWS_QT or the cache says) and
# the libraries of scripts/windows_libraries.sh.
include("${CMAKE_CURRENT_LIST_DIR}/mingw64.cmake")

set(cache "$ENV{XDG_CACHE_HOME}")
if(cache STREQUAL "")
  set(cache "$ENV{HOME}/.cache")
endif()
set(qt "$ENV{ZEL_WINDOWS_QT}")
if(qt STREQUAL "")
  set(qt "${cache}/zel/qt-6.4.2-mingw64")
endif()
# Later runs, by ninja and for the checks of the compiler, have the folders of the first one.
set(ZEL_WINDOWS_QT "${qt}" CACHE PATH "Qt for Windows")
set(ZEL_WINDOWS_LIBRARIES "${cache}/zel/libraries-mingw64" CACHE PATH "Other libraries for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZEL_WINDOWS_QT ZEL_WINDOWS_LIBRARIES)

list(APPEND CMAKE_FIND_ROOT_PATH "${ZEL_WINDOWS_QT}" "${ZEL_WINDOWS_LIBRARIES}")
set(ENV{PKG_CONFIG_LIBDIR} "${ZEL_WINDOWS_LIBRARIES}/lib/pkgconfig")

# moc, rcc and uic are this machine's own, of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
