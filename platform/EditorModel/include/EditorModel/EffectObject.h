/// @file
/// The base of every effect.
#pragma once

#include <cstdint>
#include <optional>

#include <boost/serialization/extended_type_info.hpp>

#include <EditorModel/Export.h>
#include <EditorModel/Payload.h>
#include <EditorModel/Resource.h>
#include <EditorModel/Transform.h>

#include <QString>

namespace Effect {

/// What an effect works on.
enum class Type : std::int32_t
{
    Video = 0,
    Audio = 1
};

/// How an effect is carried out.
enum class Impl : std::int32_t
{
    Descriptor = 0, ///< not by the render engine
    Effect = 1,
    Filter = 2
};

/// An effect: what it is, how strong it is, and what it refers to. Effects are plain values.
class EDITORMODEL_EXPORT Object : public EditorCollection::Payload
{
public:
    /// @param effectId  identifier of the effect's kind
    /// @param group     identifier of its group, or the identifier again
    Object(QString const & effectId, QString const & group);
    Object(Object const &) = default;
    Object(Object &&) = default;
    Object & operator=(Object const &) = default;
    Object & operator=(Object &&) = default;
    ~Object() override;

    QString tag{QLatin1String("")};          ///< distinguishes presets of one kind; key of an item in its collection
    QString id;                              ///< of the effect's kind, compared as text
    QString groupId;                         ///< of its group, or the identifier again
    double intensity = 1.0;                  ///< strength, 1 being the whole effect
    Resource::ID resource;                   ///< the file that the effect refers to; not valid when there is none
    QString resourcePath{QLatin1String("")}; ///< of the resource's file
    std::optional<Types::Range> range;       ///< the part of the clip that the effect covers; all of it when absent

    QString const & mimeType() const override;
    /// Key for caches of processed results: the identifier, unless the class adds parameters.
    virtual QString processingSettingsId() const;
    /// What the effect works on.
    virtual Type type() const = 0;
    /// How it is carried out.
    virtual Impl impl() const = 0;
    /// Whether a user can set the intensity; false unless overridden.
    virtual bool hasIntensity() const;
    /// Whether the effect takes a second picture; false unless overridden.
    virtual bool isTwoInput() const;
    /// The tag of a new effect of the class that came from no preset; empty for a class that names none.
    virtual QString defaultTag() const;

    static constexpr char const * NameInArchive() { return "Effect::Object"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;
    /// Null. A class that has a layout of its own overrides it.
    Serialize::Layout const * GetLayout() const override;

protected:
    QString generateItemFindingId() const override;
    QString generateLegacyItemFindingId() const override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
    static Serialize::Layout const s_layout;
};

} // namespace Effect

/// @cond
template <> struct boost::serialization::guid_defined<Effect::Object> : boost::mpl::true_
{};
template <> struct boost::serialization::ext::guid_impl<Effect::Object>
{
    static constexpr char const * call() { return Effect::Object::NameInArchive(); }
};
/// @endcond
