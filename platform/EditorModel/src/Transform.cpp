#include <EditorModel/Transform.h>

#include <algorithm>

#include <EditorModel/Fuzzy.h>
#include <EditorSerialization/Layout.h>

#include "Instantiate.h"
#include "PlainForms.h"

namespace Types {

using Serialize::field;

Transform::Transform() = default;

Transform::Transform(
    double m11, double m12, double m21, double m22, double m13, double m23, double m31, double m32, double m33)
    : m_entries{m11, m12, m13, m21, m22, m23, m31, m32, m33}
{}

Transform::~Transform() = default;

Quoril::Core::Matrix3x3 Transform::toMatrix3x3() const
{
    auto const & m = m_entries;
    return {m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8]};
}

QTransform Transform::toQTransform() const
{
    auto const & m = m_entries;
    return {m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8]};
}

bool Transform::operator==(Transform const & other) const
{
    return std::equal(m_entries.begin(), m_entries.end(), other.m_entries.begin(), fuzzyEqual);
}

template <class Archive> void Transform::serialize(Archive & archive)
{
    Serialize::fields(archive, field("m", m_entries));
}

Range::Range() = default;

Range::Range(MTime start, MTime length)
    : m_start(start)
    , m_length(length)
{}

Range::~Range() = default;

template <class Archive> void Range::serialize(Archive & archive)
{
    Serialize::fields(archive, field("start", m_start), field("length", m_length));
}

EDITORMODEL_ARCHIVED(Transform)
EDITORMODEL_ARCHIVED(Range)

namespace {

constexpr char const * transformKeys[] = {"m"};
constexpr char const * rangeKeys[] = {"start", "length"};

} // namespace

Serialize::Layout const Transform::s_layout =
    Serialize::makeLayout<Serialize::LayoutSource<Transform, false, transformKeys, &Transform::m_entries>>();
Serialize::Layout const Range::s_layout =
    Serialize::makeLayout<Serialize::LayoutSource<Range, false, rangeKeys, &Range::m_start, &Range::m_length>>();

} // namespace Types
