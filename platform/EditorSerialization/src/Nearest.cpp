#include <EditorSerialization/Nearest.h>

#include <algorithm>
#include <cctype>

namespace Serialize {

namespace {

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); });
    return lower;
}

/// How many letters have to be changed, inserted, removed or swapped with their neighbour to make one of the other:
/// the optimal string alignment distance.
std::size_t distance(std::string_view left, std::string_view right)
{
    // Rows of the table of all beginnings: the one being filled, the one before it and the one before that.
    std::vector<std::size_t> row(right.size() + 1);
    std::vector<std::size_t> before;
    std::vector<std::size_t> earlier;
    for (std::size_t column = 0; column < row.size(); ++column)
        row[column] = column;
    for (std::size_t i = 1; i <= left.size(); ++i) {
        earlier = std::move(before);
        before = row;
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            std::size_t const changed = before[j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1);
            row[j] = std::min({before[j] + 1, row[j - 1] + 1, changed});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1])
                row[j] = std::min(row[j], earlier[j - 2] + 1);
        }
    }
    return row.back();
}

} // namespace

std::string nearest(std::string_view word, std::vector<std::string> const & candidates)
{
    // Far beyond any name, where the table would only cost time.
    constexpr std::size_t longest = 200;
    if (word.size() > longest)
        return {};
    std::string const lower = lowerCase(word);
    std::string best;
    std::size_t least = std::string::npos;
    for (std::string const & candidate : candidates) {
        std::size_t const found = distance(lower, lowerCase(candidate));
        if (found < least && 2 * found <= std::max(word.size(), candidate.size())) {
            least = found;
            best = candidate;
        }
    }
    return best;
}

std::string didYouMean(std::string_view word, std::vector<std::string> const & candidates)
{
    std::string const meant = nearest(word, candidates);
    return meant.empty() ? std::string() : "; did you mean \"" + meant + "\"?";
}

} // namespace Serialize
