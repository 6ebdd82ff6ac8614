# What the tests of the package share: a temporary folder `work`, outside the source and build trees, so that nothing can
# be found there by accident, and ways to run commands in it.

execute_process(COMMAND mktemp -d OUTPUT_VARIABLE work OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

# A notice keeps its lines, which an error message does not.
function(fail text)
  file(REMOVE_RECURSE "${work}")
  message(NOTICE "${text}")
  message(FATAL_ERROR "The package is not usable, see above")
endfunction()

# run(OUTPUT COMMAND...): sets OUTPUT to what the command prints; one that fails ends the test.
function(run output)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY "${work}"
    RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
  if(NOT status EQUAL 0)
    list(JOIN ARGN " " command)
    fail("${command}\nfailed with status ${status}:\n${text}")
  endif()
  set(${output} "${text}" PARENT_SCOPE)
endfunction()

function(expect_in text part what)
  string(FIND "${text}" "${part}" at)
  if(at EQUAL -1)
    fail("${what} should have ${part}, but has:\n${text}")
  endif()
endfunction()

# The tool converts an effect.
function(expect_conversion tool)
  run(text "${tool}" convert --class Effect::Blur --set intensity=20)
  expect_in("${text}" "SettingsEffectBlurGaussian" "The converted effect")
endfunction()

# The tool finds the content that was installed along with it.
function(expect_stock tool)
  run(text "${CMAKE_COMMAND}" -E env --unset=EDITOR_STOCK_DIR "${tool}" catalogue --json)
  string(JSON items ERROR_VARIABLE error GET "${text}" summary items)
  if(NOT items GREATER 0)
    fail("The installed tool should find the stock content, but printed:\n${text}")
  endif()
endfunction()

# The Python module, where it was built, works from the folder in which it was installed.
function(expect_python_module folder)
  if(NOT PYTHON)
    return()
  endif()
  file(WRITE "${work}/use.py" "import editoreffects
assert editoreffects.__file__.startswith('${folder}/'), editoreffects.__file__
effect = editoreffects.create('Effect::Blur', intensity=20)
print(editoreffects.convert(effect)['settings'][0]['class'], len(editoreffects.Catalogue(user='.')))
")
  run(text "${CMAKE_COMMAND}" -E env --unset=EDITOR_STOCK_DIR "PYTHONPATH=${folder}" PYTHONDONTWRITEBYTECODE=1
    "${PYTHON}" "${work}/use.py")
  if(NOT text MATCHES "^SettingsEffectBlurGaussian [1-9][0-9][0-9]\n$")
    fail("The installed module should convert an effect and find the stock content, but printed:\n${text}")
  endif()
endfunction()
