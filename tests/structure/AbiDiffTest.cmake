# script/abi-diff lets pass what it should, and nothing else: it compares variants of a small library.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND mktemp -d OUTPUT_VARIABLE work OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

function(build variant soversion)
  execute_process(COMMAND "${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/abi" -B "${work}/build" -G "${GENERATOR}"
    "-DCMAKE_CXX_COMPILER=${CXX}" "-DVARIANT=${variant}" "-DSOVERSION=${soversion}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND "${CMAKE_COMMAND}" --build "${work}/build" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# abi_diff(STATUS TEXT ARGUMENT...): runs the script, which should end with that status and say the text.
function(abi_diff status text)
  execute_process(COMMAND "${SCRIPT}" --reference "${work}/reference.tar.xz" ${ARGN} "${work}/build"
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  string(FIND "${output}" "${text}" at)
  if(NOT result STREQUAL status OR at EQUAL -1)
    file(REMOVE_RECURSE "${work}")
    message(NOTICE "${output}")
    message(FATAL_ERROR "The status should be ${status} with \"${text}\", and is ${result} with what is above")
  endif()
endfunction()

build("" 1)
abi_diff(1 "to compare with")
abi_diff(0 "describes the libraries" --update)
abi_diff(0 "work with these libraries")
build(ADDED_FUNCTION 1)
abi_diff(0 "work with these libraries")
build(CHANGED_PRIVATE_TYPE 1)
abi_diff(0 "work with these libraries")
build(REMOVED_FUNCTION 1)
abi_diff(1 "int perimeter(const Box&)")
build(CHANGED_TYPE 1)
abi_diff(1 "type size changed")
build(CHANGED_TYPE 2)
abi_diff(0 "libEditorEffectsToy.so.2, which announces a break")

# Another compiler.
file(ARCHIVE_EXTRACT INPUT "${work}/reference.tar.xz" DESTINATION "${work}/other")
file(APPEND "${work}/other/toolchain" "GCC 99\n")
execute_process(COMMAND tar -cJf "${work}/reference.tar.xz" libEditorEffectsToy.abi toolchain
  WORKING_DIRECTORY "${work}/other" COMMAND_ERROR_IS_FATAL ANY)
abi_diff(77 "nothing is compared")

file(REMOVE_RECURSE "${work}")
