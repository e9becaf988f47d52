# Installs into a fresh folder, builds the minimal host against what is there and runs it.
file(REMOVE_RECURSE ${WORK})
function(step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/root)
foreach(file ${PLUGIN_FOLDER}/libzqtransformation.so bin/lessonconv share/man/man1/lessonconv.1
        share/bash-completion/completions/lessonconv)
    if(NOT EXISTS ${WORK}/root/${file})
        message(FATAL_ERROR "${file} was not installed")
    endif()
endforeach()

step(${CMAKE_COMMAND} -S ${SOURCE}/examples/host -B ${WORK}/host -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${WORK}/root)
step(${CMAKE_COMMAND} --build ${WORK}/host)
step(${WORK}/host/minimalhost)
if(NOT output MATCHES "ZQSmoothStroke 42")
    message(FATAL_ERROR "The minimal host read something else:\n${output}")
endif()
# Moved away from the folder that it was built in, the command finds the plug-in that was installed with it.
step(${CMAKE_COMMAND} -E rename ${WORK}/root ${WORK}/moved)
step(${WORK}/moved/bin/lessonconv info ${SOURCE}/examples/handwriting --json)
step(bash -n ${WORK}/moved/share/bash-completion/completions/lessonconv)
