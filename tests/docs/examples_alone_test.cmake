# The examples build without the rest of the repository, as somebody would copy them, and do what the documents say.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE failed OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(failed)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}: ${failed}\n${out}")
  endif()
endfunction()

run(${CMAKE_COMMAND} -S ${SOURCE}/examples -B ${BUILD} -G Ninja -D CMAKE_CXX_COMPILER=${CXX}
  -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} -D CMAKE_BUILD_TYPE=RelWithDebInfo)
run(${CMAKE_COMMAND} --build ${BUILD})
foreach(document IN ITEMS embed override)
  run(${PYTHON} -B ${SOURCE}/tests/docs/run_console.py ${BUILD}/bin ${SOURCE}/docs/${document}.md)
endforeach()
