# Runs the program and compares what it tells with what is expected.
#
#   cmake -DPROGRAM=... -DARGUMENTS="replay|file" -DSTATUS=1 [-DOUTPUT=regex] [-DERROR=regex] [-DLINES=n] -P RunKelvane.cmake
#
# OUTPUT and ERROR are expressions that standard output and standard error match; without ERROR nothing may be written
# to standard error. LINES is the number of lines on standard error. FILES lists files that are there afterwards.
# REMOVE names a folder that is removed before. A '|' divides arguments and files.
string(REPLACE "|" ";" ARGUMENTS "${ARGUMENTS}")
string(REPLACE "|" ";" FILES "${FILES}")
if(REMOVE)
  file(REMOVE_RECURSE "${REMOVE}")
endif()
execute_process(COMMAND "${PROGRAM}" ${ARGUMENTS}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
set(told "${PROGRAM} ${ARGUMENTS}\n--- status ${status}\n--- standard output\n${output}--- standard error\n${error}")

if(NOT status STREQUAL STATUS)
  message(FATAL_ERROR "status ${STATUS} expected\n${told}")
endif()
if(DEFINED OUTPUT AND NOT output MATCHES "${OUTPUT}")
  message(FATAL_ERROR "standard output does not match '${OUTPUT}'\n${told}")
endif()
if(DEFINED ERROR AND NOT error MATCHES "${ERROR}")
  message(FATAL_ERROR "standard error does not match '${ERROR}'\n${told}")
endif()
if(NOT DEFINED ERROR AND NOT error STREQUAL "")
  message(FATAL_ERROR "nothing expected on standard error\n${told}")
endif()
if(DEFINED LINES)
  string(REGEX MATCHALL "\n" ends "${error}")
  list(LENGTH ends count)
  if(NOT count EQUAL LINES)
    message(FATAL_ERROR "${LINES} lines expected on standard error\n${told}")
  endif()
endif()
foreach(file IN LISTS FILES)
  if(NOT EXISTS "${file}")
    message(FATAL_ERROR "the file ${file} is not there\n${told}")
  endif()
endforeach()
