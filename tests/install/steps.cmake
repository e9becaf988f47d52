# What the checks of an installation share.

# step(COMMAND...): runs it and stops with its output if it fails; leaves the output in "output".
function(step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# pkg-config, where there is one, tells the place of the plug-in that was installed.
function(check_pkg_config root)
    find_program(PKG_CONFIG pkg-config)
    if(PKG_CONFIG)
        set(ENV{PKG_CONFIG_PATH} ${root}/${PLUGIN_FOLDER}/../../../pkgconfig)
        step(${PKG_CONFIG} --variable=plugin zqtransformation)
        string(STRIP "${output}" plugin)
        if(NOT EXISTS ${plugin})
            message(FATAL_ERROR "pkg-config says that the plug-in is ${plugin}")
        endif()
    endif()
endfunction()

function(check_is_installed root)
    foreach(file ${PLUGIN_FOLDER}/libzqtransformation.so bin/lessonconv share/man/man1/lessonconv.1
            share/bash-completion/completions/lessonconv)
        if(NOT EXISTS ${root}/${file})
            message(FATAL_ERROR "${file} was not installed")
        endif()
    endforeach()
    check_pkg_config(${root})
endfunction()

# Builds the example hosts against what is installed in root and runs them.
function(check_example_hosts root)
    step(${CMAKE_COMMAND} -S ${SOURCE}/examples/host -B ${WORK}/host -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${root})
    step(${CMAKE_COMMAND} --build ${WORK}/host)
    step(${WORK}/host/minimalhost)
    if(NOT output MATCHES "ZQSmoothStroke 42")
        message(FATAL_ERROR "The minimal host read something else:\n${output}")
    endif()
    step(${WORK}/host/textruns)
endfunction()
