# SPDX-License-Identifier: MIT
# Takes every word out of the plug-in's sources: the types, keys, tags and attributes of its tables, and the texts that
# its conversions look for. Writes them as a dictionary of libFuzzer and as rows of a table for the mutations.
#
# -DSOURCES=a;b;c -DDICTIONARY=file -DTABLE=file

set(words)
foreach(source IN LISTS SOURCES)
    file(READ ${source} text)
    string(REGEX REPLACE "#include[^\n]*" "" text "${text}")
    string(REGEX MATCHALL "\"[A-Za-z_#][A-Za-z0-9_:./# -]*\"" found "${text}")
    list(APPEND words ${found})
endforeach()
list(REMOVE_DUPLICATES words)
list(SORT words)

list(JOIN words "\n" dictionary)
list(JOIN words ",\n" table)
file(WRITE ${DICTIONARY} "${dictionary}\n")
file(WRITE ${TABLE} "${table},\n")
