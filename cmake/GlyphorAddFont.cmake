# glyphor_add_font(TARGET SOURCE file NAME name [HEIGHT 24px] [FORMAT format] [ENCODING encoding]
#     [FACE index] [BOLD] [ITALIC] [KERNING] [HEADER] [WARNINGS_OK]
#     [ENABLE range...] [DISABLE range...] [CHARSETS name...] [CHARS text...] [TEXTS file...]
#     [PATTERNS file...] [OPTIONS argument...])
#
# Converts a font when TARGET is built, and compiles the C file as one of its sources. The font is called
# GUI_Font and then NAME. KERNING adds NAME_Kerning.c, HEADER makes NAME_Characters.h, with names for
# pictures and mapped characters, for the sources of TARGET. A failure or a warning stops the build and
# leaves the old files; WARNINGS_OK lets warnings pass. OPTIONS go to Glyphor as they are, which runs in
# the folder of the CMakeLists.txt.

# Policies are those of the place where a function is defined.
cmake_policy(VERSION 3.20)

set(_glyphor_convert "${CMAKE_CURRENT_LIST_DIR}/GlyphorConvert.cmake")

# Appends the values of the list to the arguments, each with the option that is given before it.
macro(_glyphor_option list)
    foreach(_glyphor_value IN LISTS ${list})
        string(REPLACE ";" "\\;" _glyphor_value "${_glyphor_value}")
        list(APPEND arguments ${ARGN} "${_glyphor_value}")
    endforeach()
endmacro()

function(_glyphor_check_font target)
    if(NOT TARGET ${target})
        message(FATAL_ERROR "glyphor_add_font: there is no target \"${target}\".")
    endif()
    get_target_property(folder ${target} SOURCE_DIR)
    if(NOT folder STREQUAL CMAKE_CURRENT_SOURCE_DIR)
        message(FATAL_ERROR "glyphor_add_font: call it in the folder of the target \"${target}\": ${folder}")
    endif()
    if(FONT_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "glyphor_add_font: unknown arguments: ${FONT_UNPARSED_ARGUMENTS}")
    endif()
    if(FONT_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "glyphor_add_font: these have no value: ${FONT_KEYWORDS_MISSING_VALUES}")
    endif()
    foreach(keyword SOURCE NAME)
        if(NOT DEFINED FONT_${keyword})
            message(FATAL_ERROR "glyphor_add_font needs ${keyword}.")
        endif()
    endforeach()
    if(NOT FONT_NAME MATCHES "^[A-Za-z0-9_]+$")
        message(FATAL_ERROR "glyphor_add_font: the NAME \"${FONT_NAME}\" is no part of a C identifier.")
    endif()
    if(NOT DEFINED FONT_HEIGHT AND FONT_SOURCE MATCHES "\\.([Tt][Tt][FfCc]|[Oo][Tt][Ff]|[Ww][Oo][Ff][Ff])$")
        message(FATAL_ERROR "glyphor_add_font needs HEIGHT to render ${FONT_SOURCE}.")
    endif()
endfunction()

# Makes the paths of files absolute and collects them.
macro(_glyphor_find_inputs)
    set(inputs "")
    foreach(kind SOURCE TEXTS PATTERNS)
        set(files "")
        foreach(file IN LISTS FONT_${kind})
            cmake_path(ABSOLUTE_PATH file NORMALIZE)
            list(APPEND files "${file}")
        endforeach()
        set(FONT_${kind} "${files}")
        list(APPEND inputs ${files})
    endforeach()
endmacro()

macro(_glyphor_add_arguments)
    foreach(option HEIGHT FORMAT ENCODING FACE)
        string(TOLOWER -${option} name)
        _glyphor_option(FONT_${option} ${name})
    endforeach()
    foreach(flag BOLD ITALIC)
        if(FONT_${flag})
            string(TOLOWER -${flag} name)
            list(APPEND arguments ${name})
        endif()
    endforeach()
    # DISABLE after what adds characters, since it takes away from that.
    _glyphor_option(FONT_ENABLE -enable)
    _glyphor_option(FONT_CHARSETS -charset)
    _glyphor_option(FONT_CHARS -chars)
    _glyphor_option(FONT_TEXTS -text)
    _glyphor_option(FONT_PATTERNS -readpattern)
    _glyphor_option(FONT_DISABLE -disable)
    _glyphor_option(FONT_OPTIONS)
endmacro()

function(glyphor_add_font target)
    cmake_parse_arguments(PARSE_ARGV 1 FONT
        "BOLD;ITALIC;KERNING;HEADER;WARNINGS_OK"
        "SOURCE;NAME;HEIGHT;FORMAT;ENCODING;FACE"
        "ENABLE;DISABLE;CHARSETS;CHARS;TEXTS;PATTERNS;OPTIONS")
    _glyphor_check_font(${target})
    _glyphor_find_inputs()

    # Where only Glyphor knows all inputs, or warnings may pass, a script looks at what came of it before it
    # replaces the old files. Heads of files name them, so they are made under their own names, in another folder.
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/glyphor/${target}")
    set(made "${folder}")
    set(strictness -strict -werror)
    if(FONT_OPTIONS OR FONT_WARNINGS_OK)
        set(made "${folder}/new")
        set(strictness -strict)
    endif()
    set(files ${FONT_NAME}.c)
    set(arguments "${FONT_SOURCE}" -hide -quiet ${strictness} -defaults -set WritePaths=false
        -name ${FONT_NAME} -save "${made}/${FONT_NAME}.c")
    if(FONT_KERNING)
        list(APPEND files ${FONT_NAME}_Kerning.c)
        list(APPEND arguments -kerning "${made}/${FONT_NAME}_Kerning.c")
    endif()
    if(FONT_HEADER)
        list(APPEND files ${FONT_NAME}_Characters.h)
        list(APPEND arguments -header "${made}/${FONT_NAME}_Characters.h")
        target_include_directories(${target} PRIVATE "${folder}")
    endif()
    _glyphor_add_arguments()

    list(TRANSFORM files PREPEND "${folder}/" OUTPUT_VARIABLE outputs)
    file(MAKE_DIRECTORY "${made}")
    set(launcher "")
    set(dependencies "")
    if(FONT_OPTIONS OR FONT_WARNINGS_OK)
        list(JOIN files "\\;" file_list)
        set(launcher "${CMAKE_COMMAND}" "-DFOLDER=${folder}" "-DFILES=${file_list}"
            -DWARNINGS_OK=${FONT_WARNINGS_OK} -P "${_glyphor_convert}" --)
        list(APPEND arguments -depfile "${made}/${FONT_NAME}.d")
        set(dependencies DEPFILE "${folder}/${FONT_NAME}.d")
    endif()
    add_custom_command(
        OUTPUT ${outputs}
        COMMAND ${launcher} $<TARGET_FILE:Glyphor::Glyphor> ${arguments}
        ${dependencies}
        DEPENDS ${inputs} Glyphor::Glyphor "${_glyphor_convert}"
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        COMMENT "Converting ${FONT_NAME}.c"
        VERBATIM)
    target_sources(${target} PRIVATE ${outputs})
endfunction()
