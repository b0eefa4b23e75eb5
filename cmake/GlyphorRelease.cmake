# The time that the program gives for its making: SOURCE_DATE_EPOCH, or else the date of the release. The
# same sources make the same program, whenever they are compiled.

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md release_heading
    REGEX "^## ${PROJECT_VERSION} - [0-9]+-[0-9]+-[0-9]+$")
if(NOT release_heading)
    message(FATAL_ERROR "CHANGELOG.md needs a line \"## ${PROJECT_VERSION} - YEAR-MONTH-DAY\".")
endif()
string(REGEX REPLACE ".* - " "" release_date "${release_heading}")

set(release_time 00:00:00)
if(NOT "$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    string(TIMESTAMP release_date %Y-%m-%d UTC)
    string(TIMESTAMP release_time %H:%M:%S UTC)
endif()

# In the form of the preprocessor: "Jul 30 2024", "Jul  3 2024".
string(REPLACE "-" ";" parts ${release_date})
list(GET parts 0 year)
list(GET parts 1 month)
list(GET parts 2 day)
set(months . Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
list(GET months ${month} month)
string(REGEX REPLACE "^0" " " day ${day})
set(compiled_date "${month} ${day} ${year}")
