# SPDX-License-Identifier: MIT
# Has the command write the completion of each shell into FOLDER.
file(MAKE_DIRECTORY ${FOLDER})
foreach(shell bash zsh fish)
    execute_process(COMMAND ${COMMAND} completion ${shell} OUTPUT_FILE ${FOLDER}/lessonconv.${shell}.new
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "The completion for ${shell} could not be written")
    endif()
    file(RENAME ${FOLDER}/lessonconv.${shell}.new ${FOLDER}/lessonconv.${shell})
endforeach()
