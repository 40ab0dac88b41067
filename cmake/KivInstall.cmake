# `cmake --install` lays out a package that an outside host finds with find_package(KivMFC):
# bin/ with every DLL a host runs with, include/ with the runtime's MFC-style headers and the
# library's public headers under include/KivMFC, lib/cmake/KivMFC with the targets and
# kivmfc_deploy, share/KivMFC with the toolchain file.
include(CMakePackageConfigHelpers)

set_target_properties(afx_winmain PROPERTIES EXPORT_NAME afxmain)
# kivflex64.dll belongs to the export set: the library's dialog classes derive from its class.
install(TARGETS afx KivMFC afx_winmain kivflex EXPORT KivMFCTargets
  FILE_SET HEADERS DESTINATION include/KivMFC
  OBJECTS DESTINATION lib/objects
  RUNTIME DESTINATION bin
  ARCHIVE DESTINATION lib
  LIBRARY DESTINATION bin)
install(DIRECTORY afx/include/ DESTINATION include)
install(EXPORT KivMFCTargets NAMESPACE KivMFC:: DESTINATION lib/cmake/KivMFC)

# The sibling libraries the library loads at run time.
foreach(sibling kivutil kivstore)
  if(TARGET ${sibling})
    install(TARGETS ${sibling} RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
  endif()
endforeach()

# The translators' and host developers' store tool.
if(TARGET kivstore_tool)
  install(TARGETS kivstore_tool RUNTIME DESTINATION bin)
endif()

# The compiler's run-time DLLs, for hosts that do not link the C++ runtime statically.
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
    OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
  get_filename_component(found "${found}" REALPATH)
  if(NOT EXISTS "${found}")
    message(FATAL_ERROR "the compiler has no ${dll}")
  endif()
  install(FILES ${found} DESTINATION bin)
endforeach()

install(FILES cmake/mingw-w64-x86_64.cmake DESTINATION share/KivMFC)
install(PROGRAMS cmake/wine-run DESTINATION share/KivMFC)

write_basic_package_version_file(${CMAKE_BINARY_DIR}/KivMFCConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES cmake/KivMFCConfig.cmake ${CMAKE_BINARY_DIR}/KivMFCConfigVersion.cmake
  DESTINATION lib/cmake/KivMFC)
