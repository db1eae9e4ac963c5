# Runs one scenario in a fresh folder of its own and compares what it prints with the transcript kept
# beside the script:
#   cmake -D RUNNER=program -D TOOLKIT=model -D SCRIPT=x.scn -D EXPECTED=x.out -D WORK=folder
#       [-D SERVER=folder] -P RunScenario.cmake
# SERVER is what scripts/postgresql-server has written: the scenario runs on that server.
# To take over a new transcript, read it, then copy WORK/transcript.out over EXPECTED.

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/run)
set(transcript ${WORK}/transcript.out)

set(database sqlite)
if(SERVER)
    if(NOT EXISTS ${SERVER}/uri)
        set(reason "none has been started")
        if(EXISTS ${SERVER}/reason)
            file(STRINGS ${SERVER}/reason reason)
        endif()
        message("No PostgreSQL server: ${reason}")
        return()
    endif()
    file(STRINGS ${SERVER}/uri database)
    string(PREPEND database "postgresql:")
endif()

execute_process(COMMAND ${RUNNER} --toolkit ${TOOLKIT} --database ${database} ${SCRIPT}
    WORKING_DIRECTORY ${WORK}/run
    OUTPUT_FILE ${transcript}
    ERROR_VARIABLE complaint
    RESULT_VARIABLE status)

if(NOT EXISTS ${EXPECTED})
    message(FATAL_ERROR "${SCRIPT} has no transcript beside it; this run printed ${transcript}")
endif()

execute_process(COMMAND diff -u ${EXPECTED} ${transcript} OUTPUT_VARIABLE difference
    ERROR_VARIABLE diffComplaint RESULT_VARIABLE differs)
if(NOT differs EQUAL 0)
    message("${difference}${diffComplaint}")
endif()
if(NOT status EQUAL 0)
    message("${complaint}")
    message(FATAL_ERROR "${SCRIPT}: status ${status}")
elseif(NOT differs EQUAL 0)
    message(FATAL_ERROR "${SCRIPT}: the transcript differs")
endif()
