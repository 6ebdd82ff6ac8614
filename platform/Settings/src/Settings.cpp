#include <Settings/Settings.h>

#include <algorithm>
#include <stdexcept>
#include <typeinfo>

#include "MemberTable.h"

namespace Quoril::Proc {

namespace {

std::string shortened(std::string text)
{
    std::size_t length = 80;
    if (text.size() > length) {
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) {
            --length; // not in the middle of a character of UTF-8
        }
        text.replace(length, std::string::npos, "...");
    }
    return text;
}

} // namespace

Member const * MemberTable::find(std::string const & name) const
{
    auto const * const found =
        std::find_if(begin(), end(), [&name](Member const & member) { return member.name == name; });
    return found == end() ? nullptr : found;
}

Settings::~Settings()
{
    if (isAnyTraceOpen()) {
        dropRecord();
    }
}

bool Settings::IsEqualTo(Settings const & other) const
{
    if (typeid(*this) != typeid(other)) {
        return false;
    }
    MemberTable const & table = members();
    return std::all_of(table.begin(), table.end(), [&](Member const & member) { return member.isSame(*this, other); });
}

bool Settings::IsEmpty() const
{
    MemberTable const & table = members();
    return std::none_of(table.begin(), table.end(), [this](Member const & member) { return member.isGiven(*this); });
}

void Settings::Deserialize(Record const & record)
{
    // Into a copy first: a bad value must not leave this object half filled.
    auto const trial = Clone();
    for (Settings * const target : {trial.get(), this}) {
        for (auto const & [name, value] : record) {
            Member const * const member = members().find(name);
            if (member != nullptr && !member->read(value, *target)) {
                throw std::invalid_argument(GetClassId() + ": " + name + " takes " + member->expected() + ", not " +
                                            shortened(value.toString()));
            }
        }
    }
}

Record Settings::GetFields() const
{
    Record fields;
    for (Member const & member : members()) {
        if (member.isField) {
            fields.emplace_back(member.name, member.toValue(*this));
        }
    }
    return fields;
}

MemberTable const & Settings::members() const
{
    static constexpr MemberTable none;
    return none;
}

} // namespace Quoril::Proc
