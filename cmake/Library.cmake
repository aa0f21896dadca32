# SPDX-License-Identifier: MIT
# Adds a library of our own: tarqen_library(NAME STATIC|OBJECT SOURCES file... LINK library...).
# A folder that holds no source yet makes a library without code, so that what stands above it can be built all the same.
function(tarqen_library name kind)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SOURCES;LINK")
    if(arg_SOURCES)
        add_library(${name} ${kind} ${arg_SOURCES})
        target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
        target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE tarqen_warnings)
    else()
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE "${PROJECT_SOURCE_DIR}/src")
        target_link_libraries(${name} INTERFACE ${arg_LINK})
    endif()
endfunction()
