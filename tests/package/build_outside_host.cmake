# Installs the package, checks that it holds only public headers, builds a host against it
# with find_package and the package's own toolchain file (in Debug, a configuration the
# package was not built in), and runs the host from its build folder, where kivmfc_deploy
# put every DLL it needs.
cmake_minimum_required(VERSION 3.25)
set(work ${BUILD}/package-test)
set(install ${work}/install)
file(REMOVE_RECURSE ${work})
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/KivOutsideProject.cmake)
kiv_install_package(${install})
run(${CMAKE_COMMAND} -DPREFIX=${install} -DSOURCE=${SOURCE} -P ${CMAKE_CURRENT_LIST_DIR}/check_installed_headers.cmake)
foreach(needed bin/KivAfx64.dll bin/KivMFC64.dll bin/kivflex64.dll bin/kivutil64.dll bin/kivstore64.dll bin/libstdc++-6.dll
               bin/libgcc_s_seh-1.dll bin/libwinpthread-1.dll share/KivMFC/mingw-w64-x86_64.cmake
               bin/kivstore.exe share/KivMFC/wine-run lib/cmake/KivMFC/KivMFCConfig.cmake)
  if(NOT EXISTS ${install}/${needed})
    message(FATAL_ERROR "the package lacks ${needed}")
  endif()
endforeach()
run(${CMAKE_COMMAND} -S ${HOST_SOURCE} -B ${work}/host -G Ninja -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_TOOLCHAIN_FILE=${install}/share/KivMFC/mingw-w64-x86_64.cmake -DCMAKE_PREFIX_PATH=${install})
run(${CMAKE_COMMAND} --build ${work}/host)
set(ENV{KIV_WINEPREFIX} ${BUILD}/wineprefix)
run(${install}/share/KivMFC/wine-run ${work}/host/outside_host.exe)
