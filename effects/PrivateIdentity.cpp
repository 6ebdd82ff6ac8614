#include <effects/PrivateIdentity.h>

namespace Effect {

namespace Tags {
#define ROW_TAG(Name, value) QString const Name = QStringLiteral(value);
#define ROWS <effects/HiddenFamilies.def>
#include <effects/Rows.h>
} // namespace Tags

namespace Id {
#define ROW_ID(Name, value) QString const Name = QStringLiteral(value);
#define ROWS <effects/HiddenFamilies.def>
#include <effects/Rows.h>
} // namespace Id

} // namespace Effect
