# SPDX-License-Identifier: MIT
# Makes the documents anew and compares them with those of the tree.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${GENERATOR} ${WORK} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The documents can't be made")
endif()
foreach(document FORMATS.md LOSSES.md DRAWINGS.md BOARDS.md)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${document} ${DOCS}/${document}
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        execute_process(COMMAND diff -u ${DOCS}/${document} ${WORK}/${document})
        message(SEND_ERROR "docs/${document} is behind the code. Make it anew with\n"
            "  cmake --build build --target documents\nand look at what changed.")
    endif()
endforeach()
