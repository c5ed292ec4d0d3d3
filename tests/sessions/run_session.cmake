# Runs one session script and holds its end against what the comments at its head ask for:
#
#   # exit: 2                    the exit status, 0 where nothing is said
#   # says: TEXT                 standard error holds TEXT; may stand several times
#   # copies: returns/NAME       a folder of tests/data, copied into ${SCRATCH} before the run
#   # program folder: NAME...    the program runs from a fresh folder that holds nothing but empty folders of
#                                these names ("none" for no folder at all)
#   # isic archive: yes          and of the list of business codes
#   # same lines: FILE FILE      two stored returns below ${SCRATCH} that must hold the same lines after the run;
#                                may stand several times
#   # nothing in the way: FILE   a stored return below ${SCRATCH} that lodge77-cli check passes after the run
#   # jobs: print/NAME           ${SCRATCH}/jobs holds the files of that folder of tests/data and no others
#
# ${SCRATCH} is a folder of the session's own, empty before each run. A whole return calls it ${RESULT}, because
# ./dev run and people run it as an example, too.

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})

function(head_values key result)
  file(STRINGS ${SCRIPT} lines REGEX "^# ${key}: ")
  set(values "")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^# ${key}: " "" value "${line}")
    list(APPEND values "${value}")
  endforeach()
  set(${result} "${values}" PARENT_SCOPE)
endfunction()

set(options --define SCRATCH=${SCRATCH} --define RESULT=${SCRATCH})
head_values("copies" copied)
foreach(folder IN LISTS copied)
  if(NOT IS_DIRECTORY ${DATA}/${folder})
    message(FATAL_ERROR "${SCRIPT}: there is no ${DATA}/${folder} to copy")
  endif()
  file(COPY ${DATA}/${folder} DESTINATION ${SCRATCH})
endforeach()
head_values("program folder" folders)
if(folders)
  file(MAKE_DIRECTORY ${SCRATCH}/program)
  separate_arguments(folders)
  list(REMOVE_ITEM folders none)
  foreach(folder IN LISTS folders)
    file(MAKE_DIRECTORY ${SCRATCH}/program/${folder})
  endforeach()
  head_values("isic archive" archive)
  if(archive)
    get_filename_component(program ${CLI} DIRECTORY)
    file(COPY ${program}/isic_country_57.txt DESTINATION ${SCRATCH}/program)
  endif()
  list(APPEND options --program-folder ${SCRATCH}/program)
endif()

execute_process(COMMAND ${CLI} run ${SCRIPT} ${options}
  RESULT_VARIABLE status OUTPUT_VARIABLE transcript ERROR_VARIABLE errors)

head_values("exit" wanted)
if(NOT wanted)
  set(wanted 0)
endif()
if(NOT status STREQUAL wanted)
  message(FATAL_ERROR "${SCRIPT}: exit status ${wanted} expected, found ${status}\n${transcript}${errors}")
endif()
head_values("says" texts)
foreach(text IN LISTS texts)
  string(FIND "${errors}" "${text}" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "${SCRIPT}: \"${text}\" expected on standard error, found:\n${errors}")
  endif()
endforeach()

function(decode file)
  execute_process(COMMAND ${CLI} lines ${SCRATCH}/${file}
    RESULT_VARIABLE status OUTPUT_FILE ${SCRATCH}/${file}.lines ERROR_VARIABLE errors)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCRIPT}: ${file} cannot be read\n${errors}")
  endif()
endfunction()

head_values("same lines" pairs)
foreach(pair IN LISTS pairs)
  separate_arguments(pair)
  list(GET pair 0 first)
  list(GET pair 1 second)
  decode(${first})
  decode(${second})
  execute_process(COMMAND diff -u ${SCRATCH}/${first}.lines ${SCRATCH}/${second}.lines
    RESULT_VARIABLE differs OUTPUT_VARIABLE difference ERROR_VARIABLE difference)
  if(differs)
    message(FATAL_ERROR "${SCRIPT}: ${first} and ${second} hold other lines\n${difference}")
  endif()
endforeach()

head_values("nothing in the way" stored)
foreach(file IN LISTS stored)
  execute_process(COMMAND ${CLI} check ${SCRATCH}/${file}
    RESULT_VARIABLE status OUTPUT_VARIABLE problems ERROR_VARIABLE problems)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCRIPT}: something is in the way of filing ${file}\n${problems}")
  endif()
endforeach()

head_values("jobs" printed)
if(printed)
  file(GLOB wanted RELATIVE ${DATA}/${printed} ${DATA}/${printed}/*)
  file(GLOB found RELATIVE ${SCRATCH}/jobs ${SCRATCH}/jobs/*)
  if(NOT found STREQUAL wanted)
    message(FATAL_ERROR "${SCRIPT}: the jobs ${wanted} expected, found ${found}")
  endif()
  foreach(job IN LISTS wanted)
    execute_process(COMMAND diff -u ${DATA}/${printed}/${job} ${SCRATCH}/jobs/${job}
      RESULT_VARIABLE differs OUTPUT_VARIABLE difference ERROR_VARIABLE difference)
    if(differs)
      message(FATAL_ERROR "${SCRIPT}: ${job} is not the job expected\n${difference}")
    endif()
  endforeach()
endif()
