# Plays a map's solution in a directory of its own, on the maps and lists of the folder MAPS. It must win, and lead to the next map of the
# list or, from the last one, to the list's end.
#   cmake -D TRACE=tumbledeep-trace -D MAP=NAME -D MAPS=FOLDER -P PlaySolution.cmake
set(levels ${CMAKE_CURRENT_LIST_DIR})
set(solution "${levels}/solutions/${MAP}.txt")

string(RANDOM LENGTH 12 tag)
set(directory "$ENV{TMPDIR}")
if(NOT directory)
  set(directory /tmp)
endif()
string(APPEND directory "/tumbledeep-level-${tag}")
file(GLOB maps "${MAPS}/*.TB[ML]")
file(COPY ${maps} DESTINATION "${directory}")

# A run ends by itself when it is won; a solution that loses its way plays on to this step.
execute_process(
  COMMAND ${TRACE} --dir "${directory}" --seed 1 --steps 100000 --quiet --script "${solution}"
          "${MAP}.TBM"
  OUTPUT_VARIABLE lines
  RESULT_VARIABLE status)
file(REMOVE_RECURSE "${directory}")

file(STRINGS "${levels}/Default.TBL" names)
list(FIND names "${MAP}" place)
math(EXPR place "${place} + 1")
list(LENGTH names count)
if(place LESS count)
  list(GET names ${place} next)
  set(expected "ini \"Level\" \"LOAD\" \"${next}.TBM\"\nstart ")
else()
  set(expected "box 0 \"There are no morelevels!\"")
endif()
foreach(part IN ITEMS "box 16 \"You won\" = 1" "${expected}")
  string(FIND "${lines}" "${part}" found)
  if(found LESS 0 OR NOT status EQUAL 0)
    message(FATAL_ERROR "${MAP} was not won as its solution says; status ${status}, no line "
                        "${part} in:\n${lines}")
  endif()
endforeach()
