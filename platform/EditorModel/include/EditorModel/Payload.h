/// @file
/// What an item of the catalogue carries.
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
    /// How the files behind a payload are brought when they are not there yet.
    enum class DownloadResourceType : std::int32_t
    {
        None = 0,  ///< there is nothing to bring
        Media = 1, ///< a media file
        Shader = 2 ///< a shader with the files beside it
    };

    /// How the payload's files are brought: `None`, unless the class says more.
    virtual DownloadResourceType downloadResourceType() const;
    /// The media type of the payload's kind, such as "application/x-editor-effect". It lives as long as the payload.
    virtual QString const & mimeType() const = 0;

protected:
    /// The text by which an item is found again in the catalogue.
    virtual QString generateItemFindingId() const = 0;
    /// The same in catalogues of earlier versions.
    virtual QString generateLegacyItemFindingId() const = 0;
};

} // namespace EditorCollection
