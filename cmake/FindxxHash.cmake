# xxHash, of which its header alone is needed, with everything inlined: xxHash::header.
find_path(xxHash_INCLUDE_DIR xxhash.h)
mark_as_advanced(xxHash_INCLUDE_DIR)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(xxHash REQUIRED_VARS xxHash_INCLUDE_DIR)

if(xxHash_FOUND AND NOT TARGET xxHash::header)
  add_library(xxHash::header INTERFACE IMPORTED)
  set_target_properties(xxHash::header PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${xxHash_INCLUDE_DIR}
    INTERFACE_COMPILE_DEFINITIONS XXH_INLINE_ALL)
endif()
