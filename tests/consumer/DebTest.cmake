# Makes the Debian packages out of the build tree, looks at what they say of themselves, and uses what is in them.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")

# package(NAME DEPENDENCY...): unpacks it over the others, and sets NAME to the list of its files.
function(package name)
  file(GLOB found "${work}/packages/${name}_*.deb")
  list(LENGTH found count)
  if(NOT count EQUAL 1)
    fail("There should be one package ${name}, but there are: ${found}")
  endif()
  run(dependencies dpkg-deb --field "${found}" Depends)
  foreach(dependency IN LISTS ARGN)
    expect_in("${dependencies}" "${dependency}" "Depends of ${name}")
  endforeach()
  run(files dpkg-deb --contents "${found}")
  run(ignored dpkg-deb --extract "${found}" "${work}/root")
  set(${name} "${files}" PARENT_SCOPE)
endfunction()

run(ignored "${CPACK}" -G DEB --config "${BUILD_DIR}/CPackConfig.cmake" -B "${work}/packages"
  -D CPACK_OUTPUT_FILE_PREFIX=${work}/packages -D CPACK_PACKAGING_INSTALL_PREFIX=/usr)

# Found by dpkg-shlibdeps, which knows them by version too.
set(linked libboost-serialization1 libqt5core5 libqt5gui5 libgoogle-glog0 "libstdc++6 (>=")
set(runtime_version "libeditoreffects1 (= ${VERSION}-1)")
package(libeditoreffects1 ${linked})
package(libeditoreffects-dev "${runtime_version}" "libboost-serialization-dev" "qtbase5-dev" "nlohmann-json3-dev")
package(effectctl "${runtime_version}" ${linked})

# The editor's libraries are this library's own: none of them lies where the linker looks.
expect_in("${libeditoreffects1}" "/EditorEffects/libEditorEffectsUtils.so.1 -> libEditorEffectsUtils.so.${VERSION}"
  libeditoreffects1)
string(REGEX MATCH "/usr/lib(/[^/ ]+-linux-gnu[^/ ]*)?/libEditorEffects[A-Z][A-Za-z]*[.]so" loose "${libeditoreffects1}")
if(loose)
  fail("${loose} lies beside everybody's libraries")
endif()
expect_in("${libeditoreffects1}" "./usr/share/EditorEffects/stock/" libeditoreffects1)
expect_in("${libeditoreffects-dev}" "./usr/include/EditorEffects/effects/Effects.h" libeditoreffects-dev)

expect_stock("${work}/root/usr/bin/effectctl")
expect_conversion("${work}/root/usr/bin/effectctl")
file(REMOVE_RECURSE "${work}")
