#include <EditorSerialization/JsonTree.h>

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "JsonScanner.h"

namespace Serialize::Json {

using nlohmann::ordered_json;

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

ordered_json numberOf(std::string_view token)
{
    char const * const end = token.data() + token.size();
    auto const parse = [&](auto number) {
        auto const result = std::from_chars(token.data(), end, number);
        return result.ec == std::errc() && result.ptr == end ? ordered_json(number) : ordered_json();
    };
    // An integer that does not fit into 64 bits is a number like any other.
    ordered_json const integer = token[0] == '-' ? parse(std::int64_t()) : parse(std::uint64_t());
    return integer.is_null() ? parse(double()) : integer;
}

/// Calls the handler for each part of a text: `open(isObject)`, `close()`, `key(key, offset)` before the value of a
/// member, `element(offset)` before each element of an array, and `scalar(value)`. Returns where it had to stop.
template <class Handler> class Walker
{
public:
    Walker(std::string_view text, Handler & handler)
        : m_text(text)
        , m_handler(handler)
    {}

    std::optional<std::size_t> walk()
    {
        bool const isWhole = value() && m_text.atEnd();
        return isWhole ? std::nullopt : std::optional(m_text.offset());
    }

private:
    // Not deeper than `Scanner::open` allows.
    bool value()
    {
        if (!m_text.token())
            return false;
        switch (m_text.peek()) {
        case '{':
            return members();
        case '[':
            return elements();
        case '"': {
            std::string_view text;
            return m_text.string(text) && scalar(std::string(text));
        }
        case 't':
        case 'f': {
            bool flag = false;
            return m_text.boolean(flag) && scalar(flag);
        }
        case 'n':
            return m_text.null() && scalar(nullptr);
        default: {
            std::string_view token;
            return m_text.numberToken(token) && scalar(numberOf(token));
        }
        }
    }

    bool scalar(ordered_json value)
    {
        m_handler.scalar(std::move(value));
        return true;
    }

    template <class Part> bool parts(bool isObject, Part const & part)
    {
        char const closing = isObject ? '}' : ']';
        if (!m_text.open(isObject ? '{' : '['))
            return false;
        m_handler.open(isObject);
        bool isFirst = true;
        while (!(m_text.token() && (isFirst || m_text.peek() != ',') && m_text.close(closing))) {
            if (!isFirst && !m_text.take(','))
                return false;
            if (!m_text.token() || !part())
                return false;
            isFirst = false;
        }
        m_handler.close();
        return true;
    }
    bool members()
    {
        return parts(true, [this] {
            std::size_t const offset = m_text.offset();
            std::string_view text;
            if (!m_text.string(text))
                return false;
            std::string const key(text);
            if (!m_text.take(':'))
                return false;
            m_handler.key(key, offset);
            return value();
        });
    }
    bool elements()
    {
        return parts(false, [this] {
            m_handler.element(m_text.offset());
            return value();
        });
    }

    Scanner m_text;
    Handler & m_handler;
};

class TreeHandler
{
public:
    explicit TreeHandler(TextTree & tree)
        : m_tree(tree)
    {}

    void open(bool isObject) { m_open.push_back(&put(isObject ? ordered_json::object() : ordered_json::array())); }
    void close()
    {
        if (m_open.back()->is_object())
            dropDuplicates();
        m_open.pop_back();
    }
    /// Closes what is still open.
    void finish()
    {
        while (!m_open.empty())
            close();
    }
    void key(std::string const & key, std::size_t) { m_key = key; }
    void element(std::size_t) {}
    void scalar(ordered_json value) { put(std::move(value)); }

private:
    using Members = ordered_json::object_t;

    ordered_json & put(ordered_json value)
    {
        if (m_open.empty())
            return m_tree.value = std::move(value);
        ordered_json & parent = *m_open.back();
        if (parent.is_array())
            return parent.emplace_back(std::move(value));
        // Its own emplace looks for the key among all members, each time.
        return parent.get_ref<Members &>().Container::emplace_back(m_key, std::move(value)).second;
    }

