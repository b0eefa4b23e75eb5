# What find_package(Glyphor) gives: the program Glyphor::Glyphor, and glyphor_add_font().

if(CMAKE_VERSION VERSION_LESS 3.20)
    set(Glyphor_FOUND FALSE)
    set(Glyphor_NOT_FOUND_MESSAGE "Glyphor needs CMake 3.20.")
    return()
endif()
include("${CMAKE_CURRENT_LIST_DIR}/GlyphorProgram.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/GlyphorAddFont.cmake")
