# What a Windows program carries beside its code.

# tessaline_dialogs(TARGET): the dialogs that platform/ shows. Without them no window opens. Nothing elsewhere.
function(tessaline_dialogs target)
  if(WIN32)
    set(resources ${PROJECT_SOURCE_DIR}/platform/windows)
    target_sources(${target} PRIVATE ${resources}/dialogs.rc)
    set_source_files_properties(${resources}/dialogs.rc TARGET_DIRECTORY ${target} PROPERTIES
      INCLUDE_DIRECTORIES ${PROJECT_SOURCE_DIR} OBJECT_DEPENDS ${resources}/resource_numbers.h)
  endif()
endfunction()

# tessaline_program_resources(TARGET DESCRIPTION): icon, version and manifest of a program that users start. Nothing
# elsewhere.
function(tessaline_program_resources target description)
  if(WIN32)
    set(resources ${PROJECT_SOURCE_DIR}/platform/windows)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${resources}/program.rc.in ${made} @ONLY)
    target_sources(${target} PRIVATE ${made})
    set_source_files_properties(${made} TARGET_DIRECTORY ${target} PROPERTIES
      OBJECT_DEPENDS "${resources}/tessaline.ico;${resources}/program.manifest")
  endif()
endfunction()
