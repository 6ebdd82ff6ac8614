#include <effects/Identity.h>

namespace Effect {

namespace Tags {
#define ROW_TAG(Name, value) QString const Name = QStringLiteral(value);
#define ROWS <effects/ExportedFamilies.def>
#include <effects/Rows.h>
} // namespace Tags

namespace Id {
#define ROW_ID(Name, value) QString const Name = QStringLiteral(value);
#define ROWS <effects/ExportedFamilies.def>
#include <effects/Rows.h>
} // namespace Id

namespace Group {
QString const GroupAudioNoiseReduction = QStringLiteral("4b8b30d0-f345-48c1-b8d3-acca60bf2083");
QString const GroupPip = QStringLiteral("bf86d91d-8347-4030-9e6c-2872dfcf1628");
QString const GroupZoom = QStringLiteral("d405a097-0ee0-4b72-830e-683899314730");
} // namespace Group

} // namespace Effect
