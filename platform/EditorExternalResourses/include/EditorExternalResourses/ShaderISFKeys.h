/// @file
/// The keys of an ISF head and of External::ShaderISF::ISFSettings::config.
#pragma once

#include <string_view>

namespace External::ShaderISF {

/// A file may write a key in either form, and the upper-case one wins where it writes both. The configuration text has
/// the upper-case forms only.
struct Key
{
    std::string_view upper; ///< as the format writes it
    std::string_view lower; ///< as some files have it
};

/// The keys that have a meaning. Others are passed over.
namespace Keys {

/// @{
/// A key of the head itself.
inline constexpr Key isfVersion{"ISFVSN", "isfvsn"};
inline constexpr Key description{"DESCRIPTION", "description"};
inline constexpr Key credit{"CREDIT", "credit"};
inline constexpr Key categories{"CATEGORIES", "categories"};
inline constexpr Key inputs{"INPUTS", "inputs"};
inline constexpr Key passes{"PASSES", "passes"};
inline constexpr Key imported{"IMPORTED", "imported"};
inline constexpr Key persistentBuffers{"PERSISTENT_BUFFERS", "persistent_buffers"}; ///< version 1 only
/// @}

/// @{
/// A key of an object in `INPUTS` or `IMPORTED`.
inline constexpr Key name{"NAME", "name"};
inline constexpr Key type{"TYPE", "type"};
inline constexpr Key label{"LABEL", "label"};
inline constexpr Key defaultValue{"DEFAULT", "default"};
inline constexpr Key minimum{"MIN", "min"};
inline constexpr Key maximum{"MAX", "max"};
inline constexpr Key identity{"IDENTITY", "identity"};
inline constexpr Key values{"VALUES", "values"};
inline constexpr Key labels{"LABELS", "labels"};
inline constexpr Key path{"PATH", "path"};
/// @}

/// @{
/// A key of an object in `PASSES`.
inline constexpr Key target{"TARGET", "target"};
inline constexpr Key persistent{"PERSISTENT", "persistent"};
inline constexpr Key floatBuffer{"FLOAT", "float"};
inline constexpr Key width{"WIDTH", "width"};
inline constexpr Key height{"HEIGHT", "height"};
/// @}

} // namespace Keys
} // namespace External::ShaderISF
