# The installed KivMFC package: targets KivMFC::KivMFC, KivMFC::afx, KivMFC::afxmain and
# KivMFC::kivflex (the base of the library's dialog classes), the
# toolchain file in KivMFC_TOOLCHAIN_FILE, and kivmfc_deploy(<target>).
include(${CMAKE_CURRENT_LIST_DIR}/KivMFCTargets.cmake)

get_filename_component(_kivmfc_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." REALPATH)
set(KivMFC_BIN_DIR "${_kivmfc_prefix}/bin")
set(KivMFC_TOOLCHAIN_FILE "${_kivmfc_prefix}/share/KivMFC/mingw-w64-x86_64.cmake")

# The package is built in one configuration; a host built in any other uses that one.
foreach(_kivmfc_target KivMFC::afx KivMFC::KivMFC KivMFC::afxmain KivMFC::kivflex)
  get_target_property(_kivmfc_configs ${_kivmfc_target} IMPORTED_CONFIGURATIONS)
  list(GET _kivmfc_configs 0 _kivmfc_built)
  foreach(_kivmfc_config DEBUG RELEASE RELWITHDEBINFO MINSIZEREL)
    if(NOT _kivmfc_config IN_LIST _kivmfc_configs)
      set_property(TARGET ${_kivmfc_target} PROPERTY MAP_IMPORTED_CONFIG_${_kivmfc_config} ${_kivmfc_built})
    endif()
  endforeach()
endforeach()

# Copies every DLL of the package (the runtime, the library, its siblings and the compiler's
# run-time DLLs) beside the target's EXE after each build, so that the EXE runs from there.
function(kivmfc_deploy target)
  file(GLOB _dlls "${KivMFC_BIN_DIR}/*.dll")
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_dlls} $<TARGET_FILE_DIR:${target}>
    COMMENT "Copying the KivMFC DLLs beside ${target}" VERBATIM)
endfunction()
