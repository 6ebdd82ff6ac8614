# Installs the build tree into a temporary prefix, uses it as an outside project would, moves the prefix, and uses it
# again.
cmake_minimum_required(VERSION 3.25)

include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")

function(expect_archive how text)
  string(JSON class ERROR_VARIABLE error GET "${text}" "$meta" "class")
  if(NOT class STREQUAL "Effect::Crop")
    fail("The program built with ${how} should print the archive of an Effect::Crop, but printed:\n${text}")
  endif()
endfunction()

function(use_package prefix)
  cmake_path(GET prefix FILENAME place)
  set(build "${work}/${place}-build")
  run(ignored "${CMAKE_COMMAND}" -S "${work}/project" -B "${build}" -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_CXX_FLAGS=${FLAGS}" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
  run(ignored "${CMAKE_COMMAND}" --build "${build}")
  run(text "${build}/host")
  expect_archive("find_package" "${text}")

  set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
  run(options pkg-config --cflags --libs EditorEffects)
  separate_arguments(options UNIX_COMMAND "${options} ${FLAGS}")
  run(ignored "${CXX}" -std=c++17 "${work}/project/main.cpp" ${options} -o "${work}/${place}-pkg-config")
  run(text "${work}/${place}-pkg-config")
  expect_archive("pkg-config" "${text}")

  run(text "${prefix}/bin/effectctl" show --class Effect::Crop --json)
  expect_archive("the installed tool" "${text}")

  expect_stock("${prefix}/bin/effectctl")
endfunction()

# No installed text names a place that the user of the package does not have.
function(expect_no_paths prefix)
  file(GLOB_RECURSE files "${prefix}/*.cmake" "${prefix}/*.pc" "${prefix}/*.h")
  if(NOT files)
    fail("Nothing was installed below ${prefix}")
  endif()
  foreach(file IN LISTS files)
    file(READ "${file}" text)
    foreach(place IN ITEMS "${SOURCE_DIR}" "${prefix}")
      string(FIND "${text}" "${place}/" at)
      if(NOT at EQUAL -1)
        fail("${file} names ${place}")
      endif()
    endforeach()
  endforeach()
endfunction()

file(COPY "${CMAKE_CURRENT_LIST_DIR}/project" DESTINATION "${work}")
run(ignored "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${work}/first")
expect_no_paths("${work}/first")
use_package("${work}/first")
file(RENAME "${work}/first" "${work}/second")
use_package("${work}/second")
file(REMOVE_RECURSE "${work}")
