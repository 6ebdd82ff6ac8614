/// @file
/// The effects that Python holds.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <utility>

#include <pybind11/pybind11.h>

#include <effects/Schema.h>

#include "Source.h"

namespace EffectsPython {

/// An effect with a source of its own, or one in the list of a holder. Functions are called under the interpreter's
/// lock.
class EffectHandle : public std::enable_shared_from_this<EffectHandle>
{
public:
    explicit EffectHandle(std::shared_ptr<Source> source);
    /// For `heldAt`.
    EffectHandle(std::shared_ptr<EffectHandle> holder, Effect::Schema::Parameter const & list, std::size_t index,
        Effect::Object const & effect);

    Effect::Schema::Class const & info() const { return m_info; }
    Effect::Object const & effect() const;
    /// As `Source::usable` gives it.
    std::shared_ptr<Effect::Object const> usable() const;
    /// The file that the effect comes from; empty for none.
    std::string const & file() const { return source()->file(); }

    pybind11::object value(Effect::Schema::Parameter const & parameter);
    /// Effects of Python are copied into a list. Those that were in it before go on by themselves.
    void setValue(Effect::Schema::Parameter const & parameter, pybind11::handle value);

    /// @{
    /// As `Source` does it; of an effect in a list, the part of the holder's document.
    std::string toJson() const;
    std::string toBinary() const;
    std::string toBytes() const;
    /// @}

    /// The document of the effect where its file holds something that this library does not know; else null.
    std::shared_ptr<nlohmann::ordered_json const> documentWithUnknown() const;
    /// A copy with a source of its own.
    std::shared_ptr<EffectHandle> copy() const;
    /// Whether class and parameters are the same.
    bool equals(EffectHandle const & other) const;

    /// Runs `work` without the interpreter's lock. Changes of the effect wait for its end.
    template <class Work> auto unlocked(Work const & work) const
    {
        auto const [source, lock] = locked<std::shared_lock<std::shared_mutex>>();
        pybind11::gil_scoped_release const released;
        return work();
    }

private:
    using Slot = std::pair<Effect::Schema::Parameter const *, std::size_t>;

    std::shared_ptr<Source> const & source() const { return m_holder ? m_holder->source() : m_source; }
    std::shared_ptr<EffectHandle> heldAt(
        Effect::Schema::Parameter const & list, std::size_t index, Effect::Object const & held);
    pybind11::object heldIn(Effect::Schema::Parameter const & list);
    Effect::Object & change();
    void setHeld(Effect::Schema::Parameter const & list, nlohmann::json const & documents);

    /// The source and a lock of it. Who waits for one lets the interpreter's lock go meanwhile, and the effect may have
    /// left its holder by then.
    template <class Lock> std::pair<std::shared_ptr<Source>, Lock> locked() const
    {
        for (;;) {
            std::shared_ptr<Source> owner = source();
            Lock lock(owner->mutex(), std::try_to_lock);
            if (!lock) {
                pybind11::gil_scoped_release const released;
                lock.lock();
            }
            if (owner == source())
                return {std::move(owner), std::move(lock)};
        }
    }

    std::shared_ptr<Source> m_source; // null in a holder
    std::shared_ptr<EffectHandle> m_holder;
    Slot m_slot{}; // in the holder
    Effect::Schema::Class const & m_info;
    std::map<Slot, std::weak_ptr<EffectHandle>> m_held;
};

} // namespace EffectsPython
