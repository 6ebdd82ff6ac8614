# The product: one shared library, made of object files that the tests of its
# hidden classes can link as well.

# Installed, below the include folder of the package, with the headers and the .def files of the exported families
# and the headers that are generated.
set(EDITOREFFECTS_PUBLIC_HEADERS
  collection/Effects/ContentProvider.h
  effects/EffectClass.h
  effects/Export.h
  effects/Identity.h
  effects/Parameter.h
  effects/Rows.h
  effects/Schema.h
  utils/EffectUtils.h
  utils/LutUtils.h
)

# The one list of families: a family is its header, its .def file and its sources, all of its own name. Static
# initialisers run in this order: the exported classes and their constants, then the hidden ones.
set(exported_families Base ColorCorrection Geometry Composition Mask Shaders Equalizer Dynamics Modulation CleanUp Holder)
set(hidden_families Mirroring Blur Distortion Artistic Retro ColorFilters Light Voice)
list(TRANSFORM exported_families REPLACE "(.+)" "effects/\\1.h" OUTPUT_VARIABLE family_headers)
list(APPEND EDITOREFFECTS_PUBLIC_HEADERS ${family_headers})

# What C++ needs of the list, below build/generated/effects: .def files and headers that include those of the families,
# and Families.def with a line for each family.
set(EDITOREFFECTS_GENERATED "${PROJECT_BINARY_DIR}/generated")
set(families)
foreach(group IN ITEMS exported hidden)
  set(${group}_headers)
  set(${group}_rows)
  string(TOUPPER ${group} macro)
  foreach(family IN LISTS ${group}_families)
    string(APPEND ${group}_headers "#include <effects/${family}.h>\n")
    string(APPEND ${group}_rows "#include <effects/${family}.def>\n")
    string(APPEND families "${macro}_FAMILY(${family})\n")
    if(EXISTS "${PROJECT_SOURCE_DIR}/collection/Effects/conversions/${family}.cpp")
      string(APPEND families "CONVERTED_FAMILY(${family})\n")
    endif()
  endforeach()
endforeach()
configure_file(effects/Version.h.in "${EDITOREFFECTS_GENERATED}/effects/Version.h" @ONLY)
foreach(file IN ITEMS Effects.h ExportedFamilies.def Families.def HiddenFamilies.def HiddenFamilies.h)
  configure_file(cmake/families/${file}.in "${EDITOREFFECTS_GENERATED}/effects/${file}" @ONLY)
endforeach()

# family_sources(VARIABLE PATTERN FAMILY...): the files of that pattern that the families have, "@" being a family.
function(family_sources variable pattern)
  set(sources)
  foreach(family IN LISTS ARGN)
    string(REPLACE "@" ${family} source "${pattern}")
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
      list(APPEND sources ${source})
    endif()
  endforeach()
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()

function(add_families)
  foreach(family IN LISTS ARGN)
    foreach(pattern IN ITEMS serialization/@.cpp effects/@.cpp collection/Effects/conversions/@.cpp)
      family_sources(source ${pattern} ${family})
      target_sources(EditorEffectsObjects PRIVATE ${source})
    endforeach()
  endforeach()
endfunction()

# A host may call whatever the headers declare, so all of the editor's libraries are linked along with this one.
list(TRANSFORM EDITOR_PLATFORM_LIBRARIES PREPEND Editor:: OUTPUT_VARIABLE editor_libraries)

add_library(EditorEffectsObjects OBJECT)
add_families(${exported_families})
target_sources(EditorEffectsObjects PRIVATE effects/Identity.cpp)
add_families(${hidden_families})
target_sources(EditorEffectsObjects PRIVATE
  effects/PrivateIdentity.cpp
  effects/Version.cpp
  serialization/Schema.cpp
  collection/Effects/ContentProvider.cpp
  collection/Effects/EffectSettings.cpp
  collection/Effects/FactoryCaches.cpp
  collection/Effects/ImageHolder.cpp
  collection/Effects/Loading.cpp
  collection/Effects/SettingsFactory.cpp
  utils/CollectionNames.cpp
  utils/EffectUtils.cpp
  utils/LutUtils.cpp
)
target_include_directories(EditorEffectsObjects PUBLIC
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>" "$<BUILD_INTERFACE:${EDITOREFFECTS_GENERATED}>")
target_link_libraries(EditorEffectsObjects PUBLIC ${editor_libraries} Qt5::Core Qt5::Gui PRIVATE glog::glog EditorBuildFlags)
if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  target_precompile_headers(EditorEffectsObjects PRIVATE
    <EditorModel/EffectObject.h> <EditorSerialization/BinaryArchive.h> <EditorSerialization/JsonArchive.h>
    <EditorSerialization/ObjectTracker.h> <boost/serialization/export.hpp>)
  # g++ knows the headers in there again by the times of their files, so one that ccache keeps from another checkout
  # makes it read them a second time.
  set_target_properties(EditorEffectsObjects PROPERTIES CXX_COMPILER_LAUNCHER "")
endif()

add_library(EditorEffects SHARED $<TARGET_OBJECTS:EditorEffectsObjects>)
add_library(Editor::Effects ALIAS EditorEffects)
target_compile_features(EditorEffects PUBLIC cxx_std_17)
target_include_directories(EditorEffects PUBLIC
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>"
  "$<BUILD_INTERFACE:${EDITOREFFECTS_GENERATED}>"
  "$<INSTALL_INTERFACE:${EDITOR_INCLUDEDIR}>")
target_link_libraries(EditorEffects
  PUBLIC ${editor_libraries} Qt5::Core Qt5::Gui
  PRIVATE glog::glog
  # Loading the library registers the effects, so a program can depend on it without calling anything in it. Linkers
  # that default to --as-needed would drop it then; named like this, it is kept. A single item, because CMake may reorder
  # several.
  INTERFACE "-Wl,--push-state,--no-as-needed,$<TARGET_FILE:$<TARGET_NAME:EditorEffects>>,--pop-state")
# The library needs those of the editor's libraries that it calls, also where the compiler does not pass --as-needed.
target_link_options(EditorEffects PRIVATE
  "LINKER:--as-needed" "LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map")
set_target_properties(EditorEffects PROPERTIES
  LINK_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/exports.map"
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR})
