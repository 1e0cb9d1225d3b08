# Flags that every target of the project shares, on one interface target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The Python module takes the libraries into a shared object.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

option(K7DEVAL_SANITIZE "Address and undefined-behaviour sanitizers" OFF)

# Several sources in one run of the compiler, which reads the headers that they share once: a whole build takes a third
# of the time. Names in anonymous namespaces must differ within a target for it.
option(K7DEVAL_JUMBO "Compile several sources at once" OFF)
set(CMAKE_UNITY_BUILD ${K7DEVAL_JUMBO})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 12 CACHE STRING "How many sources at once")

include(Layers)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(k7deval_options INTERFACE)
add_library(k7deval::options ALIAS k7deval_options)
target_compile_options(k7deval_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
# GCC 12, when it optimises, sees an overlap in std::string's own copying that is not there.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(k7deval_options INTERFACE -Wno-restrict)
endif()
if(K7DEVAL_JUMBO AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC takes the sources of a batch for headers, where a class on a local one is a slip.
    target_compile_options(k7deval_options INTERFACE -Wno-subobject-linkage)
endif()
if(K7DEVAL_SANITIZE)
    target_compile_options(k7deval_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(k7deval_options INTERFACE -fsanitize=address,undefined)
endif()

# k7deval_add_library(NAME SOURCES ... HEADERS ... DEPENDS ... PRIVATE_DEPENDS ...)
# One target per folder with the alias k7deval::NAME; each header is also compiled alone.
function(k7deval_add_library name)
    cmake_parse_arguments(ARG "" "ROOT" "SOURCES;HEADERS;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
    add_library(k7deval_${name} STATIC ${ARG_SOURCES})
    add_library(k7deval::${name} ALIAS k7deval_${name})
    target_sources(k7deval_${name} PUBLIC FILE_SET HEADERS
        BASE_DIRS ${ARG_ROOT} FILES ${ARG_HEADERS})
    target_link_libraries(k7deval_${name}
        PUBLIC ${ARG_DEPENDS}
        PRIVATE $<BUILD_INTERFACE:k7deval_options> ${ARG_PRIVATE_DEPENDS})
    set_target_properties(k7deval_${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
    k7deval_keep_to_layer(k7deval_${name} ${name} ${ARG_DEPENDS} ${ARG_PRIVATE_DEPENDS})
endfunction()
