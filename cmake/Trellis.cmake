# Options, flags and the few functions with which folders declare what they build.

option(TRELLIS_TESTS "build the tests" ON)
option(TRELLIS_BENCH "build the benchmarks" OFF)
option(TRELLIS_PCH "precompile the standard headers" OFF)
set(TRELLIS_SANITIZE "" CACHE STRING "sanitizers, as in -fsanitize=")

add_library(trellis-flags INTERFACE)
target_compile_options(trellis-flags INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wnon-virtual-dtor -Wcast-qual -Wformat=2 -Wimplicit-fallthrough
    -Wmissing-declarations -Wold-style-cast -Wunused)
# With optimization g++ 12 sees faults inside std::string that are none; the sanitizers find the real ones.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(trellis-flags INTERFACE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow)
    if(TRELLIS_SANITIZE)
        target_compile_options(trellis-flags INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
target_link_options(trellis-flags INTERFACE -Wl,--no-undefined -Wl,--as-needed)
if(TRELLIS_SANITIZE)
    target_compile_options(trellis-flags INTERFACE -fsanitize=${TRELLIS_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    target_link_options(trellis-flags INTERFACE -fsanitize=${TRELLIS_SANITIZE})
    target_compile_definitions(trellis-flags INTERFACE TRELLIS_SANITIZED)
endif()

# Contracts: headers alone. Whoever links this sees include/ and nothing below it.
add_library(trellis-contracts INTERFACE)
target_include_directories(trellis-contracts INTERFACE ${CMAKE_SOURCE_DIR}/include)
target_link_libraries(trellis-contracts INTERFACE trellis-flags)

set(TRELLIS_PCH_HEADERS <algorithm> <cstdint> <functional> <map> <memory> <optional> <string> <string_view>
    <unordered_map> <utility> <vector>)

function(trellis_precompile target)
    if(TRELLIS_PCH)
        target_precompile_headers(${target} PRIVATE ${TRELLIS_PCH_HEADERS})
    endif()
endfunction()

# trellis_platform_folder(name SOURCES ... [LIBRARIES ...])
# One folder of platform/: an object library that becomes part of libtrellis-platform.so. LIBRARIES are those
# of the system that this folder alone may include.
function(trellis_platform_folder name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(trellis-${name} OBJECT ${ARG_SOURCES})
    target_link_libraries(trellis-${name} PUBLIC trellis-contracts PRIVATE ${ARG_LIBRARIES})
    target_include_directories(trellis-${name} PRIVATE ${CMAKE_SOURCE_DIR}/platform)
    trellis_precompile(trellis-${name})
    target_sources(trellis-platform PRIVATE $<TARGET_OBJECTS:trellis-${name}>)
    target_link_libraries(trellis-platform PRIVATE ${ARG_LIBRARIES})
    set_property(GLOBAL APPEND PROPERTY TRELLIS_PLATFORM_OBJECTS $<TARGET_OBJECTS:trellis-${name}>)
    set_property(GLOBAL APPEND PROPERTY TRELLIS_PLATFORM_LIBRARIES ${ARG_LIBRARIES})
endfunction()

# trellis_test(name SOURCES ... [LABEL unit|journey|x11] [APART] [INTERNAL | FOLDERS ...] [LIBRARIES ...])
# INTERNAL tests look behind the contracts: they link the objects of the platform, whose inner classes the
# shared library hides; FOLDERS names the few that are enough. All others link the library as a host does. Tests of label unit run in one process,
# shuffled; each test case of label journey, or of one that is to be APART, runs in a process of its own, so that the statics of the module start fresh.
function(trellis_test name)
    cmake_parse_arguments(ARG "INTERNAL;APART" "LABEL" "SOURCES;LIBRARIES;FOLDERS" ${ARGN})
    if(NOT ARG_LABEL)
        set(ARG_LABEL unit)
    endif()
    set(target test-${name})
    add_executable(${target} ${ARG_SOURCES})
    target_link_libraries(${target} PRIVATE trellis-contracts GTest::gtest GTest::gtest_main ${ARG_LIBRARIES})
    target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${target} PRIVATE TRELLIS_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
        TRELLIS_PROGRAM="$<TARGET_FILE:trellis>")
    if(ARG_FOLDERS)
        foreach(folder ${ARG_FOLDERS})
            target_sources(${target} PRIVATE $<TARGET_OBJECTS:trellis-${folder}>)
        endforeach()
        target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/platform)
    elseif(ARG_INTERNAL)
        get_property(objects GLOBAL PROPERTY TRELLIS_PLATFORM_OBJECTS)
        get_property(libraries GLOBAL PROPERTY TRELLIS_PLATFORM_LIBRARIES)
        target_sources(${target} PRIVATE ${objects})
        target_link_libraries(${target} PRIVATE ${libraries})
        target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/platform)
    else()
        target_link_libraries(${target} PRIVATE trellis-platform)
    endif()
    trellis_precompile(${target})
    set(environment "TRELLIS_RESOURCES=${CMAKE_SOURCE_DIR}/resources")
    # A property of its own: a list does not survive the discovery of tests.
    set(leaks "LSAN_OPTIONS=set:suppressions=${CMAKE_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0")
    if(ARG_APART OR ARG_LABEL STREQUAL journey)
        add_dependencies(${target} trellis trellis-module)
        gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST PROPERTIES LABELS ${ARG_LABEL}
            ENVIRONMENT "${environment}" ENVIRONMENT_MODIFICATION "${leaks}")
    else()
        add_test(NAME ${name} COMMAND ${target} --gtest_shuffle --gtest_brief=1)
        set_tests_properties(${name} PROPERTIES LABELS ${ARG_LABEL} TIMEOUT 300
            ENVIRONMENT "${environment}" ENVIRONMENT_MODIFICATION "${leaks}")
    endif()
endfunction()
