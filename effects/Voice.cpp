#include <effects/Voice.h>

#include <effects/PrivateIdentity.h>

namespace Effect {

AudioEcho::Echo::Echo() = default;

AudioEcho::Echo::Echo(std::int32_t after, double share)
    : delay(after)
    , decay(share)
{}

} // namespace Effect
