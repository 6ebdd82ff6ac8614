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
set(runtime_version "libeditoreffects1 (= ${VERSION})")
package(libeditoreffects1 ${linked})
set(inspect_version "libeditoreffectsinspect1 (= ${VERSION})")
package(libeditoreffectsinspect1 "${runtime_version}" libqt5core5 libqt5gui5 libgoogle-glog0 "libstdc++6 (>=")
package(libeditoreffects-dev "${runtime_version}" "${inspect_version}" "libboost-serialization-dev" "qtbase5-dev" "nlohmann-json3-dev")
package(effectctl "${runtime_version}" "${inspect_version}" libqt5core5 "libstdc++6 (>=")
set(names libeditoreffects1 libeditoreffectsinspect1 libeditoreffects-dev effectctl)
if(PYTHON)
  package(python3-editoreffects "${runtime_version}" "${inspect_version}" "python3 (>= 3." "python3 (<< 3." libqt5core5)
  expect_in("${python3-editoreffects}" "./usr/lib/python3/dist-packages/editoreffects/py.typed" python3-editoreffects)
  list(APPEND names python3-editoreffects)
endif()

# The editor's libraries are this library's own: none of them lies where the linker looks.
expect_in("${libeditoreffects1}" "/EditorEffects/libEditorEffectsUtils.so.1 -> libEditorEffectsUtils.so.${VERSION}"
  libeditoreffects1)
string(REGEX MATCH "/usr/lib(/[^/ ]+-linux-gnu[^/ ]*)?/libEditorEffects[A-Z][A-Za-z]*[.]so" loose "${libeditoreffects1}")
if(loose)
  fail("${loose} lies beside everybody's libraries")
endif()
expect_in("${libeditoreffects1}" "./usr/share/EditorEffects/stock/" libeditoreffects1)
if(EXISTS "${BUILD_DIR}/share/EditorEffects/translations") # not without Qt's tools
  expect_in("${libeditoreffects1}" "./usr/share/EditorEffects/translations/editoreffects_de.qm" libeditoreffects1)
endif()
foreach(header IN ITEMS effects/Effects.h inspect/Files.h)
  expect_in("${libeditoreffects-dev}" "./usr/include/EditorEffects/${header}" libeditoreffects-dev)
endforeach()

# The loader's cache is updated by a trigger, and by no script.
foreach(name IN LISTS names)
  file(GLOB found "${work}/packages/${name}_*.deb")
  run(ignored dpkg-deb --control "${found}" "${work}/control-${name}")
  file(GLOB scripts "${work}/control-${name}/postinst" "${work}/control-${name}/postrm")
  if(scripts)
    fail("${name} has ${scripts}")
  endif()
  expect_in("${${name}}" "./usr/share/doc/${name}/changelog.gz" "${name}")
endforeach()
foreach(name IN ITEMS libeditoreffects1 libeditoreffectsinspect1)
  file(READ "${work}/control-${name}/triggers" triggers)
  expect_in("${triggers}" "activate-noawait ldconfig" "The triggers of ${name}")
endforeach()

# Debian's own checks. A build tree that was not configured for /usr has no folder for the architecture.
find_program(LINTIAN lintian)
if(LINTIAN)
  file(GLOB packages "${work}/packages/*.deb")
  run(ignored "${LINTIAN}" --allow-root --fail-on error,warning
    --suppress-tags pkg-config-unavailable-for-cross-compilation ${packages})
else()
  message(STATUS "lintian is not installed: the packages are not checked with it")
endif()

expect_stock("${work}/root/usr/bin/effectctl")
expect_conversion("${work}/root/usr/bin/effectctl")
expect_python_module("${work}/root/usr/lib/python3/dist-packages")
file(REMOVE_RECURSE "${work}")
