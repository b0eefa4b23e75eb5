# cmake -DFOLDER=... -DFILES=... -DWARNINGS_OK=... -P GlyphorConvert.cmake -- COMMAND...
#
# Runs a command that writes FILES and a file of dependencies into the folder "new" of FOLDER, and moves
# them to FOLDER if all went well.

set(command "")
set(is_command FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    string(REPLACE ";" "\\;" argument "${CMAKE_ARGV${index}}")
    if(is_command)
        list(APPEND command "${argument}")
    elseif(argument STREQUAL "--")
        set(is_command TRUE)
    endif()
endforeach()

execute_process(COMMAND ${command} RESULT_VARIABLE status)
if(NOT status EQUAL 0 AND NOT (status EQUAL 2 AND WARNINGS_OK))
    message(FATAL_ERROR "The old files stay: ${FILES}")
endif()

list(GET FILES 0 depfile)
string(REGEX REPLACE "\\.c$" ".d" depfile "${depfile}")
file(READ "${FOLDER}/new/${depfile}" rules)
# Glyphor names files as it was told them, and CMake takes relative paths from the folder of the build.
string(REGEX REPLACE "([ #])" "\\\\\\1" here "${CMAKE_CURRENT_SOURCE_DIR}")
string(REPLACE "$" "$$" here "${here}")
string(REGEX REPLACE "\n  ([^/ \n]([^\\:]|\\\\[^:]))" "\n  ./\\1" rules "${rules}")
string(REPLACE "\n  ./" "\n  ${here}/" rules "${rules}")
foreach(file IN LISTS FILES)
    string(REGEX REPLACE "^([^\n]*)/new/${file}" "\\1/${file}" rules "${rules}")
endforeach()
file(WRITE "${FOLDER}/${depfile}" "${rules}")
foreach(file IN LISTS FILES)
    file(RENAME "${FOLDER}/new/${file}" "${FOLDER}/${file}")
endforeach()
