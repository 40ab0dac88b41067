# Builds an example host as an outside project would be built: installs the package into the
# build tree, configures the example with the package's own toolchain file and builds it. The
# tests then start the example from its build folder, where kivmfc_deploy put every DLL.
#   cmake -DBUILD=<build tree> -DEXAMPLE=<example source> -DWORK=<folder> -P build_example.cmake
cmake_minimum_required(VERSION 3.25)
get_filename_component(name ${EXAMPLE} NAME)
set(install ${WORK}/install)
file(REMOVE_RECURSE ${WORK})
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/KivOutsideProject.cmake)
kiv_install_package(${install})
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${WORK}/${name} -G Ninja -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_TOOLCHAIN_FILE=${install}/share/KivMFC/mingw-w64-x86_64.cmake -DCMAKE_PREFIX_PATH=${install})
run(${CMAKE_COMMAND} --build ${WORK}/${name})
foreach(needed ${name}.exe kiv.ini lang/de.po KivMFC64.dll KivAfx64.dll kivflex64.dll kivutil64.dll kivstore64.dll)
  if(NOT EXISTS ${WORK}/${name}/${needed})
    message(FATAL_ERROR "the example's build folder lacks ${needed}")
  endif()
endforeach()
