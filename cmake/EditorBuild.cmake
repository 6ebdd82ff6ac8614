# Settings and helpers that every target of this tree shares.
include_guard(GLOBAL)
include(GenerateExportHeader)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Hidden by default: each shared library keeps its own serializer singletons,
# loads fast and can be unloaded. What is exported says so at its declaration.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# The editor's own libraries.
set(EDITOR_PLATFORM_LIBRARIES
  MTime FileSystem Utils ConfInt EditorSerialization EditorModel ParserLUT Settings
  EditorUtil EditorSettings EditorExternalResourses)
# Their names are common words, and to the loader two libraries of one name are the same library. So that a process can
# hold a host's own libSettings.so.1 as well, their files carry this project's name and are installed in a folder of
# their own.
set(EDITOR_PLATFORM_PREFIX EditorEffects)
set(EDITOR_PLATFORM_LIBDIR "${CMAKE_INSTALL_LIBDIR}/EditorEffects")
set(EDITOR_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/EditorEffects")

add_library(EditorBuildFlags INTERFACE)
target_compile_options(EditorBuildFlags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<BOOL:${EDITOREFFECTS_WERROR}>:-Werror>)
if(EDITOREFFECTS_SANITIZE)
  add_compile_options(-fsanitize=${EDITOREFFECTS_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=${EDITOREFFECTS_SANITIZE})
endif()

# editor_platform_library(NAME SOURCES a.cpp ... [PUBLIC lib ...] [PRIVATE lib ...])
# One of the editor's own libraries, in platform/NAME: public headers in
# include/NAME, its export macro NAME_EXPORT (upper case) in <NAME/Export.h>.
function(editor_platform_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${name} SHARED ${arg_SOURCES})
  add_library(Editor::${name} ALIAS ${name})
  target_include_directories(${name} PUBLIC
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>"
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/include>"
    "$<INSTALL_INTERFACE:${EDITOR_INCLUDEDIR}>")
  target_compile_features(${name} PUBLIC cxx_std_17)
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} $<BUILD_INTERFACE:EditorBuildFlags>)
  # Debian wants every library to depend on the C library, also one that calls nothing of it.
  target_link_options(${name} PRIVATE "LINKER:--push-state,--no-as-needed,-lc,--pop-state")
  generate_export_header(${name} EXPORT_FILE_NAME "${CMAKE_CURRENT_BINARY_DIR}/include/${name}/Export.h")
  set_target_properties(${name} PROPERTIES
    OUTPUT_NAME "${EDITOR_PLATFORM_PREFIX}${name}"
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${name} EXPORT EditorPlatformTargets
    LIBRARY DESTINATION "${EDITOR_PLATFORM_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
  install(DIRECTORY include/ "${CMAKE_CURRENT_BINARY_DIR}/include/"
    DESTINATION "${EDITOR_INCLUDEDIR}" COMPONENT development FILES_MATCHING PATTERN "*.h")
endfunction()

# editor_test(NAME SOURCES a.cpp ... [LIBRARIES lib ...])
# A GoogleTest program; each of its tests is one test of CTest.
function(editor_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gmock GTest::gtest_main EditorBuildFlags)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin/tests")
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# editor_fuzzer(NAME SOURCE a.cpp [LIBRARIES lib ...] [CORPUS dir])
# A fuzz target, written against the libFuzzer entry point. With clang it is a
# fuzzer; with any compiler it is also a program that runs over its corpus and
# over seeded random mutations of it, and as such it is a test.
function(editor_fuzzer name)
  cmake_parse_arguments(arg "" "SOURCE;CORPUS" "LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCE} "${PROJECT_SOURCE_DIR}/fuzz/Driver.cpp")
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} EditorBuildFlags)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin/fuzz")
  if(EDITOREFFECTS_TESTS)
    add_test(NAME fuzz.${name} COMMAND ${name} --runs 2000 ${arg_CORPUS})
  endif()
endfunction()
