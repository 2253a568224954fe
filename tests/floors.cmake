# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a file includes or imports from a folder that stands above its own. Run with -DSOURCE=<top of the tree>.
cmake_minimum_required(VERSION 3.25)

# Each line is a floor, from the ground up; folders on one floor know nothing of each other.
set(floors
    "model"
    "link"
    "report"
    "heatstress soundlevel"
    "thalvex2 thalvex4 ardel nembra nembraplus lomtrix zelk"
    "app")
set(page_floors
    "qml/widgets"
    "qml/charts"
    "qml/pages"
    "qml/shell heatstress/qml soundlevel/qml"
    "thalvex2/qml thalvex4/qml ardel/qml nembra/qml nembraplus/qml lomtrix/qml zelk/qml"
    "qml")

set(faults)

# Sets ${result} to the number of the floor of ${folder}, -1 for a folder that stands outside of the house.
function(floor_of result folder)
    set(number 0)
    set(${result} -1 PARENT_SCOPE)
    foreach(floor IN LISTS ARGN)
        separate_arguments(folders UNIX_COMMAND "${floor}")
        if(folder IN_LIST folders)
            set(${result} ${number} PARENT_SCOPE)
        endif()
        math(EXPR number "${number} + 1")
    endforeach()
endfunction()

# Looks at what ${file} of ${folder} takes from ${other}.
macro(check file folder other)
    floor_of(here ${folder} ${ARGN})
    floor_of(there ${other} ${ARGN})
    if(NOT "${folder}" STREQUAL "${other}" AND there GREATER_EQUAL here)
        list(APPEND faults "${file} takes from ${other}/")
    endif()
endmacro()

foreach(floor IN LISTS floors)
    separate_arguments(folders UNIX_COMMAND "${floor}")
    foreach(folder IN LISTS folders)
        file(GLOB files ${SOURCE}/${folder}/*.h ${SOURCE}/${folder}/*.cpp)
        foreach(file IN LISTS files)
            file(STRINGS ${file} includes REGEX "^#include \"")
            foreach(include IN LISTS includes)
                string(REGEX REPLACE "^#include \"([^/\"]*)/.*" "\\1" other "${include}")
                check(${file} ${folder} ${other} ${floors})
            endforeach()
        endforeach()
    endforeach()
endforeach()

foreach(floor IN LISTS page_floors)
    separate_arguments(folders UNIX_COMMAND "${floor}")
    foreach(folder IN LISTS folders)
        file(GLOB files ${SOURCE}/${folder}/*.qml ${SOURCE}/${folder}/*.js)
        foreach(file IN LISTS files)
            file(STRINGS ${file} imports REGEX "^(\\.)?import \"")
            foreach(import IN LISTS imports)
                string(REGEX REPLACE "^\\.?import \"([^\"]*)\".*" "\\1" path "${import}")
                get_filename_component(path ${SOURCE}/${folder}/${path} ABSOLUTE)
                if(NOT IS_DIRECTORY ${path})
                    get_filename_component(path ${path} DIRECTORY)
                endif()
                file(RELATIVE_PATH other ${SOURCE} ${path})
                check(${file} ${folder} ${other} ${page_floors})
            endforeach()
        endforeach()
    endforeach()
endforeach()

if(faults)
    list(JOIN faults "\n" text)
    message(FATAL_ERROR "Folders include only from the floors below them:\n${text}")
endif()
