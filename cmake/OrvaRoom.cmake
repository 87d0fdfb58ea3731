# SPDX-License-Identifier: GPL-3.0-or-later
# One library per room of src/. A room links the rooms it may include and no others,
# so that a call along a forbidden arrow is an unresolved symbol.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()

# The installation folder at run time: programs, database, names, tips and help side by side.
set(ORVA_INSTALLATION_DIR "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${ORVA_INSTALLATION_DIR}")

add_library(orva_flags INTERFACE)
target_include_directories(orva_flags INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(MSVC)
    target_compile_options(orva_flags INTERFACE /W4 /utf-8 /fp:precise)
    if(ORVA_WARNINGS_AS_ERRORS)
        target_compile_options(orva_flags INTERFACE /WX)
    endif()
else()
    # No fused multiply-add: the digits of a result must not depend on the machine.
    target_compile_options(orva_flags INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor -ffp-contract=off)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # False alarms of GCC 12 on strings that are joined or assigned.
        target_compile_options(orva_flags INTERFACE -Wno-array-bounds -Wno-stringop-overflow -Wno-restrict)
    endif()
    if(ORVA_WARNINGS_AS_ERRORS)
        target_compile_options(orva_flags INTERFACE -Werror)
    endif()
    if(ORVA_SANITIZE)
        target_compile_options(orva_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
        target_link_options(orva_flags INTERFACE -fsanitize=address,undefined)
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
            # A false alarm of GCC 12 under the sanitizers, inside <regex>.
            target_compile_options(orva_flags INTERFACE -Wno-maybe-uninitialized)
        endif()
    endif()
endif()

# orva_room(<name> SOURCES <file>... [LINKS <target>...])
function(orva_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(orva_${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(orva_${name} PUBLIC orva_flags ${ROOM_LINKS})
    target_precompile_headers(orva_${name} PRIVATE <algorithm> <array> <cmath> <cstdint> <map> <optional> <string>
                              <string_view> <vector>)
endfunction()
