#include <inspect/Search.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <tuple>

#include <effects/Schema.h>
#include <inspect/Categories.h>

#include <QString>

namespace Effect::Inspect {

std::vector<std::vector<std::string>> const & synonyms()
{
    static std::vector<std::vector<std::string>> const rows{
        {"blur", "defocus", "soft", "soften", "bokeh"},
        {"sharpen", "sharpness", "crisp", "clarity", "detail"},
        {"monochrome", "grayscale", "greyscale", "bw", "noir"},
        {"vintage", "retro", "old", "nostalgia", "sepia"},
        {"color", "colour", "tint", "hue", "grade", "grading"},
        {"lut", "look", "table", "cube"},
        {"noise", "noize", "grain"},
        {"denoise", "suppress", "hiss", "hum", "clean"},
        {"echo", "delay", "repeat"},
        {"reverb", "reverberation", "hall", "room"},
        {"pitch", "helium", "chipmunk"},
        {"voice", "speech", "vocal", "narration", "talk"},
        {"equalizer", "equaliser", "eq"},
        {"loudness", "normalize", "normalise", "volume", "level"},
        {"pip", "inset", "picture"},
        {"mask", "conceal", "hide", "censor", "anonymize"},
        {"mosaic", "pixelate", "pixel", "blocks"},
        {"rotate", "rotation", "turn"},
        {"mirror", "flip", "reflect", "kaleidoscope"},
        {"crop", "trim", "cut"},
        {"glow", "shine", "flare", "light", "lights"},
        {"shake", "earthquake", "tremble"},
        {"chroma", "greenscreen", "key", "keying"},
        {"robot", "android", "machine"},
        {"phone", "telephone", "call"},
        {"warm", "amber", "orange", "sunny"},
        {"cold", "cool", "teal", "blue", "winter"},
        {"brightness", "bright", "exposure", "lighten"},
        {"opacity", "transparency", "transparent", "alpha"},
        {"glitch", "vhs", "crt", "tv", "interference"},
        {"frame", "border"},
        {"water", "underwater", "ripple", "wave"},
    };
    return rows;
}

namespace {

using Words = std::vector<std::string>;

/// What is in almost every tag and says nothing.
bool isFiller(std::string const & word)
{
    return word == "effect" || word == "effects" || word == "category";
}

/// The words of a text in lower case: parted by whatever is no letter or digit, and where a capital follows a small
/// letter.
Words wordsOf(std::string const & text)
{
    Words words;
    QChar last;
    QString word;
    auto const end = [&] {
        if (!word.isEmpty() && !isFiller(word.toStdString()))
            words.push_back(word.toStdString());
        word.clear();
    };
    for (QChar const letter : QString::fromStdString(text)) {
        if (!letter.isLetterOrNumber() || (letter.isUpper() && last.isLower()))
            end();
        if (letter.isLetterOrNumber())
            word += letter.toLower();
        last = letter;
    }
    end();
    return words;
}

/// How many letters have to be changed, left out, put in or swapped with their neighbours to make one word the other.
std::size_t distance(QString const & a, QString const & b)
{
    auto const columns = static_cast<std::size_t>(b.size()) + 1;
    std::vector<std::size_t> before(columns), last(columns), now(columns);
    std::iota(last.begin(), last.end(), std::size_t(0));
    for (int row = 1; row <= a.size(); ++row) {
        now[0] = static_cast<std::size_t>(row);
        for (int column = 1; column <= b.size(); ++column) {
            auto const at = static_cast<std::size_t>(column);
            std::size_t const change = a[row - 1] == b[column - 1] ? 0 : 1;
            now[at] = std::min({last[at] + 1, now[at - 1] + 1, last[at - 1] + change});
            if (row > 1 && column > 1 && a[row - 1] == b[column - 2] && a[row - 2] == b[column - 1])
                now[at] = std::min(now[at], before[at - 2] + 1);
        }
        std::swap(before, last);
        std::swap(last, now);
    }
    return last.back();
}

/// How many typing mistakes a word of so many letters may have.
std::size_t mistakesIn(int letters)
{
    return letters < 4 ? 0 : letters < 8 ? 1 : 2;
}

/// How alike two words are: 1 for the same, 0 for nothing in common.
double likeness(std::string const & word, std::string const & other)
{
    constexpr double beginning = 0.75;
    constexpr double mistaken = 0.5;
    constexpr std::size_t shortestBeginning = 3;
    if (word == other)
        return 1;
    if (word.size() >= shortestBeginning && other.compare(0, word.size(), word) == 0)
        return beginning;
    QString const a = QString::fromStdString(word);
    QString const b = QString::fromStdString(other);
    std::size_t const mistakes = mistakesIn(a.size());
    return mistakes > 0 && std::abs(a.size() - b.size()) <= static_cast<int>(mistakes) && distance(a, b) <= mistakes
               ? mistaken
               : 0;
}

double bestLikeness(std::string const & word, Words const & words)
{
    double best = 0;
    for (std::string const & other : words)
        best = std::max(best, likeness(word, other));
    return best;
}

bool contains(std::string const & word, Words const & words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// A text of an item, as words, and how much it counts.
struct Field
{
    double weight;
    Words words;
    bool isText = false; ///< whether it is of sentences, with many short words that are like others
};

std::string nameOf(EditorCollection::IItem const & item)
{
    std::string const name = std::filesystem::path(item.file()).filename().native();
    return name.substr(0, name.find('.'));
}

std::vector<Field> fieldsOf(EditorCollection::IItem const & item)
{
    Effect::Object const & effect = item.payload();
    std::string const className = effect.GetNameInArchive();
    std::vector<Field> fields{{8, wordsOf(nameOf(item) + ' ' + effect.tag.toStdString())}, {6, wordsOf(className)}};
    std::string categories;
    for (QString const & category : item.categories())
        categories += category.toStdString() + ' ' + categoryText(category.toStdString()) + ' ';
    fields.push_back({4, wordsOf(categories)});
    if (Schema::Class const * const info = Schema::find(className))
        fields.push_back({2, wordsOf(info->description().toStdString()), true});
    return fields;
}

/// @param meaning  the word, and those with the same meaning
double scoreOf(Words const & meaning, std::vector<Field> const & fields)
{
    constexpr double sameMeaning = 0.5;
    double best = 0;
    for (Field const & field : fields) {
        double const found = field.isText ? (contains(meaning.front(), field.words) ? 1 : 0)
                                          : bestLikeness(meaning.front(), field.words);
        best = std::max(best, field.weight * found);
        for (std::size_t index = 1; index < meaning.size(); ++index)
            if (contains(meaning[index], field.words))
                best = std::max(best, field.weight * sameMeaning);
    }
    return best;
}

} // namespace

Search::Search(std::vector<std::string> const & query)
{
    for (std::string const & text : query)
        for (std::string const & word : wordsOf(text)) {
            Words meaning{word};
            for (Words const & row : synonyms())
                if (contains(word, row))
                    std::copy_if(row.begin(), row.end(), std::back_inserter(meaning),
                        [&word](std::string const & other) { return other != word; });
            m_words.push_back(std::move(meaning));
        }
}

double Search::score(EditorCollection::IItem const & item) const
{
    std::vector<Field> const fields = fieldsOf(item);
    double sum = 0;
    for (Words const & meaning : m_words) {
        double const score = scoreOf(meaning, fields);
        if (score == 0)
            return 0;
        sum += score;
    }
    return m_words.empty() ? 0 : sum / static_cast<double>(m_words.size());
}

void Search::offer(EditorCollection::IItem const & item)
{
    double const found = score(item);
    if (found == 0)
        return;
    Effect::Object const & effect = item.payload();
    Hit hit{item.file(), effect.GetNameInArchive(), effect.tag.toStdString(), {}, found};
    for (QString const & category : item.categories())
        hit.categories.push_back(category.toStdString());
    m_hits.push_back(std::move(hit));
}

std::vector<Hit> Search::hits() const
{
    std::vector<Hit> sorted = m_hits;
    std::sort(sorted.begin(), sorted.end(), [](Hit const & a, Hit const & b) {
        return std::tie(b.score, a.tag, a.file) < std::tie(a.score, b.tag, b.file);
    });
    return sorted;
}

} // namespace Effect::Inspect
