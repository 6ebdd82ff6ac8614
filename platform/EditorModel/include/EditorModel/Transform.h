/// @file
/// Plane transforms and ranges of time.
#pragma once

#include <array>
#include <cstddef>

#include <boost/serialization/level.hpp>
#include <boost/serialization/tracking.hpp>

#include <EditorModel/Export.h>
#include <EditorSerialization/ISerializable.h>
#include <MTime/MTime.h>
#include <Utils/Matrix3x3.h>

#include <QTransform>

namespace Types {

/// A plane transform: nine doubles, row by row, in the order of `Quoril::Core::Matrix3x3`. Points are row vectors in
/// picture units, seen from the picture's middle, so the translation is in the third row. A default one is the
/// identity.
class EDITORMODEL_EXPORT Transform : public Serialize::ISerializable
{
public:
    Transform();
    /// The affine entries first: a scale of one half by 1 with a left shift of a quarter is
    /// (0.5, 0, 0, 1, 0, 0, -0.25, 0, 1).
    Transform(
        double m11, double m12, double m21, double m22, double m13, double m23, double m31, double m32, double m33);
    Transform(Transform const &) = default;
    Transform(Transform &&) = default;
    Transform & operator=(Transform const &) = default;
    Transform & operator=(Transform &&) = default;
    ~Transform() override;

    /// Entry `index`, 0 to 8, row by row.
    double operator[](std::size_t index) const { return m_entries[index]; }
    double & operator[](std::size_t index) { return m_entries[index]; } ///< to be written

    Quoril::Core::Matrix3x3 toMatrix3x3() const; ///< entry by entry
    QTransform toQTransform() const;             ///< entry by entry

    /// `fuzzyEqual`, entry by entry.
    bool operator==(Transform const & other) const;
    bool operator!=(Transform const & other) const { return !(*this == other); }

    static constexpr char const * NameInArchive() { return "Types::Transform"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
    static Serialize::Layout const s_layout;

    std::array<double, 9> m_entries{1, 0, 0, 0, 1, 0, 0, 0, 1};
};

/// A range of time.
class EDITORMODEL_EXPORT Range : public Serialize::ISerializable
{
public:
    Range();
    /// Neither is checked.
    Range(MTime start, MTime length);
    Range(Range const &) = default;
    Range(Range &&) = default;
    Range & operator=(Range const &) = default;
    Range & operator=(Range &&) = default;
    ~Range() override;

    MTime start() const { return m_start; }   ///< where it begins
    MTime length() const { return m_length; } ///< how long it lasts

    /// Exact.
    bool operator==(Range const & other) const { return m_start == other.m_start && m_length == other.m_length; }
    bool operator!=(Range const & other) const { return !(*this == other); }

    static constexpr char const * NameInArchive() { return "Types::Range"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
    static Serialize::Layout const s_layout;

    MTime m_start;
    MTime m_length;
};

} // namespace Types

// Plain values: no class information, no tracking.
BOOST_CLASS_IMPLEMENTATION(Types::Transform, boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(Types::Transform, boost::serialization::track_never)
BOOST_CLASS_IMPLEMENTATION(Types::Range, boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(Types::Range, boost::serialization::track_never)
