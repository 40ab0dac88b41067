# Helpers shared by every target of the project.

# Project code: warnings as errors, the static C++ runtime, one bin/ folder.
function(kiv_project_target target)
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:${KIV_WARNINGS}>)
  target_link_options(${target} PRIVATE ${KIV_LINK_OPTIONS})
endfunction()

# A GoogleTest program run under Wine; each test case is one CTest test.
function(kiv_wine_test target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  kiv_project_target(${target})
  target_link_libraries(${target} PRIVATE ${ARG_LIBS} kiv_test_main)
  gtest_discover_tests(${target}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin
    PROPERTIES LABELS wine TIMEOUT 120)
endfunction()

# Headers of the library that a host includes: on the include path of every user of KivMFC,
# and installed under include/KivMFC. A folder's other headers stay internal.
function(kiv_public_headers)
  target_sources(KivMFC PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${ARGN})
endfunction()
