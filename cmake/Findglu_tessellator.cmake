# The tessellator of libGLU: glu::tessellator. On Windows it is the library that cmake/windows-libraries builds of it: what
# the system has under the name of libGLU is another program, whose triangles may come in another order.
if(WIN32)
  find_path(glu_tessellator_INCLUDE_DIR GL/glu.h)
  find_library(glu_tessellator_LIBRARY NAMES glu_tess)
else()
  find_package(OpenGL QUIET COMPONENTS OpenGL)
  set(glu_tessellator_INCLUDE_DIR ${OPENGL_INCLUDE_DIR})
  set(glu_tessellator_LIBRARY ${OPENGL_glu_LIBRARY})
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(glu_tessellator REQUIRED_VARS glu_tessellator_LIBRARY glu_tessellator_INCLUDE_DIR)

if(glu_tessellator_FOUND AND NOT TARGET glu::tessellator)
  if(WIN32)
    add_library(glu::tessellator UNKNOWN IMPORTED)
    set_target_properties(glu::tessellator PROPERTIES
      IMPORTED_LOCATION ${glu_tessellator_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${glu_tessellator_INCLUDE_DIR})
  else()
    add_library(glu::tessellator ALIAS OpenGL::GLU)
  endif()
endif()
