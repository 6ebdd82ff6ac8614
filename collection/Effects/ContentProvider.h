/// @file
/// The one object with which a host brings the library to life.
#pragma once

#include <memory>

#include <effects/Export.h>

namespace Effect {

/// Starts the catalogue of stock effects and installs the settings factory. Keep it alive for as long as either is
/// wanted; its destruction takes both back.
class EFFECTS_API ContentProvider
{
public:
    ContentProvider();
    ~ContentProvider();
    ContentProvider(ContentProvider const &) = delete;
    ContentProvider & operator=(ContentProvider const &) = delete;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Effect
