/// @file
/// Where the editor's folders are.
#pragma once

#include <EditorSettings/Export.h>

#include <QString>

/// The folders of the content that ships with the editor (below the stock root) and of the user's own (below the user
/// root). The paths are absolute, without a slash at the end; nothing is created, and a folder need not exist.
///
/// All functions may be called from any thread.
class EDITORSETTINGS_EXPORT Settings
{
public:
    Settings() = delete;

    /// The root that `setStockRoot` gave, else the environment's EDITOR_STOCK_DIR, else `share/EditorEffects/stock` in
    /// the nearest folder above this library that has one, else that of the prefix it was built for.
    static QString stockRoot();

    /// The root that `setUserRoot` gave, else the environment's EDITOR_USER_DIR, else `EditorEffects` in the user's
    /// data folder (XDG_DATA_HOME, by default ~/.local/share).
    static QString userRoot();

    /// Sets a root for the whole process; an empty path takes the setting back.
    static void setStockRoot(QString const & path);
    /// The same for the user root.
    static void setUserRoot(QString const & path);

    static QString stockVideoEffectsPath();   ///< VideoEffects
    static QString stockOverlayEffectsPath(); ///< OverlayEffects
    static QString stockAudioEffectsPath();   ///< AudioEffects
    static QString stockAudioEnhancePath();   ///< AudioEnhance
    static QString stockColorFiltersPath();   ///< ColorFilters
    static QString stockLutEffectsPath();     ///< Luts
    static QString stockPipEffectsPath();     ///< PipEffects
    static QString stockMasksPath();          ///< Masks
    static QString stockBlurMasksPath();      ///< BlurMasks: images
    static QString stockFlyingObjectsPath();  ///< FlyingObjects: images

    /// The user's saved effects of one class, by its name with or without namespace: Effects/Lut for "Effect::Lut".
    static QString userEffectsPath(QString const & className);
    static QString userBlobsPath();  ///< Blobs: binary resources
    static QString userTracksPath(); ///< Tracks: motion tracks
};
