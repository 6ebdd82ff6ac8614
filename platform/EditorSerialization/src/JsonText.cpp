#include <EditorSerialization/JsonText.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include <EditorSerialization/Error.h>
#include <EditorSerialization/Layout.h>
#include <EditorSerialization/Registry.h>

#include <QByteArray>

#include "JsonNumber.h"
#include "JsonScanner.h"
#include "Utf8.h"

namespace Serialize::Json {

namespace {

template <class Value> void store(void * to, Value value)
{
    std::memcpy(to, &value, sizeof value);
}

template <class Value> Value stored(void const * from)
{
    Value value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

/// Reads objects by their layouts. Like those of `Scanner`, every function returns false for what it does not take.
class ObjectReader : public Scanner
{
public:
    using Scanner::Scanner;

    /// An object with its class, or null.
    bool pointed(std::unique_ptr<ISerializable> & object);
    bool text(QString & text);

private:
    bool metaMember(std::string_view & className);
    bool content(Layout const & layout, ISerializable & object);
    bool members(Layout const & layout, ISerializable & object, bool isFirst);
    bool value(FieldLayout const & field, ISerializable & object);
    template <class Integer> bool fitting(void * address);
    bool bytes(std::string & bytes);
    bool doubles(std::uint8_t count, double * numbers);
    bool records(FieldLayout const & field, void * container);
    bool objects(FieldLayout const & field, void * container);
    template <class Read> bool elements(Read const & read);
    KeyLayout const * expected(KeyLayout const * next, KeyLayout const * end);
    static KeyLayout const * find(Layout const & layout, std::string_view key);

    int m_objects = 0; // that own what is being read
};

bool ObjectReader::text(QString & text)
{
    if (!token())
        return false;
    if (peek() == 'n') {
        text = QString();
        return null();
    }
    std::string_view bytes;
    bool isAscii = false;
    if (!string(bytes, isAscii))
        return false;
    if (!isAscii) {
        text = fromUtf8(bytes);
        return true;
    }
    // Most texts equal the default of the constructor, which then stays.
    bool const hasSize = static_cast<std::size_t>(text.size()) == bytes.size() && !text.isNull();
    if (hasSize && areSame(reinterpret_cast<char16_t const *>(text.constData()), bytes.data(), bytes.size()))
        return true;
    text = QString(static_cast<int>(bytes.size()), Qt::Uninitialized);
    if (!bytes.empty()) // an empty text shares its data, of which `data` would make a copy
        widen(reinterpret_cast<char16_t *>(text.data()), bytes.data(), bytes.size());
    return true;
}

/// The key and the value of an object that says no more than its class.
bool ObjectReader::metaMember(std::string_view & className)
{
    if (isDeepest())
        return false;
    bool isAscii = false;
    if (takeExactly("\"$meta\":{\"class\":\"")) // without white space, as it is written here
        return stringRest(className, isAscii) && take('}');
    return token() && takeExactly("\"$meta\"") && take(':') && open('{') && token() && takeExactly("\"class\"") &&
           take(':') && string(className, isAscii) && close('}');
}

bool ObjectReader::pointed(std::unique_ptr<ISerializable> & object)
{
    object.reset();
    if (!token())
        return false;
    if (peek() == 'n')
        return null();
    std::string_view className;
    if (m_objects == maxObjectDepth || !open('{') || !metaMember(className))
        return false;
    Registry::Entry const type = Registry::find(className);
    if (!type.creator || !type.layout)
        return false;
    object.reset(type.creator->create());
    if (!object)
        return false;
    ++m_objects;
    bool const isRead = members(*type.layout, *object, false);
    --m_objects;
    return isRead;
}

bool ObjectReader::content(Layout const & layout, ISerializable & object)
{
    if (!open('{'))
        return false;
    // A text that was written here begins with the head.
    if (!layout.hasClassInformation || isDeepest())
        return members(layout, object, true);
    if (takeExactly(layout.head + 1, layout.headLength - std::size_t(1)))
        return members(layout, object, false);
    if (!token() || !startsWith("\"$meta\""))
        return members(layout, object, true);
    std::string_view className;
    return metaMember(className) && className == layout.name && members(layout, object, false);
}

/// @param isFirst  whether nothing of the object has been read
bool ObjectReader::members(Layout const & layout, ISerializable & object, bool isFirst)
{
    KeyLayout const * const end = layout.keys + layout.keyCount;
    KeyLayout const * next = layout.keys;
    std::uint64_t seen = 0; // a bit for each key
    std::uint64_t bit = 1;  // of the next one
    for (;; isFirst = false) {
        KeyLayout const * key = next;
        // The keys of a text that was written here come in the table's order and without white space.
        if (isFirst || next == end || !takeExactly(next->literal, next->length)) {
            if (!token())
                return false;
            if (peek() == '}')
                return close('}');
            if (!isFirst && !take(','))
                return false;
            std::string_view name;
            key = expected(next, end);
            if (!key) {
                if (!string(name))
                    return false;
                key = find(layout, name);
            }
            if (!take(':'))
                return false;
            if (!key) {
                if (name == MetaDetails::s_meta || !skip())
                    return false;
                continue;
            }
            bit = std::uint64_t(1) << (key - layout.keys);
        }
        if ((seen & bit) != 0)
            return false;
        seen |= bit;
        bit <<= 1;
        if (!(key->field ? value(*key->field, object) : content(*layout.base, object)))
            return false;
        next = key + 1;
    }
}

/// The next key of the table or the one after it, which follows where an optional record is absent, if it is what comes
/// in the text. Null otherwise; then nothing has been taken but white space.
KeyLayout const * ObjectReader::expected(KeyLayout const * next, KeyLayout const * end)
{
    if (!token())
        return nullptr;
    for (int tries = 0; tries < 2 && next != end; ++tries, ++next)
        if (takeExactly(next->literal + 1, next->length - std::size_t(2)))
            return next;
    return nullptr;
}

KeyLayout const * ObjectReader::find(Layout const & layout, std::string_view key)
{
    KeyLayout const * const end = layout.keys + layout.keyCount;
    KeyLayout const * const found = std::lower_bound(
        layout.keys, end, key, [](KeyLayout const & row, std::string_view sought) { return row.key() < sought; });
    return found != end && found->key() == key ? found : nullptr;
}

bool ObjectReader::value(FieldLayout const & field, ISerializable & object)
{
    void * const address = field.address(object);
    switch (field.form) {
    case Form::Boolean:
        return boolean(*static_cast<bool *>(address));
    case Form::Int32:
        return fitting<std::int32_t>(address);
    case Form::UInt32:
        return fitting<std::uint32_t>(address);
    case Form::Int64:
        return fitting<std::int64_t>(address);
    case Form::Double: {
        double number = 0;
        if (!real(number))
            return false;
        store(address, number);
        return true;
    }
    case Form::Text:
        return text(*static_cast<QString *>(address));
    case Form::Bytes:
        return bytes(*static_cast<std::string *>(address));
    case Form::Doubles:
        return doubles(field.count, static_cast<double *>(address));
    case Form::Record:
        return content(*field.record, *static_cast<ISerializable *>(address));
    case Form::OptionalRecord: {
        if (!token())
            return false;
        if (peek() == 'n') {
            field.container->clear(address);
            return null();
        }
        // Keys that are absent keep what the record was.
        bool const isThere = field.container->size(address) != 0;
        return content(*field.record, isThere ? *field.container->at(address, 0) : *field.container->append(address));
    }
    case Form::Records:
        return records(field, address);
    case Form::Objects:
        return objects(field, address);
    }
    return false;
}

template <class Integer> bool ObjectReader::fitting(void * address)
{
    std::int64_t number = 0;
    if (!integer(number) || number != static_cast<std::int64_t>(static_cast<Integer>(number)))
        return false;
    store(address, static_cast<Integer>(number));
    return true;
}

bool ObjectReader::bytes(std::string & bytes)
{
    std::string_view read;
    if (!string(read))
        return false;
    bytes = read;
    return true;
}

bool ObjectReader::doubles(std::uint8_t count, double * numbers)
{
    if (!open('['))
        return false;
    for (std::uint8_t index = 0; index < count; ++index)
        if ((index > 0 && !take(',')) || !real(numbers[index]))
            return false;
    return close(']');
}

template <class Read> bool ObjectReader::elements(Read const & read)
{
    if (!open('[') || !token())
        return false;
    if (peek() == ']')
        return close(']');
    do
        if (!read())
            return false;
    while (take(','));
    return close(']');
}

bool ObjectReader::records(FieldLayout const & field, void * container)
{
    field.container->clear(container);
    return elements([&] { return content(*field.record, *field.container->append(container)); });
}

bool ObjectReader::objects(FieldLayout const & field, void * container)
{
    field.container->clear(container);
    return elements([&] {
        std::unique_ptr<ISerializable> object;
        return pointed(object) && field.container->adopt(container, std::move(object));
    });
}

/// Writes objects by their layouts.
class ObjectWriter
{
public:
    ObjectWriter() = default;
    ObjectWriter(ObjectWriter const &) = delete;
    ObjectWriter & operator=(ObjectWriter const &) = delete;

    /// An object with its class; null is allowed.
    void pointed(ISerializable const * object);
    /// Empty if an object was refused.
    std::string finish();

private:
    /// How far the outermost list has come, from which the size of the text is guessed.
    struct Progress
    {
        std::size_t start; // bytes of text before the list
        std::size_t index; // of the element that is being written
        std::size_t size;
    };

    void room(std::size_t count)
    {
        if (static_cast<std::size_t>(std::end(m_buffer) - m_next) < count)
            flush();
    }
    void put(char byte) { *m_next++ = byte; }
    void put(std::string_view bytes)
    {
        std::memcpy(m_next, bytes.data(), bytes.size());
        m_next += bytes.size();
    }
    void putShort(std::string_view bytes)
    {
        copyShort(m_next, bytes.data(), bytes.size());
        m_next += bytes.size();
    }
    template <class Number> void number(Number value) { m_next = writeNumber(m_next, value); }
    void content(Layout const & layout, Layout const & dynamic, ISerializable & object);
    void value(FieldLayout const & field, void const * address);
    void text(QString const & text);
    void unusual(QString const & text);
    void bytes(std::string const & bytes);
    void character(unsigned code);
    void doubles(std::uint8_t count, double const * numbers);
    template <class Write> void elements(std::size_t size, Write const & write);
    std::size_t size() const { return m_text.size() + static_cast<std::size_t>(m_next - m_buffer); }
    void flush();

    static constexpr std::size_t chunk = maxTextSize; // of texts

    // Stays in the processor's cache, unlike the text.
    char m_buffer[4 * maxTextSize];
    char * m_next = m_buffer;
    std::string m_text;
    Progress const * m_progress = nullptr;
    int m_objects = 0; // that own what is being written
    bool m_isRefused = false;
};

std::string ObjectWriter::finish()
{
    if (m_isRefused)
        return {};
    if (m_text.empty())
        return {m_buffer, m_next};
    flush();
    return std::move(m_text);
}

void ObjectWriter::flush()
{
    std::size_t needed = size();
    if (needed > m_text.capacity() && m_progress) {
        // Each growth touches new memory, and copies. The guess is held down for lists that begin with the longest.
        std::size_t const perElement = (needed - m_progress->start) / (m_progress->index + 1) + 1;
        std::size_t const guess = needed + perElement * (m_progress->size - m_progress->index);
        m_text.reserve(std::min(guess + guess / 16, 16 * needed));
    }
    m_text.append(m_buffer, m_next);
    m_next = m_buffer;
}

void ObjectWriter::pointed(ISerializable const * object)
{
    if (!object)
        return put("null");
    Layout const * const layout = object->GetLayout();
    // A class that merely inherits a layout is not described by it.
    if (!layout || !layout->hasClassInformation || *layout->type != typeid(*object) || m_objects == maxObjectDepth) {
        m_isRefused = true;
        return;
    }
    ++m_objects;
    // The layouts give addresses in an object that may be changed; here nothing is.
    content(*layout, *layout, const_cast<ISerializable &>(*object));
    --m_objects;
}

/// @param dynamic  of the object's class, of which `layout` may be a base's
void ObjectWriter::content(Layout const & layout, Layout const & dynamic, ISerializable & object)
{
    room(layout.textSize);
    putShort({layout.head, layout.headLength});
    std::size_t comma = layout.hasClassInformation ? 0 : 1; // left out before the first key
    for (KeyLayout const *key = layout.keys, *end = key + layout.keyCount; key != end; ++key) {
        FieldLayout const * const field = key->field;
        void const * const address = field ? field->address(object) : nullptr;
        bool const isAbsent = field && field->form == Form::OptionalRecord && field->container->size(address) == 0;
        if (isAbsent && !(dynamic.newHasOptional && dynamic.newHasOptional()))
            continue;
        putShort({key->literal + comma, key->length - comma});
        comma = 0;
        if (!field)
            content(*layout.base, dynamic, object);
        else if (isAbsent)
            put("null");
        else
            value(*field, address);
        if (!field || field->form >= Form::Text)
            room(layout.textSize);
    }
    put('}');
}

void ObjectWriter::value(FieldLayout const & field, void const * address)
{
    switch (field.form) {
    case Form::Boolean:
        return put(*static_cast<bool const *>(address) ? "true" : "false");
    case Form::Int32:
        return number(stored<std::int32_t>(address));
    case Form::UInt32:
        return number(stored<std::uint32_t>(address));
    case Form::Int64:
        return number(stored<std::int64_t>(address));
    case Form::Double:
        return number(stored<double>(address));
    case Form::Text:
        return text(*static_cast<QString const *>(address));
    case Form::Bytes:
        return bytes(*static_cast<std::string const *>(address));
    case Form::Doubles:
        return doubles(field.count, static_cast<double const *>(address));
    case Form::Record: {
        auto const * const record = static_cast<ISerializable const *>(address);
        return content(*field.record, *field.record, const_cast<ISerializable &>(*record));
    }
    case Form::OptionalRecord:
        return content(*field.record, *field.record, *field.container->at(address, 0));
    case Form::Records:
        return elements(field.container->size(address),
            [&](std::size_t index) { content(*field.record, *field.record, *field.container->at(address, index)); });
    case Form::Objects:
        return elements(
            field.container->size(address), [&](std::size_t index) { pointed(field.container->at(address, index)); });
    }
}

void ObjectWriter::text(QString const & text)
{
    if (text.isNull())
        return put("null");
    auto const count = static_cast<std::size_t>(text.size());
    if (count <= chunk) {
        room(count + 2);
        char * const begin = m_next;
        put('"');
        if (copyPlain(m_next, reinterpret_cast<char16_t const *>(text.constData()), count) == count) {
            m_next += count;
            return put('"');
        }
        m_next = begin;
    }
    unusual(text);
}

void ObjectWriter::unusual(QString const & text)
{
    auto const * next = reinterpret_cast<char16_t const *>(text.constData());
    auto const * const end = next + text.size();
    constexpr std::size_t longest = 16; // of a character or of a unit's number
    room(longest);
    if (!isUtf16(text)) {
        put("{\"$utf16\":");
        elements(static_cast<std::size_t>(text.size()), [&](std::size_t index) { number(unsigned(next[index])); });
        return put('}');
    }
    put('"');
    while (next != end) {
        room(chunk + longest);
        std::size_t const plain = copyPlain(m_next, next, std::min(static_cast<std::size_t>(end - next), chunk));
        m_next += plain;
        next += plain;
        if (next == end || isPlain(*next))
            continue;
        unsigned code = *next++;
        if (QChar::isHighSurrogate(code))
            code = QChar::surrogateToUcs4(static_cast<ushort>(code), static_cast<ushort>(*next++));
        character(code);
    }
    put('"');
}

/// A character that is not plain.
void ObjectWriter::character(unsigned code)
{
    static constexpr char letters[] = "\"\\bfnrt";
    static constexpr char meanings[] = "\"\\\b\f\n\r\t";
    if (code >= 0x80) {
        std::string utf8;
        appendUtf8(utf8, code);
        put(utf8);
    } else if (char const * const found = code ? std::strchr(meanings, static_cast<int>(code)) : nullptr) {
        put('\\');
        put(letters[found - meanings]);
    } else {
        static constexpr char digits[] = "0123456789abcdef";
        put("\\u00");
        put(digits[code >> 4]);
        put(digits[code & 0xF]);
    }
}

void ObjectWriter::bytes(std::string const & bytes)
{
    char const * next = bytes.data();
    char const * const end = next + bytes.size();
    if (!isUtf8(bytes)) {
        QByteArray const encoded = QByteArray::fromRawData(next, static_cast<int>(bytes.size())).toBase64();
        put("{\"$bytes\":");
        this->bytes(encoded.toStdString());
        return put('}');
    }
    put('"');
    while (next != end) {
        constexpr std::size_t longest = 16; // of a character
        room(chunk + longest);
        char const * const stop = next + std::min(static_cast<std::size_t>(end - next), chunk);
        char const * const plain = endOfPlain(next, stop);
        put({next, static_cast<std::size_t>(plain - next)});
        next = plain;
        if (next == stop)
            continue;
        if (static_cast<unsigned char>(*next) < 0x80) {
            character(static_cast<unsigned char>(*next++));
        } else {
            auto const length = static_cast<std::size_t>(utf8Length(next, end));
            put({next, length});
            next += length;
        }
    }
    put('"');
}

void ObjectWriter::doubles(std::uint8_t count, double const * numbers)
{
    room((numberSize + 1) * count + 2);
    put('[');
    for (std::uint8_t index = 0; index < count; ++index) {
        if (index > 0)
            put(',');
        number(numbers[index]);
    }
    put(']');
}

template <class Write> void ObjectWriter::elements(std::size_t size, Write const & write)
{
    Progress progress{this->size(), 0, size};
    bool const isOutermost = !m_progress;
    if (isOutermost)
        m_progress = &progress;
    put('[');
    for (std::size_t & index = progress.index; index < size; ++index) {
        if (index > 0)
            put(',');
        write(index);
        room(2 * numberSize);
    }
    put(']');
    if (isOutermost)
        m_progress = nullptr;
}

} // namespace

struct TextReader::State
{
    ObjectReader reader;
    bool isRefused = false;
    bool isFirst = false; // nothing of the innermost object or array has been read

