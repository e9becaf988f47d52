# SPDX-License-Identifier: MIT
# What the checks of an installation share.

# step(COMMAND...): runs it and stops with its output if it fails; leaves the output in "output".
function(step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# pkg-config, where there is one, tells the place of the plug-in below the prefix.
function(check_pkg_config root prefix)
    find_program(PKG_CONFIG pkg-config)
    if(PKG_CONFIG)
        set(ENV{PKG_CONFIG_PATH} ${root}/${PLUGIN_FOLDER}/../../../pkgconfig)
        step(${PKG_CONFIG} --variable=plugin zqtransformation)
        string(STRIP "${output}" plugin)
        if(NOT plugin STREQUAL "${prefix}/${PLUGIN_FOLDER}/libzqtransformation.so")
            message(FATAL_ERROR "pkg-config says that the plug-in is ${plugin}")
        endif()
    endif()
endfunction()

# What file managers are told is judged by their own tools, where the machine has them.
function(check_desktop share)
    find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
    if(DESKTOP_FILE_VALIDATE)
        step(${DESKTOP_FILE_VALIDATE} ${share}/applications/lessonconv.desktop)
        if(NOT output STREQUAL "")
            message(FATAL_ERROR "${output}")
        endif()
    endif()
    find_program(APPSTREAMCLI appstreamcli)
    if(APPSTREAMCLI)
        step(${APPSTREAMCLI} validate --no-net ${share}/metainfo/org.lessonconv.lessonconv.metainfo.xml)
    endif()
    find_program(UPDATE_MIME_DATABASE update-mime-database)
    find_program(GIO gio)
    if(UPDATE_MIME_DATABASE AND GIO AND EXISTS /usr/share/mime/packages/freedesktop.org.xml)
        file(COPY /usr/share/mime/packages/freedesktop.org.xml DESTINATION ${WORK}/data/mime/packages)
        file(COPY ${share}/mime/packages/lessonconv.xml DESTINATION ${WORK}/data/mime/packages)
        step(${UPDATE_MIME_DATABASE} ${WORK}/data/mime)
        step(${COMMAND} convert ${SOURCE}/examples/geometry ${WORK}/geometry.zqtx --quiet)
        step(${COMMAND} convert ${SOURCE}/examples/geometry ${WORK}/geometry.iwb --quiet)
        file(COPY_FILE ${WORK}/geometry.zqtx ${WORK}/nameless)
        foreach(pair "geometry.zqtx zqtx" "geometry.iwb iwb" "nameless zqtx")
            separate_arguments(pair)
            list(GET pair 0 file)
            list(GET pair 1 type)
            step(${CMAKE_COMMAND} -E env XDG_DATA_HOME=${WORK}/data XDG_DATA_DIRS=${WORK}/data
                ${GIO} info -a standard::content-type ${WORK}/${file})
            if(NOT output MATCHES "application/x-${type}-lesson")
                message(FATAL_ERROR "${file} is taken for something else:\n${output}")
            endif()
        endforeach()
    endif()
endfunction()

function(check_is_installed root prefix)
    set(share ${root}/share)
    foreach(file ${root}/${PLUGIN_FOLDER}/libzqtransformation.so ${root}/bin/lessonconv
            ${share}/man/man1/lessonconv.1.gz ${share}/bash-completion/completions/lessonconv
            ${share}/doc/lessonconv/copyright ${share}/thumbnailers/lessonconv.thumbnailer
            ${share}/kio/servicemenus/lessonconv.desktop ${share}/icons/hicolor/scalable/apps/lessonconv.svg
            ${share}/icons/hicolor/symbolic/apps/lessonconv-symbolic.svg)
        if(NOT EXISTS ${file})
            message(FATAL_ERROR "${file} was not installed")
        endif()
    endforeach()
    check_pkg_config(${root} ${prefix})
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
