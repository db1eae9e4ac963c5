# cmake -D PROGRAM=FILE -D NAME=... -D PURPOSE=... -D VERSION=... -D PAGE=FILE -P ManualPage.cmake
#
# Makes a manual page of what a program says of itself when it is asked for help.

set(ENV{QT_QPA_PLATFORM} offscreen)
execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR help STREQUAL "")
    message(FATAL_ERROR "${PROGRAM} --help tells nothing: ${status}")
endif()
# A dot or a quote at the beginning of a line, a backslash and a hyphen mean something to the formatter.
string(REPLACE "\\" "\\e" help "${help}")
string(REPLACE "-" "\\-" help "${help}")
string(REPLACE "\n." "\n\\&." help "${help}")
string(REPLACE "\n'" "\n\\&'" help "${help}")
string(TOUPPER ${NAME} title)
file(WRITE ${PAGE} ".TH ${title} 1 \"\" \"Quillmere ${VERSION}\"\n"
    ".SH NAME\n${NAME} \\- ${PURPOSE}\n"
    ".SH DESCRIPTION\n.nf\n${help}.fi\n")