    explicit State(std::string_view text)
        : reader(text)
    {}

    /// Refuses everything after the first refusal.
    template <class Read> bool attempt(Read const & read)
    {
        isRefused = isRefused || !read(reader);
        return !isRefused;
    }
    bool enter(char bracket)
    {
        isFirst = true;
        return attempt([&](ObjectReader & text) { return text.open(bracket); });
    }
    /// Whether anything comes before the closing bracket.
    bool next(char closing)
    {
        bool isEnd = false;
        bool const isTaken = attempt([&](ObjectReader & text) {
            if (!text.token())
                return false;
            isEnd = text.peek() == closing;
            return isEnd ? text.close(closing) : isFirst || text.take(',');
        });
        isFirst = false;
        return isTaken && !isEnd;
    }
};

TextReader::TextReader(std::string_view text)
    : m_state(std::make_unique<State>(text))
{}

TextReader::~TextReader() = default;

bool TextReader::enterObject()
{
    return m_state->enter('{');
}

bool TextReader::nextKey(std::string_view & key)
{
    return m_state->next('}') &&
           m_state->attempt([&](ObjectReader & reader) { return reader.string(key) && reader.take(':'); });
}

bool TextReader::enterArray()
{
    return m_state->enter('[');
}

bool TextReader::nextElement()
{
    return m_state->next(']');
}

bool TextReader::read(QString & text)
{
    return m_state->attempt(
        [&](ObjectReader & reader) { return reader.token() && reader.peek() == '"' && reader.text(text); });
}

bool TextReader::read(std::unique_ptr<ISerializable> & object)
{
    return m_state->attempt([&](ObjectReader & reader) { return reader.pointed(object); });
}

bool TextReader::skip()
{
    return m_state->attempt([](ObjectReader & reader) { return reader.skip(); });
}

bool TextReader::isWhole()
{
    return !m_state->isRefused && m_state->reader.atEnd();
}

std::unique_ptr<ISerializable> readObject(std::string_view text)
{
    ObjectReader reader(text);
    std::unique_ptr<ISerializable> object;
    if (!reader.pointed(object) || !reader.atEnd())
        return nullptr;
    return object;
}

std::string writeObject(ISerializable const & object)
{
    ObjectWriter writer;
    writer.pointed(&object);
    return writer.finish();
}

} // namespace Serialize::Json
