# One bounded fuzzer run for the tests: cmake -DFUZZER=<file> -DRUNS=<n> -DNEW_INPUTS=<dir>
# -DARTIFACTS=<dir> [-DSEEDS=<dir>] [-DDICT=<file>] -P RunFuzzer.cmake
#
# libFuzzer adds what it finds to the first corpus folder it is given. That folder starts empty on
# every run, so no run builds on an earlier one, and the seeds after it are only read. Comparison
# tracing is off: it feeds heap addresses into the mutations, and two runs would then differ.
file(REMOVE_RECURSE ${NEW_INPUTS})
file(MAKE_DIRECTORY ${NEW_INPUTS} ${ARTIFACTS})
set(options -runs=${RUNS} -seed=1 -use_cmp=0 -artifact_prefix=${ARTIFACTS}/)
if(DICT)
  list(APPEND options -dict=${DICT})
endif()
execute_process(COMMAND ${FUZZER} ${options} ${NEW_INPUTS} ${SEEDS} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${FUZZER} ended with ${result}; the input is in ${ARTIFACTS}")
endif()
