# Installation, the packages that find_package and pkg-config find, and Debian packages.
#
# Five components: `runtime` (the library, the editor's libraries in a folder of their own, the stock content, the
# translations), `inspect` (the library that looks into effects and their files), `development` (headers, link names, package
# descriptions), `tool` (effectctl) and, where it is built, `python` (the Python module). Nothing that is installed knows
# where: a prefix can be moved.
include(CMakePackageConfigHelpers)

# The way from one installed folder to another.
function(editor_installed_path result from to)
  file(RELATIVE_PATH path "${CMAKE_INSTALL_PREFIX}/${from}" "${CMAKE_INSTALL_PREFIX}/${to}")
  set(${result} "${path}" PARENT_SCOPE)
endfunction()

# editor_cmake_package(NAME): the targets of NAMETargets, configured by cmake/NAMEConfig.cmake.in.
function(editor_cmake_package name)
  set(folder "${CMAKE_INSTALL_LIBDIR}/cmake/${name}")
  install(EXPORT ${name}Targets NAMESPACE Editor:: DESTINATION "${folder}" COMPONENT development)
  configure_package_config_file("cmake/${name}Config.cmake.in" "${PROJECT_BINARY_DIR}/package/${name}Config.cmake"
    INSTALL_DESTINATION "${folder}" PATH_VARS EDITOR_TRANSLATIONS_DIR NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/${name}ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
  install(FILES
    "${PROJECT_BINARY_DIR}/package/${name}Config.cmake"
    "${PROJECT_BINARY_DIR}/package/${name}ConfigVersion.cmake"
    DESTINATION "${folder}" COMPONENT development)
endfunction()

set(EDITOR_TRANSLATIONS_DIR "${CMAKE_INSTALL_DATADIR}/EditorEffects/translations")
editor_installed_path(platform_from_lib "${CMAKE_INSTALL_LIBDIR}" "${EDITOR_PLATFORM_LIBDIR}")
editor_installed_path(lib_from_bin "${CMAKE_INSTALL_BINDIR}" "${CMAKE_INSTALL_LIBDIR}")
editor_installed_path(platform_from_bin "${CMAKE_INSTALL_BINDIR}" "${EDITOR_PLATFORM_LIBDIR}")
editor_installed_path(EDITOR_PREFIX_FROM_PKGCONFIG "${CMAKE_INSTALL_LIBDIR}/pkgconfig" ".")

# The host's own libraries stay where it has them, and are found there.
set(platform_elsewhere OFF)
if(NOT EDITOREFFECTS_PLATFORM STREQUAL "embedded")
  set(platform_elsewhere ON)
endif()

# --- The libraries -----------------------------------------------------------

# editor_install_library(TARGET NAME COMPONENT): exported as Editor::NAME.
function(editor_install_library target name component)
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name}
    INSTALL_RPATH "$ORIGIN;$ORIGIN/${platform_from_lib}"
    INSTALL_RPATH_USE_LINK_PATH ${platform_elsewhere})
  install(TARGETS ${target} EXPORT EditorEffectsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${component} NAMELINK_COMPONENT development)
endfunction()

editor_install_library(EditorEffects Effects runtime)
editor_install_library(EditorEffectsInspect EffectsInspect inspect)

list(TRANSFORM exported_families REPLACE "(.+)" "effects/\\1.def" OUTPUT_VARIABLE family_rows)
install(FILES
  "${EDITOREFFECTS_GENERATED}/effects/Effects.h" "${EDITOREFFECTS_GENERATED}/effects/ExportedFamilies.def"
  "${EDITOREFFECTS_GENERATED}/effects/Version.h"
  DESTINATION "${EDITOR_INCLUDEDIR}/effects" COMPONENT development)
foreach(header IN LISTS EDITOREFFECTS_PUBLIC_HEADERS EDITOREFFECTS_INSPECT_HEADERS family_rows)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES "${header}" DESTINATION "${EDITOR_INCLUDEDIR}/${folder}" COMPONENT development)
endforeach()

