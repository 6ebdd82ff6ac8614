/// @file
/// The content of a catalogue item.
#pragma once

#include <cstdint>

#include <EditorModel/Export.h>
#include <EditorSerialization/ISerializable.h>

#include <QString>

namespace EditorCollection {

/// What an item of the catalogue carries.
class EDITORMODEL_EXPORT Payload : public Serialize::ISerializable
{
public:
    /// How missing files of a payload are downloaded.
    enum class DownloadResourceType : std::int32_t
    {
        None = 0,  ///< nothing to download
        Media = 1, ///< a media file
        Shader = 2 ///< a shader with the files beside it
    };

    /// How missing files are downloaded; `None` unless overridden.
    virtual DownloadResourceType downloadResourceType() const;
    /// The media type of the payload's kind, such as "application/x-editor-effect". It lives as long as the payload.
    virtual QString const & mimeType() const = 0;

protected:
    /// The text that identifies an item in the catalogue.
    virtual QString generateItemFindingId() const = 0;
    /// The same in catalogues of earlier versions.
    virtual QString generateLegacyItemFindingId() const = 0;
};

} // namespace EditorCollection
