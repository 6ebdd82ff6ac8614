#include "EffectHandle.h"

#include <stdexcept>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <inspect/Documents.h>

#include "Errors.h"
#include "Values.h"

namespace EffectsPython {

namespace py = pybind11;
using Effect::Schema::Class;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;
using nlohmann::ordered_json;

namespace {

Effect::Object const * effectAt(Effect::Object const & holder, Parameter const & list, std::size_t index)
{
    return dynamic_cast<Effect::Object const *>(Effect::Schema::element(holder, list, index));
}

Class const & classOf(Effect::Object const & effect)
{
    if (Class const * const info = Effect::Schema::of(effect))
        return *info;
    throw std::invalid_argument("the class " + effect.GetNameInArchive() + " is not of this library");
}

bool isListOfEffects(Parameter const & parameter)
{
    return parameter.kind == Kind::List && parameter.elements &&
           parameter.elements->name == Effect::Object::NameInArchive();
}

/// The documents of effects, or of what is given instead of them.
json documentsOf(py::handle effects)
{
    if (PyUnicode_Check(effects.ptr()) || !PySequence_Check(effects.ptr()))
        return toJson(effects);
    json documents = json::array();
    for (py::handle const item : effects)
        documents.push_back(py::isinstance<EffectHandle>(item)
                                ? Effect::Inspect::document(py::cast<EffectHandle const &>(item).effect())
                                : toJson(item));
    return documents;
}

} // namespace

EffectHandle::EffectHandle(std::shared_ptr<Source> source)
    : m_source(std::move(source))
    , m_info(classOf(m_source->effect()))
{}

EffectHandle::EffectHandle(
    std::shared_ptr<EffectHandle> holder, Parameter const & list, std::size_t index, Effect::Object const & effect)
    : m_holder(std::move(holder))
    , m_slot(&list, index)
    , m_info(classOf(effect))
{}

Effect::Object const & EffectHandle::effect() const
{
    return m_holder ? *effectAt(m_holder->effect(), *m_slot.first, m_slot.second) : m_source->effect();
}

std::shared_ptr<Effect::Object const> EffectHandle::usable() const
{
    if (!m_holder)
        return m_source->usable();
    auto const holder = m_holder->usable();
    return {holder, effectAt(*holder, *m_slot.first, m_slot.second)};
}

Effect::Object & EffectHandle::change()
{
    if (!m_holder)
        return m_source->change();
    return dynamic_cast<Effect::Object &>(*Effect::Schema::element(m_holder->change(), *m_slot.first, m_slot.second));
}

py::object EffectHandle::value(Parameter const & parameter)
{
    return isListOfEffects(parameter) ? heldIn(parameter)
                                      : toPython(parameter, Effect::Schema::value(effect(), parameter));
}

/// An effect that Python holds already is the same object again.
std::shared_ptr<EffectHandle> EffectHandle::heldAt(
    Parameter const & list, std::size_t index, Effect::Object const & held)
{
    std::weak_ptr<EffectHandle> & known = m_held[{&list, index}];
    std::shared_ptr<EffectHandle> handle = known.lock();
    if (!handle)
        known = handle = std::make_shared<EffectHandle>(shared_from_this(), list, index, held);
    return handle;
}

py::object EffectHandle::heldIn(Parameter const & list)
{
    Effect::Object const & holder = effect();
    std::size_t const count = Effect::Schema::elementCount(holder, list);
    py::list effects(count);
    for (std::size_t index = 0; index < count; ++index) {
        Effect::Object const * const held = effectAt(holder, list, index);
        effects[index] = held ? py::cast(heldAt(list, index, *held)) : py::none();
    }
    return effects;
}

void EffectHandle::setValue(Parameter const & parameter, py::handle value)
{
    bool const areEffects = isListOfEffects(parameter);
    json const given = areEffects ? documentsOf(value) : EffectsPython::toJson(value);
    auto const [source, lock] = locked<std::unique_lock<std::shared_mutex>>();
    if (areEffects)
        setHeld(parameter, given);
    else
        Effect::Schema::setValue(change(), parameter, given);
}

void EffectHandle::setHeld(Parameter const & list, json const & documents)
{
    std::vector<std::pair<std::shared_ptr<EffectHandle>, std::shared_ptr<Source>>> leaving;
    for (auto const & [slot, known] : m_held)
        if (auto held = known.lock(); held && slot.first == &list) {
            auto bytes = std::make_shared<std::string const>(held->toBytes());
            leaving.emplace_back(std::move(held), Source::read(std::move(bytes), file()));
        }
    Effect::Schema::setValue(change(), list, documents);
    for (auto & [held, own] : leaving) {
        held->m_source = std::move(own);
        held->m_holder.reset();
        m_held.erase(held->m_slot);
    }
}

std::shared_ptr<ordered_json const> EffectHandle::documentWithUnknown() const
{
    if (!m_holder)
        return m_source->documentWithUnknown();
    auto const document = m_holder->documentWithUnknown();
    if (!document)
        return nullptr;
    ordered_json::json_pointer const pointer(m_slot.first->pointer + '/' + std::to_string(m_slot.second));
    return document->contains(pointer) ? std::make_shared<ordered_json const>(document->at(pointer)) : nullptr;
}

std::string EffectHandle::toJson() const
{
    if (!m_holder)
        return m_source->toJson();
    auto const document = documentWithUnknown();
    return document ? document->dump() : Effect::Archive::toJson(effect());
}

std::string EffectHandle::toBinary() const
{
    if (!m_holder)
        return m_source->toBinary();
    // A document refuses to lose what the binary form cannot keep.
    auto const document = documentWithUnknown();
    return document ? Effect::Archive::Document::read(document->dump()).toBinary()
                    : Effect::Archive::toBinary(effect());
}

std::string EffectHandle::toBytes() const
{
    if (!m_holder)
        return m_source->toBytes();
    auto const document = documentWithUnknown();
    return document ? document->dump() : Effect::Archive::toBinary(effect());
}

std::shared_ptr<EffectHandle> EffectHandle::copy() const
{
    return std::make_shared<EffectHandle>(
        unlocked([this] { return Source::read(std::make_shared<std::string const>(toBytes()), file()); }));
}

bool EffectHandle::equals(EffectHandle const & other) const
{
    if (&m_info != &other.m_info)
        return false;
    // Equal bytes are equal values, but not the reverse: 0.0 and -0.0.
    return Effect::Archive::toBinary(effect()) == Effect::Archive::toBinary(other.effect()) ||
           Effect::Inspect::document(effect()) == Effect::Inspect::document(other.effect());
}

} // namespace EffectsPython
