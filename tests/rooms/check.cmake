# SPDX-License-Identifier: MIT
# No file of the host includes a room above its own or beside it.
#
#   cmake -DHOST=folder -P check.cmake

# From above to below; the rooms of one floor don't know one another.
set(floors "command" "batch" "formats|render" "drawings" "canvas" "iwb" "losses|svg" "lesson" "files" "sentences|threads")

set(closed "")
foreach(floor IN LISTS floors)
    string(REPLACE "|" ";" rooms "${floor}")
    set(closed "${closed}|${floor}")
    foreach(room IN LISTS rooms)
        file(GLOB_RECURSE sources "${HOST}/${room}/*.h" "${HOST}/${room}/*.cpp")
        if(NOT sources)
            message(FATAL_ERROR "There is no room ${room} in ${HOST}")
        endif()
        foreach(source IN LISTS sources)
            file(STRINGS "${source}" includes REGEX "^#include \"")
            foreach(include IN LISTS includes)
                string(REGEX MATCH "\"([a-z]+)/" found "${include}")
                set(other "${CMAKE_MATCH_1}")
                if(found AND NOT other STREQUAL room AND "${closed}|" MATCHES "[|]${other}[|]")
                    message(SEND_ERROR "${source} includes a room that isn't below its own: ${include}")
                endif()
            endforeach()
        endforeach()
    endforeach()
endforeach()

# Translations are no code.
set(closed "${closed}|translations")
file(GLOB entries RELATIVE "${HOST}" "${HOST}/*")
foreach(entry IN LISTS entries)
    if(IS_DIRECTORY "${HOST}/${entry}" AND NOT "${closed}|" MATCHES "[|]${entry}[|]")
        message(SEND_ERROR "The room ${entry} stands on no floor here")
    endif()
endforeach()
