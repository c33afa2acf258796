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

# omk_library(NAME SOURCES ... LINK ...): builds one layer as a static library. It may include only what it links.
function(omk_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE omk_options)
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
