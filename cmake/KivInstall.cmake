# `cmake --install` lays out a package that an outside host finds with find_package(KivMFC).
include(CMakePackageConfigHelpers)

set_target_properties(afx_winmain PROPERTIES EXPORT_NAME afxmain)
install(TARGETS afx KivMFC afx_winmain EXPORT KivMFCTargets
  OBJECTS DESTINATION lib/objects
  RUNTIME DESTINATION bin
  ARCHIVE DESTINATION lib
  LIBRARY DESTINATION bin)
install(DIRECTORY afx/include/ DESTINATION include)
install(DIRECTORY rules/ DESTINATION include FILES_MATCHING PATTERN "*.h")
foreach(dir frame localization controls dialogs strings)
  install(DIRECTORY ${dir}/ DESTINATION include/KivMFC FILES_MATCHING PATTERN "*.h")
endforeach()
install(EXPORT KivMFCTargets NAMESPACE KivMFC:: DESTINATION lib/cmake/KivMFC)
file(WRITE ${CMAKE_BINARY_DIR}/KivMFCConfig.cmake
  "include(\${CMAKE_CURRENT_LIST_DIR}/KivMFCTargets.cmake)\n")
write_basic_package_version_file(${CMAKE_BINARY_DIR}/KivMFCConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/KivMFCConfig.cmake ${CMAKE_BINARY_DIR}/KivMFCConfigVersion.cmake
  DESTINATION lib/cmake/KivMFC)
