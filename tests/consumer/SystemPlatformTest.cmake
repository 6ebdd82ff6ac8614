# A host brings the editor's libraries itself: the library is built against the installed ones, as those of that host.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")

run(ignored "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${work}/host")
# Of what was installed, only the host's libraries are left.
file(GLOB ours "${work}/host/${LIBDIR}/libEditorEffects*.so*" "${work}/host/${LIBDIR}/cmake/EditorEffects"
  "${work}/host/${INCLUDEDIR}/effects" "${work}/host/${INCLUDEDIR}/inspect" "${work}/host/bin")
file(REMOVE_RECURSE ${ours})

# Not optimised: what matters is that it compiles, links and runs.
run(ignored "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${work}/build" -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${work}/host"
  "-DCMAKE_CXX_COMPILER=${CXX}" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DEDITOREFFECTS_PLATFORM=system
  -DEDITOREFFECTS_TESTS=OFF -DEDITOREFFECTS_FUZZERS=OFF)
run(ignored "${CMAKE_COMMAND}" --build "${work}/build" --parallel 2)

file(GLOB built "${work}/build/lib/*.so")
set(own "${work}/build/lib/libEditorEffects.so" "${work}/build/lib/libEditorEffectsInspect.so")
if(NOT built STREQUAL own)
  fail("Only this project's own libraries should have been built, but there are: ${built}")
endif()
expect_conversion("${work}/build/bin/effectctl")

# And it can be installed beside the host's libraries, which it finds where they are.
run(ignored "${CMAKE_COMMAND}" --install "${work}/build" --prefix "${work}/product")
run(ignored "${work}/product/bin/effectctl" list)
file(REMOVE_RECURSE "${work}")
