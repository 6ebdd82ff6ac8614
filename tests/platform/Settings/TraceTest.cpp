#include "Printing.h"

#include <memory>
#include <new>
#include <thread>
#include <type_traits>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <Settings/SettingsAudio.h>
#include <Settings/SettingsBlur.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsDistortion.h>
#include <Settings/SettingsMask.h>
#include <Settings/Trace.h>

namespace {

using namespace Quoril::Proc;
using testing::ElementsAre;
using testing::IsEmpty;

/// The names of the setters called.
std::vector<std::string> names(std::vector<Trace::Call> const & calls)
{
    std::vector<std::string> names;
    for (Trace::Call const & call : calls) {
        names.push_back(call.setter);
    }
    return names;
}

/// The calls as Trace::describe returns them.
Value callsOf(Trace const & trace, Settings const & settings)
{
    return *trace.describe(settings).find("calls");
}

/// A list with one call. A list of one list has to name the entry's type: some compilers take the braces for a copy.
Value onlyCall(char const * setter, Value argument)
{
    return Value::List{Value(Value::List{setter, std::move(argument)})};
}

TEST(Trace, TellsTheCallsInTheirOrder)
{
    Trace const trace;
    SettingsEffectLensDistortion settings;
    settings.SetIntensity(0.5);
    settings.SetMemberCount(1);
    settings.SetZoom(0.4);
    settings.SetMemberCount(2);
    EXPECT_EQ(callsOf(trace, settings), (Value::List{Value::List{"SetIntensity", 0.5}, Value::List{"SetMemberCount", 1},
                                            Value::List{"SetZoom", 0.4}, Value::List{"SetMemberCount", 2}}));
}

TEST(Trace, WidensAFloatExactly)
{
    Trace const trace;
    SettingsEffectFishEye settings;
    settings.SetIntensity(0.1f);
    EXPECT_EQ(callsOf(trace, settings), onlyCall("SetIntensity", 0.100000001490116119384765625));
}

TEST(Trace, DescribesClassCallsAndFields)
{
    Trace const trace;
    SettingsEffectColorBlender settings;
    settings.blendMode = 11;
    settings.SetIntensity(1.0f);
    settings.SetBaseColor(ColorF{0, 0, 0, 1});
    settings.SetBaseColor(std::nullopt);
    EXPECT_EQ(trace.describe(settings), (Value::Object{{"class", "SettingsEffectColorBlender"},
                                            {"calls", Value::List{Value::List{"SetIntensity", 1.0},
                                                          Value::List{"SetBaseColor", Value::List{0.0, 0.0, 0.0, 1.0}},
                                                          Value::List{"SetBaseColor", nullptr}}},
                                            {"fields", Value::Object{{"blendMode", 11}}}}));
}

TEST(Trace, TellsASettingsObjectAsAnArgument)
{
    Trace const trace;
    SettingsAudioRobot robot;
    {
        SettingsAudioPitch pitch;
        pitch.SetPitch(1.5);
        robot.SetPitchSettings(pitch);
        pitch.SetIntensity(0.5f); // comes too late
    }
    EXPECT_EQ(callsOf(trace, robot),
        onlyCall("SetPitchSettings", Value::Object{{"class", "SettingsAudioPitch"},
                                         {"calls", onlyCall("SetPitch", 1.5)}, {"fields", Value::Object{}}}));
}

TEST(Trace, TellsBandsAndRepeatsAsPairs)
{
    Trace const trace;
    SettingsAudioEqualizer equalizer;
    equalizer.SetMultiband({{31, 0.75}, {63, -2}});
    EXPECT_EQ(
        callsOf(trace, equalizer), onlyCall("SetMultiband", Value::List{Value::List{31, 0.75}, Value::List{63, -2.0}}));
    SettingsAudioEcho echo;
    echo.SetEchos({{100, 0.5}});
    EXPECT_EQ(callsOf(trace, echo), onlyCall("SetEchos", Value::List{Value(Value::List{100, 0.5})}));
}

TEST(Trace, TellsAnImageByItsSize)
{
    Trace const trace;
    SettingsEffectBokehBlur settings;
    settings.SetImage(std::make_shared<ImageHandler>(ImageHandler{640, 480, nullptr}));
    settings.SetImage(nullptr);
    EXPECT_EQ(
        callsOf(trace, settings), (Value::List{Value::List{"SetImage", Value::Object{{"width", 640}, {"height", 480}}},
                                      Value::List{"SetImage", nullptr}}));
}

TEST(Trace, AsksFrameFunctions)
{
    auto const moving = [](double position) {
        auto frame = std::make_unique<SettingsEffectMask::FrameMask>();
        frame->shape = 1;
        frame->matrix[6] = position;
        frame->method = 2;
        frame->opacity = 0.5;
        frame->outline = true;
        frame->smoothness = 0.25;
        return position < 0.6 ? std::move(frame) : nullptr;
    };
    auto const at = [](double position) {
        return Value::Object{{"shape", 1}, {"matrix", Value::List{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, position, 0.0, 1.0}},
            {"method", 2}, {"opacity", 0.5}, {"outline", true}, {"smoothness", 0.25}};
    };
    Trace const trace;
    SettingsEffectMask settings;
    settings.SetFrameFunctors({moving, nullptr});
    EXPECT_EQ(callsOf(trace, settings),
        onlyCall("SetFrameFunctors", Value::List{Value::List{at(0), at(0.25), at(0.5), nullptr, nullptr},
                                         Value::List{nullptr, nullptr, nullptr, nullptr, nullptr}}));
}

TEST(Trace, AsksFrameFunctionsAtTheirPositionsOnlyWhileOpen)
{
    std::vector<double> asked;
    auto const functor = [&asked](double position) {
        asked.push_back(position);
        return nullptr;
    };
    SettingsEffectMask settings;
    settings.SetFrameFunctors({functor});
    EXPECT_THAT(asked, IsEmpty());
    Trace const trace;
    settings.SetFrameFunctors({functor});
    EXPECT_THAT(asked, ElementsAre(0, 0.25, 0.5, 0.75, 0.9999));
}

TEST(Trace, SeesOnlyWhatHappensInItsScope)
{
    SettingsEffectSharpen settings;
    settings.SetLevel(1);
    {
        Trace const trace;
        EXPECT_THAT(trace.calls(settings), IsEmpty());
        settings.SetLevel(2);
        EXPECT_EQ(callsOf(trace, settings), onlyCall("SetLevel", 2.0));
    }
    settings.SetLevel(3);
    Trace const later;
    EXPECT_THAT(later.calls(settings), IsEmpty());
}

TEST(Trace, Nests)
{
    SettingsEffectFishEye settings;
    Trace const outer;
    settings.SetDeviation(1);
    {
        Trace const inner;
        EXPECT_THAT(inner.calls(settings), IsEmpty());
        settings.SetIntensity(1);
        EXPECT_THAT(names(inner.calls(settings)), ElementsAre("SetIntensity"));
    }
    settings.SetDeviation(2);
    EXPECT_THAT(names(outer.calls(settings)), ElementsAre("SetDeviation", "SetIntensity", "SetDeviation"));
}

TEST(Trace, MayCloseBeforeOneThatOpenedLater)
{
    SettingsEffectSharpen settings;
    auto first = std::make_unique<Trace>();
    Trace const second;
    first.reset();
    settings.SetLevel(1);
    EXPECT_THAT(names(second.calls(settings)), ElementsAre("SetLevel"));
}

TEST(Trace, KeepsObjectsApart)
{
    Trace const trace;
    SettingsEffectSharpen a;
    SettingsEffectSharpen b;
    a.SetLevel(1);
    EXPECT_THAT(names(trace.calls(a)), ElementsAre("SetLevel"));
    EXPECT_THAT(trace.calls(b), IsEmpty());
}

TEST(Trace, GoesAlongWithCopies)
{
    Trace const trace;
    SettingsEffectFishEye source;
    source.SetDeviation(1);
    auto const clone = source.Clone();
    source.SetIntensity(1);
    EXPECT_THAT(names(trace.calls(*clone)), ElementsAre("SetDeviation"));

    SettingsEffectFishEye assigned;
    assigned.SetIntensity(2);
    assigned = source;
    EXPECT_THAT(names(trace.calls(assigned)), ElementsAre("SetDeviation", "SetIntensity"));
    assigned = SettingsEffectFishEye();
    EXPECT_THAT(trace.calls(assigned), IsEmpty());
}

TEST(Trace, AssigningToItselfKeepsTheRecord)
{
    Trace const trace;
    SettingsEffectSharpen settings;
    settings.SetLevel(1);
    SettingsEffectSharpen const & same = settings;
    settings = same;
    EXPECT_THAT(names(trace.calls(settings)), ElementsAre("SetLevel"));
}

/// Memory in which settings objects can live one after another.
class Place
{
public:
    SettingsEffectSharpen & construct() { return *new (&m_memory) SettingsEffectSharpen; }

private:
    std::aligned_storage_t<sizeof(SettingsEffectSharpen), alignof(SettingsEffectSharpen)> m_memory;
};

TEST(Trace, ANewObjectAtTheSameAddressHasNoCalls)
{
    Place place;
    Trace const trace;
    auto & first = place.construct();
    first.SetLevel(1);
    first.~SettingsEffectSharpen();
    EXPECT_THAT(trace.calls(first), IsEmpty());
    auto & second = place.construct();
    EXPECT_THAT(trace.calls(second), IsEmpty());
    second.~SettingsEffectSharpen();
}

TEST(Trace, ANewObjectHasNoCallsEvenIfAnotherThreadDestroyedTheLast)
{
    Place place;
    Trace const trace;
    auto & first = place.construct();
    first.SetLevel(1);
    std::thread([&first] { first.~SettingsEffectSharpen(); }).join();
    auto & second = place.construct();
    EXPECT_THAT(trace.calls(second), IsEmpty());
    second.~SettingsEffectSharpen();
}

TEST(Trace, IsItsThreadsOwn)
{
    Trace const trace;
    SettingsEffectSharpen settings;
    std::thread([&settings, &trace] {
        settings.SetLevel(1); // this thread has no trace
        {
            Trace const own;
            settings.SetLevel(2);
            EXPECT_EQ(callsOf(own, settings), onlyCall("SetLevel", 2.0));
        }
        EXPECT_THAT(trace.calls(settings), IsEmpty());
    }).join();
    EXPECT_THAT(trace.calls(settings), IsEmpty());
    settings.SetLevel(3);
    EXPECT_EQ(callsOf(trace, settings), onlyCall("SetLevel", 3.0));
}

TEST(Trace, ManyThreadsTraceAtOnce)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([number] {
            for (int round = 0; round < 500; ++round) {
                Trace const trace;
                SettingsEffectSharpen settings;
                settings.SetLevel(number);
                settings.SetLevel(round);
                EXPECT_EQ(callsOf(trace, settings),
                    (Value::List{Value::List{"SetLevel", double(number)}, Value::List{"SetLevel", double(round)}}));
            }
        });
    }
    for (std::thread & thread : threads) {
        thread.join();
    }
}

TEST(Trace, ReadingARecordIsNoCall)
{
    Trace const trace;
    SettingsEffectSharpen settings;
    settings.Deserialize({{"Level", 1.0}});
    EXPECT_EQ(settings.GetLevel(), 1.0);
    EXPECT_THAT(trace.calls(settings), IsEmpty());
}

} // namespace
