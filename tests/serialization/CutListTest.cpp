// The lists of effects when a stream ends before, in or behind their count.

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/Error.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/StreamSerializer.h>
#include <effects/Equalizer.h>
#include <effects/Holder.h>
#include <effects/Mask.h>
#include <effects/Modulation.h>
#include <effects/Voice.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using Serialize::ISerializable;

// A class with a list. A number identifies each element, which is 0 in one that was not read whole.

struct Highlights
{
    using Class = Mask;
    static constexpr char const * key = "highlightFrames";
    static auto & list(Mask & mask) { return mask.highlightFrames; }
    static FrameHighlight element(int number)
    {
        FrameHighlight frame;
        frame.transform[0] = number;
        return frame;
    }
    static int number(FrameHighlight const & frame) { return static_cast<int>(frame.transform[0]); }
};

struct Conceals
{
    using Class = Mask;
    static constexpr char const * key = "concealFrames";
    static auto & list(Mask & mask) { return mask.concealFrames; }
    static FrameConceal element(int number)
    {
        FrameConceal frame;
        frame.setOpacity(number);
        return frame;
    }
    static int number(FrameConceal const & frame) { return static_cast<int>(frame.opacity); }
};

struct Bands
{
    using Class = AudioEqualizer;
    static constexpr char const * key = "multiband";
    static auto & list(AudioEqualizer & equalizer) { return equalizer.multiband; }
    static AudioEqualizer::BandEq element(int number) { return {number, 0}; }
    static int number(AudioEqualizer::BandEq const & band) { return band.centralFrequency; }
};

struct Echos
{
    using Class = AudioEcho;
    static constexpr char const * key = "echos";
    static auto & list(AudioEcho & echo) { return echo.echos; }
    static AudioEcho::Echo element(int number) { return {number, 0}; }
    static int number(AudioEcho::Echo const & echo) { return echo.delay; }
};

struct Held
{
    using Class = EffectsHolder;
    static constexpr char const * key = "effects";
    static auto & list(EffectsHolder & holder) { return holder.effects; }
    static std::unique_ptr<Object const> element(int number)
    {
        auto effect = std::make_unique<AudioReverb>();
        effect->delay = number;
        return effect;
    }
    static int number(std::unique_ptr<Object const> const & effect)
    {
        return effect ? static_cast<int>(dynamic_cast<AudioReverb const &>(*effect).delay) : 0;
    }
};

struct Binary
{
    static constexpr std::size_t countSize = 8 + 4; // with the item version
    static constexpr bool appendsObjects = false;
    template <class Class> static void write(std::streambuf & stream, Class const & object)
    {
        Serialize::BinaryOArchive archive(stream);
        archive << object;
    }
    template <class Class> static void read(std::streambuf & stream, Class & object)
    {
        Serialize::BinaryIArchive archive(stream);
        archive >> object;
    }
};

struct Stream
{
    static constexpr std::size_t countSize = 4;
    static constexpr bool appendsObjects = true;
    static void write(std::streambuf & stream, ISerializable const & object)
    {
        Serialize::StreamSerializer(stream).write(object);
    }
    static void read(std::streambuf & stream, ISerializable & object)
    {
        Serialize::StreamDeserializer(stream).read(object);
    }
};

template <class List> class CutListTest : public testing::Test
{
protected:
    using Class = typename List::Class;
    using Numbers = std::vector<int>;

    static void fill(Class & object, QString const & tag, Numbers const & numbers)
    {
        object.tag = tag;
        List::list(object).clear();
        for (int const number : numbers)
            List::list(object).push_back(List::element(number));
    }
    static Numbers numbers(Class & object)
    {
        Numbers numbers;
        for (auto const & element : List::list(object))
            numbers.push_back(List::number(element));
        return numbers;
    }
    template <class Form> static std::string written(Numbers const & numbers)
    {
        Class object;
        fill(object, "new", numbers);
        std::stringbuf stream;
        Form::write(stream, object);
        return stream.str();
    }

    template <class Form> static void testEveryCut()
    {
        std::string const whole = written<Form>({1, 2});
        std::string const empty = written<Form>({});
        // The two differ from the count's first byte on.
        std::string::const_iterator const first = std::mismatch(whole.begin(), whole.end(), empty.begin()).first;
        std::size_t const count = static_cast<std::size_t>(first - whole.begin());
        bool const appends = Form::appendsObjects && std::is_same_v<List, Held>;
        for (std::size_t size = 0; size < whole.size(); ++size) {
            SCOPED_TRACE(size);
            Class object;
            fill(object, "old", {7, 8, 9});
            std::stringbuf stream(whole.substr(0, size));
            EXPECT_THROW(Form::read(stream, object), Serialize::ArchiveError);
            Numbers read = numbers(object);
            if (size < count + Form::countSize) {
                EXPECT_EQ(read, (Numbers{7, 8, 9}));
            } else {
                Numbers expected = appends ? Numbers{7, 8, 9, 1, 2} : Numbers{1, 2};
                ASSERT_LE(read.size(), expected.size());
                // The last one may not be whole.
                expected.resize(read.size());
                if (!read.empty())
                    read.back() = expected.back();
                EXPECT_EQ(read, expected);
            }
            if (size >= count) {
                EXPECT_EQ(object.tag, "new");
            }
        }
    }
};

using Lists = testing::Types<Highlights, Conceals, Bands, Echos, Held>;
TYPED_TEST_SUITE(CutListTest, Lists);

TYPED_TEST(CutListTest, Binary)
{
    this->template testEveryCut<Binary>();
}

TYPED_TEST(CutListTest, Stream)
{
    this->template testEveryCut<Stream>();
}

TYPED_TEST(CutListTest, AJsonValueThatIsNoListKeepsTheList)
{
    typename TypeParam::Class object;
    this->fill(object, "old", {7, 8, 9});
    for (nlohmann::json const & value : {nlohmann::json(7), nlohmann::json(), nlohmann::json::object()}) {
        nlohmann::json const document{{TypeParam::key, value}};
        Serialize::Json::iarchive archive(document);
        EXPECT_THROW(archive >> object, Serialize::ArchiveError);
        EXPECT_EQ(this->numbers(object), (std::vector<int>{7, 8, 9}));
    }
}

} // namespace