    void dropDuplicates()
    {
        auto & members = m_open.back()->get_ref<Members &>();
        std::vector<std::pair<std::string_view, std::size_t>> keys;
        for (std::size_t index = 0; index < members.size(); ++index)
            keys.emplace_back(members.begin()[static_cast<std::ptrdiff_t>(index)].first, index);
        std::sort(keys.begin(), keys.end());
        std::vector<std::size_t> dropped;
        for (std::size_t index = 1; index < keys.size(); ++index)
            if (keys[index].first == keys[index - 1].first) {
                m_tree.duplicates.insert(pointer() + pointerStep(keys[index].first));
                dropped.push_back(keys[index - 1].second);
            }
        std::sort(dropped.rbegin(), dropped.rend());
        for (std::size_t const index : dropped)
            members.erase(members.begin() + static_cast<std::ptrdiff_t>(index));
    }

    /// Of the innermost value that is open.
    std::string pointer() const
    {
        std::string pointer;
        for (std::size_t level = 0; level + 1 < m_open.size(); ++level) {
            ordered_json const & parent = *m_open[level];
            pointer += parent.is_array() ? pointerStep(parent.size() - 1)
                                         : pointerStep(parent.get_ref<Members const &>().back().first);
        }
        return pointer;
    }

    TextTree & m_tree;
    std::vector<ordered_json *> m_open;
    std::string m_key;
};

class PlaceHandler
{
public:
    explicit PlaceHandler(std::set<std::string> const & wanted)
        : m_wanted(wanted)
    {
        note(0);
    }

    std::map<std::string, std::size_t> found;

    void open(bool) { m_levels.push_back({m_pointer.size(), 0}); }
    void close()
    {
        m_pointer.resize(m_levels.back().length);
        m_levels.pop_back();
    }
    void key(std::string const & key, std::size_t offset)
    {
        m_pointer.resize(m_levels.back().length);
        m_pointer += pointerStep(key);
        note(offset);
    }
    void element(std::size_t offset)
    {
        m_pointer.resize(m_levels.back().length);
        m_pointer += pointerStep(m_levels.back().index++);
        note(offset);
    }
    void scalar(ordered_json const &) {}

private:
    struct Level
    {
        std::size_t length; // of the pointer to the array or object
        std::size_t index;  // of the next element
    };

    void note(std::size_t offset)
    {
        if (m_wanted.count(m_pointer) != 0)
            found[m_pointer] = offset;
    }

    std::set<std::string> const & m_wanted;
    std::string m_pointer;
    std::vector<Level> m_levels;
};

/// Offsets count the mark, which is no part of the JSON.
std::size_t markLength(std::string_view text)
{
    return text.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
}

} // namespace

TextTree readTree(std::string_view text)
{
    std::size_t const start = markLength(text);
    TextTree tree;
    TreeHandler handler(tree);
    tree.damage = Walker(text.substr(start), handler).walk();
    handler.finish();
    if (tree.damage)
        *tree.damage += start;
    return tree;
}

std::map<std::string, std::size_t> offsetsOf(std::string_view text, std::set<std::string> const & pointers)
{
    std::size_t const start = markLength(text);
    PlaceHandler handler(pointers);
    Walker(text.substr(start), handler).walk();
    for (auto & [pointer, offset] : handler.found)
        offset += start;
    return std::move(handler.found);
}

std::string pointerStep(std::string_view key)
{
    std::string step = "/";
    for (char const unit : key) {
        if (unit == '~')
            step += "~0";
        else if (unit == '/')
            step += "~1";
        else
            step += unit;
    }
    return step;
}

std::string pointerStep(std::size_t index)
{
    return '/' + std::to_string(index);
}

} // namespace Serialize::Json
