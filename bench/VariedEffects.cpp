#include "VariedEffects.h"

#include <cstdint>
#include <cstring>
#include <random>
#include <stdexcept>
#include <string>

#include <EditorSerialization/Layout.h>
#include <EditorSerialization/Registry.h>
#include <effects/Schema.h>

namespace {

using Serialize::Form;
using Serialize::ISerializable;

template <class Value> void store(void * to, Value value)
{
    std::memcpy(to, &value, sizeof value);
}

class Filler
{
public:
    void fill(ISerializable & object, Serialize::Layout const & layout)
    {
        if (layout.base)
            fill(object, *layout.base);
        for (std::size_t index = 0; index < layout.fieldCount; ++index)
            fill(layout.fields[index], layout.fields[index].address(object));
    }

private:
    // Not through a distribution of the standard library: those differ among implementations.
    std::uint32_t integer(std::uint32_t end) { return static_cast<std::uint32_t>(m_random()) % end; }
    double real() { return (static_cast<double>(m_random()) - 2147483648.0) / 1073741824.0; }

    void fill(Serialize::FieldLayout const & field, void * address)
    {
        std::string_view const key = field.key;
        switch (field.form) {
        case Form::Boolean:
            *static_cast<bool *>(address) = !*static_cast<bool *>(address);
            break;
        case Form::Int32:
            store(address, static_cast<std::int32_t>(1 + integer(900)));
            break;
        case Form::UInt32:
            store(address, 0x80000000U | integer(0x1000000));
            break;
        case Form::Int64:
            store(address, std::int64_t(integer(100'000'000)));
            break;
        case Form::Double:
            store(address, real());
            break;
        case Form::Text:
            // The identifier and the group are always those of the class.
            if (key != "id" && key != "groupId")
                *static_cast<QString *>(address) = QStringLiteral("some/text-%1").arg(integer(100'000));
            break;
        case Form::Bytes:
            *static_cast<std::string *>(address) = "some/bytes-" + std::to_string(integer(100'000));
            break;
        case Form::Doubles:
            for (std::uint8_t index = 0; index < field.count; ++index)
                static_cast<double *>(address)[index] = real();
            break;
        case Form::Record:
            fill(*static_cast<ISerializable *>(address), *field.record);
            break;
        case Form::OptionalRecord:
            field.container->clear(address);
            fill(*field.container->append(address), *field.record);
            break;
        case Form::Records:
            field.container->clear(address);
            for (int count = 0; count < 3; ++count)
                fill(*field.container->append(address), *field.record);
            break;
        case Form::Objects:
            break; // holders are made where they are wanted
        }
    }

    std::mt19937 m_random;
};

} // namespace

std::vector<std::unique_ptr<Effect::Object>> makeVariedEffects(std::size_t count)
{
    std::vector<std::string> names;
    for (Effect::Schema::Class const * type : Effect::Schema::classes()) {
        auto const object = Serialize::Registry::create(type->name);
        auto const * const effect = dynamic_cast<Effect::Object const *>(object.get());
        if (effect && !effect->id.isEmpty())
            names.emplace_back(type->name);
    }
    Filler filler;
    std::vector<std::unique_ptr<Effect::Object>> effects;
    while (effects.size() < count) {
        auto object = Serialize::Registry::create(names[effects.size() % names.size()]);
        filler.fill(*object, *object->GetLayout());
        effects.emplace_back(dynamic_cast<Effect::Object *>(object.release()));
    }
    return effects;
}
