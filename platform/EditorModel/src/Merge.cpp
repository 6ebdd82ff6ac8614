#include "Merge.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace Effect::Archive {

using nlohmann::json;
using nlohmann::ordered_json;

namespace {

using Pair = std::pair<std::size_t, std::size_t>;

/// Elements that are the same before and after: pairs of their indices, ascending in both.
std::vector<Pair> common(json const & before, json const & after)
{
    std::vector<Pair> pairs;
    std::size_t begin = 0;
    while (begin < before.size() && begin < after.size() && before[begin] == after[begin]) {
        pairs.emplace_back(begin, begin);
        ++begin;
    }
    std::size_t beforeEnd = before.size();
    std::size_t afterEnd = after.size();
    std::vector<Pair> last;
    while (beforeEnd > begin && afterEnd > begin && before[beforeEnd - 1] == after[afterEnd - 1])
        last.emplace_back(--beforeEnd, --afterEnd);
    // In between, the longest common subsequence, unless the lists are so long that it would take too long.
    std::size_t const rows = beforeEnd - begin;
    std::size_t const columns = afterEnd - begin;
    constexpr std::size_t most = std::size_t(1) << 20;
    if (rows > 0 && columns > 0 && columns <= most / rows) {
        std::vector<std::size_t> lengths((rows + 1) * (columns + 1), 0);
        auto const length = [&](std::size_t row, std::size_t column) -> std::size_t & {
            return lengths[row * (columns + 1) + column];
        };
        for (std::size_t row = rows; row-- > 0;)
            for (std::size_t column = columns; column-- > 0;)
                length(row, column) = before[begin + row] == after[begin + column]
                                          ? length(row + 1, column + 1) + 1
                                          : std::max(length(row + 1, column), length(row, column + 1));
        for (std::size_t row = 0, column = 0; row < rows && column < columns;) {
            if (before[begin + row] == after[begin + column])
                pairs.emplace_back(begin + row++, begin + column++);
            else if (length(row + 1, column) >= length(row, column + 1))
                ++row;
            else
                ++column;
        }
    }
    pairs.insert(pairs.end(), last.rbegin(), last.rend());
    return pairs;
}

/// Whether this object is a reference to one elsewhere in the document, possibly shared with other places.
bool isReference(ordered_json const & tree)
{
    return tree.contains("$meta") && tree["$meta"].contains("ref");
}

/// Where as many elements as before follow one that has not changed, they are the same ones, and keep what is unknown
/// in them.
void mergeLists(ordered_json & tree, json const & before, json const & after)
{
    ordered_json merged = ordered_json::array();
    std::vector<Pair> pairs = common(before, after);
    pairs.emplace_back(before.size(), after.size());
    std::size_t from = 0;
    std::size_t to = 0;
    for (auto const & [beforeIndex, afterIndex] : pairs) {
        bool const isSameCount = beforeIndex - from == afterIndex - to;
        for (; to < afterIndex; ++to, ++from) {
            if (!isSameCount) {
                merged.push_back(ordered_json(after[to]));
                continue;
            }
            ordered_json element = std::move(tree[from]);
            merge(element, before[from], after[to]);
            merged.push_back(std::move(element));
        }
        if (beforeIndex < before.size())
            merged.push_back(std::move(tree[beforeIndex]));
        from = beforeIndex + 1;
        to = afterIndex + 1;
    }
    tree = std::move(merged);
}

} // namespace

void merge(ordered_json & tree, json const & before, json const & after)
{
    if (before == after)
        return;
    if (tree.is_array() && before.is_array() && after.is_array() && tree.size() == before.size())
        return mergeLists(tree, before, after);
    if (!tree.is_object() || isReference(tree) || !before.is_object() || !after.is_object() ||
        before.value("$meta", json()) != after.value("$meta", json())) {
        tree = after;
        return;
    }
    for (auto const & [key, value] : after.items()) {
        auto const old = before.find(key);
        if (old == before.end() || !tree.contains(key)) {
            if (old == before.end() || *old != value)
                tree[key] = value;
        } else {
            merge(tree[key], *old, value);
        }
    }
    for (auto const & [key, value] : before.items())
        if (!after.contains(key))
            tree.erase(key);
}

} // namespace Effect::Archive
