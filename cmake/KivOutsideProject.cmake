# For the scripts that build a host as an outside project: run() stops the script with the
# command's output when a step fails, and kiv_install_package(<prefix>) installs the package
# of the build tree BUILD there.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
  endif()
endfunction()

function(kiv_install_package prefix)
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
endfunction()
