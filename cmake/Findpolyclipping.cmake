# Clipper 6, which installs no CMake package of its own: polyclipping::polyclipping.
find_path(polyclipping_INCLUDE_DIR clipper.hpp PATH_SUFFIXES polyclipping)
find_library(polyclipping_LIBRARY NAMES polyclipping)
mark_as_advanced(polyclipping_INCLUDE_DIR polyclipping_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(polyclipping REQUIRED_VARS polyclipping_LIBRARY polyclipping_INCLUDE_DIR)

if(polyclipping_FOUND AND NOT TARGET polyclipping::polyclipping)
  add_library(polyclipping::polyclipping UNKNOWN IMPORTED)
  set_target_properties(polyclipping::polyclipping PROPERTIES
    IMPORTED_LOCATION ${polyclipping_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${polyclipping_INCLUDE_DIR})
endif()
