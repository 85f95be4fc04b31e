# Fails when the tiles in TILES are not what SHEET draws.
set(drawn "${CMAKE_CURRENT_BINARY_DIR}/editor-tiles.png")
execute_process(COMMAND "${SHEET}" --tiles "${drawn}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${drawn}" "${TILES}"
  RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "Draw the editor's tiles anew: ${SHEET} --tiles ${TILES}")
endif()
