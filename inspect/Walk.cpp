#include <inspect/Walk.h>

#include <effects/Holder.h>
#include <effects/Schema.h>

namespace Effect::Inspect {

using Schema::Class;
using Schema::Kind;
using Schema::Parameter;
using Serialize::ISerializable;

namespace {

void walk(ISerializable const & object, Class const & info, std::string const & pointer, VisitParameter const & visit)
{
    for (Parameter const & parameter : info.parameters) {
        std::string const place = pointer + parameter.pointer;
        visit(object, parameter, place);
        if (!parameter.elements)
            continue;
        bool const isList = parameter.kind == Kind::List;
        for (std::size_t index = 0; index < elementCount(object, parameter); ++index) {
            ISerializable const * const inner = element(object, parameter, index);
            if (!inner)
                continue;
            Class const * const own = isList ? Schema::of(*inner) : nullptr;
            walk(*inner, own ? *own : *parameter.elements, isList ? place + '/' + std::to_string(index) : place, visit);
        }
    }
}

} // namespace

void walk(ISerializable const & object, std::string const & pointer, VisitParameter const & visit)
{
    if (Class const * const info = Schema::of(object))
        walk(object, *info, pointer, visit);
}

void walkEffects(Object const & effect, std::string const & pointer, VisitEffect const & visit)
{
    visit(effect, pointer);
    auto const * const holder = dynamic_cast<EffectsHolder const *>(&effect);
    Class const * const info = holder ? Schema::of(effect) : nullptr;
    if (!info)
        return;
    std::string const start = pointer + info->find("effects")->pointer + '/';
    for (std::size_t index = 0; index < holder->effects.size(); ++index)
        if (holder->effects[index])
            walkEffects(*holder->effects[index], start + std::to_string(index), visit);
}

} // namespace Effect::Inspect
