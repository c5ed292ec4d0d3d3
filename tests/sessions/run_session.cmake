# Runs one session script and holds its end against what the comments at its head ask for:
#
#   # exit: 2                    the exit status, 0 where nothing is said
#   # says: TEXT                 standard error holds TEXT; may stand several times
#   # copies: returns/NAME       a folder of tests/data, copied into ${SCRATCH} before the run
#   # program folder: NAME...    the program runs from a fresh folder that holds nothing but empty folders of
#                                these names ("none" for no folder at all)
#   # isic archive: yes          and of the list of business codes
#
# ${SCRATCH} is a folder of the session's own, empty before each run; an example calls it ${RESULT}.

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
