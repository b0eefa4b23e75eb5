# Settings that every target of the project shares, and the function that makes one floor.

add_library(glyphor_options INTERFACE)
target_compile_options(glyphor_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor)
target_compile_definitions(glyphor_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_NO_URL_CAST_FROM_STRING)

set(sanitizers "")
if(GLYPHOR_SANITIZE)
    list(APPEND sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
endif()
if(GLYPHOR_FUZZ)
    list(APPEND sanitizers -fsanitize=fuzzer-no-link)
endif()
if(sanitizers)
    target_compile_options(glyphor_options INTERFACE ${sanitizers} -fno-omit-frame-pointer)
    target_link_options(glyphor_options INTERFACE ${sanitizers})
endif()

# FreeType's source, for the sanitizers and the fuzzers to see into it as well.
if(GLYPHOR_FREETYPE_SOURCE)
    set(FT_DISABLE_HARFBUZZ ON)
    add_subdirectory(${GLYPHOR_FREETYPE_SOURCE} freetype EXCLUDE_FROM_ALL)
    set_target_properties(freetype PROPERTIES UNITY_BUILD OFF COMPILE_WARNING_AS_ERROR OFF)
    # It adds 0 to null pointers here and there.
    target_compile_options(freetype PRIVATE ${sanitizers} -fno-sanitize=pointer-overflow)
    add_library(Freetype::Freetype ALIAS freetype)
endif()

# glyphor_floor(NAME SOURCES file... USES library...)
#
# Makes the static library of one floor. USES names the floors below it and the outside libraries
# that it may use; docs/architecture.md has the whole table.
function(glyphor_floor name)
    cmake_parse_arguments(FLOOR "" "" "SOURCES;USES" ${ARGN})
    add_library(glyphor_${name} STATIC ${FLOOR_SOURCES})
    target_include_directories(glyphor_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(glyphor_${name} PUBLIC ${FLOOR_USES} PRIVATE glyphor_options)
    glyphor_unity(glyphor_${name})
endfunction()

# Where files are compiled together (CMAKE_UNITY_BUILD), clang-tidy is not to wonder at that.
function(glyphor_unity target)
    set_target_properties(${target} PROPERTIES
        UNITY_BUILD_BATCH_SIZE 16
        UNITY_BUILD_CODE_BEFORE_INCLUDE "// NOLINTNEXTLINE(bugprone-suspicious-include)")
endfunction()
