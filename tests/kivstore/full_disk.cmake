# A store folder on a disk that takes no more bytes: the save of a language file fails, the old
# file stays byte for byte, nothing is left half written, and the new text is not lost (it waits
# beside the file and joins it at the next save with room on the disk). The file size limit of
# the process (ulimit -f, with SIGXFSZ ignored so a write fails instead) stands for the full disk.
#   cmake -DWINE_RUN=... -DHELPER=... -DFOLDER=... -DWINE_FOLDER=... -P full_disk.cmake
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER}/lang)
set(header "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n\"Language: de\\n\"\n")
set(text "${header}")
foreach(i RANGE 1999)
  string(APPEND text "\nmsgctxt \"S\\n${i}\"\nmsgid \"Text of the program, line ${i}\"\nmsgstr \"Text des Programms, Zeile ${i}\"\n")
endforeach()
file(WRITE ${FOLDER}/lang/de.po "${text}")
file(SIZE ${FOLDER}/lang/de.po size)
file(WRITE ${FOLDER}/kiv.ini "[Store]\r\nDirectory=${WINE_FOLDER}\\lang\r\n")

# ./kiv test starts Wine's server beforehand, without the limit. A server that this run starts
# itself inherits the limit and cannot save the prefix's registry (it says so and keeps the old).
# The save, with room for 64 KB a file: the language file of ${size} bytes cannot be written.
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env KIV_INI=${WINE_FOLDER}\\kiv.ini
          bash -c "trap '' XFSZ; ulimit -f 64; exec \"$0\" \"$@\"" ${WINE_RUN} ${HELPER} Added Hinzugefuegt de N 1
  RESULT_VARIABLE result)
file(READ ${FOLDER}/lang/de.po after)
if(NOT after STREQUAL text)
  message(FATAL_ERROR "the language file changed although its save failed")
endif()
file(GLOB left ${FOLDER}/lang/*)
list(REMOVE_ITEM left ${FOLDER}/lang/de.po)
list(LENGTH left count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "expected one side file beside de.po, found: ${left}")
endif()
file(READ ${left} aside)
if(NOT aside MATCHES "msgctxt \"N\\\\n1\"\nmsgid \"Added\"\nmsgstr \"Hinzugefuegt\"")
  message(FATAL_ERROR "the new text is not in the side file ${left}:\n${aside}")
endif()
message(STATUS "the save failed (insert answered ${result}); de.po unchanged, the new text waits in ${left}")

# A later run with room on the disk: the text joins the file, the side file goes.
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env KIV_INI=${WINE_FOLDER}\\kiv.ini ${WINE_RUN} ${HELPER} More Mehr de N 2
  RESULT_VARIABLE result)
file(READ ${FOLDER}/lang/de.po after)
string(FIND "${after}" "msgid \"Added\"\nmsgstr \"Hinzugefuegt\"" added)
string(FIND "${after}" "msgid \"More\"\nmsgstr \"Mehr\"" more)
string(FIND "${after}" "${text}" kept)
if(added LESS 0 OR more LESS 0 OR NOT kept EQUAL 0)
  message(FATAL_ERROR "with room again, the file does not hold every text")
endif()
file(GLOB left ${FOLDER}/lang/*)
list(REMOVE_ITEM left ${FOLDER}/lang/de.po)
if(left)
  message(FATAL_ERROR "left beside the file after a save with room: ${left}")
endif()
message(STATUS "with room again, both texts joined de.po")
