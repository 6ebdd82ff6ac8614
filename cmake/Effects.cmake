# The product: one shared library, made of object files that the tests of its
# hidden classes can link as well.

# Installed, below the include folder of the package.
set(EDITOREFFECTS_PUBLIC_HEADERS
  effects/Base.h
  effects/ColorCorrection.h
  effects/EffectClass.h
  effects/Effects.h
  effects/Export.h
  effects/Identity.h)

# Static initialisers run in the order of this list: the exported classes and
# their constants, then the hidden ones, then the catalogue's constants.
add_library(EditorEffectsObjects OBJECT
  serialization/Base.cpp
  serialization/ColorCorrection.cpp
  effects/Identity.cpp
  effects/Base.cpp
  effects/ColorCorrection.cpp
  effects/PrivateIdentity.cpp
  collection/Effects/SettingsFactory.cpp
  collection/Effects/conversions/ColorCorrection.cpp)
target_include_directories(EditorEffectsObjects PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>")
target_link_libraries(EditorEffectsObjects
  PUBLIC
    Editor::EditorModel Editor::EditorSerialization Editor::EditorUtil Editor::Settings Editor::MTime Qt5::Core Qt5::Gui
  PRIVATE
    Editor::ConfInt Editor::Utils Editor::EditorSettings
    Editor::FileSystem glog::glog EditorBuildFlags)
if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  target_precompile_headers(EditorEffectsObjects PRIVATE
    <EditorModel/EffectObject.h> <EditorSerialization/BinaryArchive.h> <EditorSerialization/JsonArchive.h>
    <EditorSerialization/ObjectTracker.h> <boost/serialization/export.hpp>)
endif()

add_library(EditorEffects SHARED $<TARGET_OBJECTS:EditorEffectsObjects>)
add_library(Editor::Effects ALIAS EditorEffects)
target_compile_features(EditorEffects PUBLIC cxx_std_17)
target_include_directories(EditorEffects PUBLIC
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>"
  "$<INSTALL_INTERFACE:${EDITOR_INCLUDEDIR}>")
target_link_libraries(EditorEffects
  PUBLIC
    Editor::EditorModel Editor::EditorSerialization Editor::EditorUtil Editor::Settings Editor::MTime Qt5::Core Qt5::Gui
  PRIVATE
    Editor::ConfInt Editor::Utils Editor::EditorSettings
    Editor::FileSystem glog::glog)
set_target_properties(EditorEffects PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}
  INSTALL_RPATH "$ORIGIN/EditorEffects")
