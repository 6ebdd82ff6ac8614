/// @file
/// The keys of an ISF head and of External::ShaderISF::ISFSettings::config.
#pragma once

#include <string_view>

namespace External::ShaderISF {

/// A file may have a key in either form; if it has both, the upper-case one is used. The configuration text has only
/// upper-case forms.
struct Key
{
    std::string_view upper; ///< the form of the format's reference
    std::string_view lower; ///< the form of some files
};

/// The known keys. Others are ignored.
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
