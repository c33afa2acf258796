# What all our targets have in common: the warnings, which stop the build, and the sanitizers of the debug build.

add_library(omk_options INTERFACE)
target_compile_options(omk_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
target_compile_definitions(omk_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_USE_QSTRINGBUILDER)
# Distributions harden their programs with these options. They are of no use together with the sanitizers.
target_compile_options(omk_options INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
if(OMK_SANITIZE)
    target_compile_options(omk_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(omk_options INTERFACE -fsanitize=address,undefined)
endif()
if(OMK_FUZZ) # the instrumentation that guides the fuzzer; a fuzz target links the fuzzer itself
    target_compile_options(omk_options INTERFACE -fsanitize=fuzzer-no-link,float-cast-overflow -fno-sanitize-recover=float-cast-overflow)
endif()

# omk_library(NAME SOURCES ... LINK ...): builds a static library.
function(omk_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE omk_options)
endfunction()

# omk_layer(NAME SOURCES ... LINK ...): builds the layer that is in the current folder. Its headers are included by their path below
# src/, for example "text/Dates.h". Each layer has an include folder of its own with only a link to its sources, so that a file finds
# the headers of the layers that it links and no others.
function(omk_layer name)
    omk_library(${name} ${ARGN})
    file(RELATIVE_PATH layer ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    set(root ${PROJECT_BINARY_DIR}/include/${name})
    cmake_path(GET layer PARENT_PATH above)
    file(MAKE_DIRECTORY ${root}/${above})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${layer} SYMBOLIC)
    target_include_directories(${name} PUBLIC ${root})
endfunction()

# omk_program(NAME SOURCES ... LINK ...): builds a program.
function(omk_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} omk_options)
endfunction()

# omk_rows(VARIABLE FILE): sets the variable to the lines of a text file, written as the rows of a C++ array of texts. Lines that
# begin with # are comments and are left out. A line must not contain a semicolon, bracket or backslash.
function(omk_rows variable file)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(STRINGS ${file} rows REGEX "^[^#]" ENCODING UTF-8)
    list(TRANSFORM rows REPLACE "\"" "\\\\\"")
    list(TRANSFORM rows PREPEND "    \"")
    list(TRANSFORM rows APPEND "\",")
    list(JOIN rows "\n" joined)
    set(${variable} "${joined}" PARENT_SCOPE)
endfunction()