editor_cmake_package(EditorEffects)
if(EDITOREFFECTS_PLATFORM STREQUAL "embedded")
  editor_cmake_package(EditorPlatform)
  list(TRANSFORM EDITOR_PLATFORM_LIBRARIES PREPEND "-l${EDITOR_PLATFORM_PREFIX}" OUTPUT_VARIABLE platform_flags)
  string(JOIN " " platform_flags ${platform_flags})
  configure_file(cmake/EditorEffects.pc.in package/EditorEffects.pc @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/package/EditorEffects.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endif()

install(DIRECTORY stock/ DESTINATION "${CMAKE_INSTALL_DATADIR}/EditorEffects/stock" COMPONENT runtime
  PATTERN "scripts" EXCLUDE
  PATTERN "*.md" EXCLUDE
  PATTERN "__pycache__" EXCLUDE
  PATTERN "CMakeLists.txt" EXCLUDE)
if(TARGET translations)
  install(FILES ${EDITOR_TRANSLATIONS} DESTINATION "${EDITOR_TRANSLATIONS_DIR}" COMPONENT runtime)
endif()

install(FILES LICENSE NOTICE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT runtime)

# --- The tool ----------------------------------------------------------------

if(TARGET effectctl)
  set_target_properties(effectctl PROPERTIES
    INSTALL_RPATH "$ORIGIN/${lib_from_bin};$ORIGIN/${platform_from_bin}"
    INSTALL_RPATH_USE_LINK_PATH ${platform_elsewhere})
  install(TARGETS effectctl RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)
  install(FILES ${EDITOREFFECTS_SCHEMAS} DESTINATION "${CMAKE_INSTALL_DATADIR}/EditorEffects/schema" COMPONENT tool)
  install(FILES host/effectctl.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tool)
  install(FILES host/completion/effectctl.bash RENAME effectctl
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT tool)
  install(FILES host/completion/_effectctl DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" COMPONENT tool)
endif()

# --- The Python module -------------------------------------------------------

if(TARGET editoreffects_python)
  set(python_package_dir "${EDITOREFFECTS_PYTHON_DIR}/editoreffects")
  editor_installed_path(lib_from_python "${python_package_dir}" "${CMAKE_INSTALL_LIBDIR}")
  editor_installed_path(platform_from_python "${python_package_dir}" "${EDITOR_PLATFORM_LIBDIR}")
  set_target_properties(editoreffects_python PROPERTIES
    INSTALL_RPATH "$ORIGIN/${lib_from_python};$ORIGIN/${platform_from_python}"
    INSTALL_RPATH_USE_LINK_PATH ${platform_elsewhere})
  install(TARGETS editoreffects_python LIBRARY DESTINATION "${python_package_dir}" COMPONENT python)
  install(FILES ${EDITOREFFECTS_PYTHON_SOURCES} DESTINATION "${python_package_dir}" COMPONENT python)
endif()

# --- Debian packages: cmake --workflow --preset package ------------------------

set(runtime_package "libeditoreffects${PROJECT_VERSION_MAJOR}")
set(inspect_package "libeditoreffectsinspect${PROJECT_VERSION_MAJOR}")
set(development_package "libeditoreffects-dev")
set(tool_package "effectctl")
set(python_package "python3-editoreffects")
set(components runtime inspect development tool)
if(TARGET editoreffects_python)
  list(APPEND components python)
endif()
foreach(component IN LISTS components)
  install(FILES cmake/debian/copyright
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${${component}_package}" COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME editoreffects)
set(CPACK_PACKAGE_VENDOR "The EditorEffects developers")
set(CPACK_PACKAGE_CONTACT "The EditorEffects developers <maintainers@editoreffects.invalid>")
# Each package has its own: the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# The packages come out of this tree, so their version has no Debian revision.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The editor's libraries belong to the runtime package whichever package uses them, so dpkg-shlibdeps finds them in
# the build tree and the dependency on the package is said here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/debian/Documents.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/debian/Scripts.cmake")
set(this_runtime "${runtime_package} (= ${PROJECT_VERSION})")
set(this_inspect "${inspect_package} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime_package}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "effects library of a non-linear video editor
Typed video and audio effects, their binary and JSON archives, their conversion
into the settings of a render engine, and the stock catalogue.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")

set(CPACK_DEBIAN_INSPECT_PACKAGE_NAME "${inspect_package}")
set(CPACK_DEBIAN_INSPECT_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_INSPECT_DESCRIPTION "effects library of a non-linear video editor (inspection)
Findings, differences, conversion reports and descriptions of effects and of
the files that hold them, for tools around the editor.")
set(CPACK_DEBIAN_INSPECT_PACKAGE_DEPENDS "${this_runtime}")
set(CPACK_DEBIAN_INSPECT_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "${development_package}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "effects library of a non-linear video editor (development files)
The headers, and the descriptions by which CMake and pkg-config find the
library.")
string(JOIN ", " CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${this_runtime}" "${this_inspect}" "libboost-serialization-dev (>= 1.74)" "qtbase5-dev (>= 5.15)" "nlohmann-json3-dev (>= 3.11)")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME "${tool_package}")
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION video)
set(CPACK_DEBIAN_TOOL_DESCRIPTION "command-line host of the effects library of a video editor
Lists, shows, archives and converts effects, and checks the stock catalogue.")
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${this_runtime}, ${this_inspect}")

if(TARGET editoreffects_python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME "${python_package}")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
  set(CPACK_DEBIAN_PYTHON_DESCRIPTION "effects library of a non-linear video editor (Python 3)
Reads, changes, checks, converts and writes effects, and describes their
parameters.")
  # The compiled part is for one version of the interpreter.
  math(EXPR next_python "${Python_VERSION_MINOR} + 1")
  string(JOIN ", " CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "${this_runtime}" "${this_inspect}"
    "python3 (>= ${Python_VERSION_MAJOR}.${Python_VERSION_MINOR})" "python3 (<< ${Python_VERSION_MAJOR}.${next_python})")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-numpy")
endif()

if(PROJECT_IS_TOP_LEVEL)
  include(CPack)
endif()
