#include <EditorExternalResourses/ShaderISF.h>

#include <ostream>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using External::ShaderISF::ISFSettings;
using External::ShaderISF::maximumDepth;
using External::ShaderISF::maximumFileSize;
using External::ShaderISF::maximumHeadSize;
using External::ShaderISF::parse;

std::string const body = "void main() { gl_FragColor = vec4(1.0); }\n";

ISFSettings parseHead(std::string const & head)
{
    return parse("/*" + head + "*/\n" + body);
}

/// A part of the configuration text, exactly: keys in order, 1 distinct from 1.0.
std::string configPart(std::string const & head, std::string const & key)
{
    return nlohmann::ordered_json::parse(parseHead(head).config).at(key).dump();
}

std::string errorOf(std::string const & fragmentShader, std::string const & vertexShader = {})
{
    try {
        parse(fragmentShader, vertexShader);
    } catch (std::runtime_error const & error) {
        return error.what();
    }
    return "no error";
}

/// A case of a table: what goes in and what comes out.
struct Case
{
    char const * name;
    std::string in;
    std::string out;

    friend std::ostream & operator<<(std::ostream & stream, Case const & value) { return stream << value.name; }
};

class Table : public testing::TestWithParam<Case>
{};

std::string caseName(testing::TestParamInfo<Case> const & info)
{
    return info.param.name;
}

TEST(ParseShaderISF, WritesTheConfigurationInNormalForm)
{
    EXPECT_EQ(parseHead(R"({
        "INPUTS": [
            {"NAME": "inputImage", "TYPE": "image"},
            {"NAME": "radius", "TYPE": "float", "MAX": 40, "LABEL": "Radius"}
        ],
        "CREDIT": "by us",
        "PASSES": [{"TARGET": "half", "WIDTH": "$WIDTH/2"}, {}],
        "IMPORTED": {"grain": {"PATH": "grain.png"}},
        "ISFVSN": "2"
    })")
                  .config,
        R"({"ISFVSN":"2","DESCRIPTION":"","CREDIT":"by us","CATEGORIES":[],)"
        R"("INPUTS":[{"NAME":"inputImage","TYPE":"image","LABEL":"inputImage"},)"
        R"({"NAME":"radius","TYPE":"float","LABEL":"Radius","DEFAULT":0.0,"MIN":0.0,"MAX":40.0}],)"
        R"("PASSES":[{"TARGET":"half","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH/2","HEIGHT":"$HEIGHT"},)"
        R"({"TARGET":"","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"}],)"
        R"("IMPORTED":[{"NAME":"grain","PATH":"grain.png"}]})");
}

TEST(ParseShaderISF, FillsInEverythingForAnEmptyHead)
{
    EXPECT_EQ(parseHead("{}").config,
        R"({"ISFVSN":"1","DESCRIPTION":"","CREDIT":"","CATEGORIES":[],"INPUTS":[],)"
        R"("PASSES":[{"TARGET":"","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"}],)"
        R"("IMPORTED":[]})");
}

TEST(ParseShaderISF, KeysMayBeInLowerCase)
{
    EXPECT_EQ(parseHead(R"({
        "isfvsn": "2", "description": "d", "credit": "c", "categories": ["k"],
        "inputs": [
            {"name": "n", "type": "long", "label": "l", "default": 4, "min": 1, "max": 5, "identity": 3,
             "values": [4], "labels": ["four"]}
        ],
        "passes": [{"target": "t", "persistent": true, "float": true, "width": "8", "height": "9"}],
        "imported": [{"name": "i", "path": "p"}]
    })")
                  .config,
        R"({"ISFVSN":"2","DESCRIPTION":"d","CREDIT":"c","CATEGORIES":["k"],)"
        R"("INPUTS":[{"NAME":"n","TYPE":"long","LABEL":"l","DEFAULT":4,"MIN":1,"MAX":5,"IDENTITY":3,)"
        R"("VALUES":[4],"LABELS":["four"]}],)"
        R"("PASSES":[{"TARGET":"t","PERSISTENT":true,"FLOAT":true,"WIDTH":"8","HEIGHT":"9"}],)"
        R"("IMPORTED":[{"NAME":"i","PATH":"p"}]})");
}

TEST(ParseShaderISF, NormalFormIsItsOwnNormalForm)
{
    std::string const config = parseHead(R"({
        "CATEGORIES": ["*/", "/*", "// \"", "\u0001", "é"],
        "INPUTS": [
            {"NAME": "a", "TYPE": "float", "MIN": -0.1, "DEFAULT": 1e-300, "IDENTITY": 0.1},
            {"NAME": "b", "TYPE": "color", "DEFAULT": [0.1, 0.2, 0.3, 1]},
            {"NAME": "c", "TYPE": "long", "LABELS": ["x", "y"]},
            {"NAME": "d", "TYPE": "audioFFT", "MAX": 256.0}
        ],
        "PERSISTENT_BUFFERS": {"store": {"FLOAT": 1}},
        "PASSES": [{"TARGET": "store"}],
        "IMPORTED": {"cube": {"PATH": ["1", "2", "3", "4", "5", "6"]}}
    })")
                                   .config;
    EXPECT_EQ(parseHead(config).config, config);
}

class TopLevel : public Table
{};

TEST_P(TopLevel, GivesConfigurationThatHolds)
{
    EXPECT_THAT(parseHead(GetParam().in).config, testing::HasSubstr(GetParam().out));
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, TopLevel,
    testing::Values( //
        Case{"VersionAsNumber", R"({"ISFVSN": 2})", R"("ISFVSN":"2")"},
        Case{"VersionAsFraction", R"({"ISFVSN": 2.5})", R"("ISFVSN":"2.5")"},
        Case{"UpperCaseWins", R"({"CREDIT": "upper", "credit": "lower"})", R"("CREDIT":"upper")"},
        Case{"UpperCaseWinsFromBehind", R"({"credit": "lower", "CREDIT": "upper"})", R"("CREDIT":"upper")"},
        Case{
            "NullIsNoValue", R"({"CREDIT": null, "INPUTS": null, "PASSES": null, "IMPORTED": null})", R"("CREDIT":"")"},
        Case{"NullGivesWayToLowerCase", R"({"CREDIT": null, "credit": "lower"})", R"("CREDIT":"lower")"},
        Case{"UnknownKeysStayOut", R"({"VSN": "3", "KEYWORDS": {}, "CREDIT": "c"})",
            R"({"ISFVSN":"1","DESCRIPTION":"","CREDIT":"c","CATEGORIES":[])"},
        Case{"NumbersAsCategories", R"({"CATEGORIES": ["Blur", 3]})", R"("CATEGORIES":["Blur","3"])"},
        Case{"NoPasses", R"({"PASSES": []})",
            R"("PASSES":[{"TARGET":"","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"}])"}),
    caseName);

/// The input's fields but for name and type, and what the configuration says of it behind its label.
class Input : public Table
{};

TEST_P(Input, GetsDefaults)
{
    std::string const head = R"({"INPUTS": [{"NAME": "n", "TYPE": )" + GetParam().in + "}]}";
    std::string const whole = configPart(head, "INPUTS");
    std::string const label = R"("LABEL":"n")";
    std::size_t const behindLabel = whole.find(label) + label.size();
    EXPECT_EQ(whole.substr(behindLabel, whole.size() - behindLabel - 2), GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, Input,
    testing::Values(                                                //
        Case{"Event", R"("event")", ""},                            //
        Case{"EventHasNoValue", R"("event", "DEFAULT": true)", ""}, //
        Case{"Image", R"("image")", ""},                            //
        Case{"Bool", R"("bool")", R"(,"DEFAULT":false)"},
        Case{"BoolTrue", R"("bool", "DEFAULT": true)", R"(,"DEFAULT":true)"},
        Case{"BoolOne", R"("bool", "DEFAULT": 1)", R"(,"DEFAULT":true)"},
        Case{"BoolFraction", R"("bool", "DEFAULT": 0.0)", R"(,"DEFAULT":false)"},
        Case{"BoolNegative", R"("bool", "DEFAULT": -1)", R"(,"DEFAULT":false)"},
        Case{"BoolText", R"("bool", "DEFAULT": "true")", R"(,"DEFAULT":true)"},
        Case{"BoolEmptyText", R"("bool", "DEFAULT": "")", R"(,"DEFAULT":false)"},
        Case{"BoolIdentity", R"("bool", "IDENTITY": 1)", R"(,"DEFAULT":false,"IDENTITY":true)"},
        Case{"Long", R"("long")", R"(,"DEFAULT":0,"VALUES":[],"LABELS":[])"},
        Case{"LongMenu", R"("long", "VALUES": [5, 10], "LABELS": ["Low", "High"], "DEFAULT": 10)",
            R"(,"DEFAULT":10,"VALUES":[5,10],"LABELS":["Low","High"])"},
        Case{"LongTakesFirstValue", R"("long", "VALUES": [5, 10])",
            R"(,"DEFAULT":5,"VALUES":[5,10],"LABELS":["5","10"])"},
        Case{"LongCountsLabels", R"("long", "LABELS": ["a", "b", "c"])",
            R"(,"DEFAULT":0,"VALUES":[0,1,2],"LABELS":["a","b","c"])"},
        Case{"LongWithTooFewLabels", R"("long", "VALUES": [7, 8, 9], "LABELS": ["seven"])",
            R"(,"DEFAULT":7,"VALUES":[7,8,9],"LABELS":["seven","8","9"])"},
        Case{"LongWithTooManyLabels", R"("long", "VALUES": [7], "LABELS": ["seven", "eight"])",
            R"(,"DEFAULT":7,"VALUES":[7],"LABELS":["seven"])"},
        Case{"LongWithNumbersAsLabels", R"("long", "VALUES": [7], "LABELS": [7])",
            R"(,"DEFAULT":7,"VALUES":[7],"LABELS":["7"])"},
        Case{"LongRange", R"("long", "MIN": 2, "MAX": 6)", R"(,"DEFAULT":2,"MIN":2,"MAX":6,"VALUES":[],"LABELS":[])"},
        Case{"LongWholeFraction", R"("long", "DEFAULT": -3.0)", R"(,"DEFAULT":-3,"VALUES":[],"LABELS":[])"},
        Case{"LongExtremes", R"("long", "MIN": -2147483648, "MAX": 2147483647, "DEFAULT": 2147483647)",
            R"(,"DEFAULT":2147483647,"MIN":-2147483648,"MAX":2147483647,"VALUES":[],"LABELS":[])"},
        Case{"Float", R"("float")", R"(,"DEFAULT":0.0,"MIN":0.0,"MAX":1.0)"},
        Case{"FloatGiven", R"("float", "DEFAULT": 2, "MIN": -4, "MAX": 4, "IDENTITY": 1)",
            R"(,"DEFAULT":2.0,"MIN":-4.0,"MAX":4.0,"IDENTITY":1.0)"},
        Case{"FloatStartsWithinItsRange", R"("float", "MIN": 3, "MAX": 4)", R"(,"DEFAULT":3.0,"MIN":3.0,"MAX":4.0)"},
        Case{"FloatStartsBelowItsTop", R"("float", "MIN": -4, "MAX": -3)", R"(,"DEFAULT":-3.0,"MIN":-4.0,"MAX":-3.0)"},
        Case{"FloatGivenDefaultMayLeaveItsRange", R"("float", "DEFAULT": 2)", R"(,"DEFAULT":2.0,"MIN":0.0,"MAX":1.0)"},
        Case{"FloatMinimumBeyondOne", R"("float", "MIN": 5)", R"(,"DEFAULT":5.0,"MIN":5.0,"MAX":5.0)"},
        Case{"FloatMaximumBelowZero", R"("float", "MAX": -5)", R"(,"DEFAULT":-5.0,"MIN":-5.0,"MAX":-5.0)"},
        Case{"FloatRangeTheWrongWayRound", R"("float", "MIN": 1, "MAX": 0)", R"(,"DEFAULT":0.0,"MIN":0.0,"MAX":1.0)"},
        Case{"Point", R"("point2D")", R"(,"DEFAULT":[0.0,0.0])"},
        Case{"PointGiven", R"("point2D", "DEFAULT": [0.5, 1], "MIN": [0, 0], "MAX": [1, 1], "IDENTITY": [0, 1])",
            R"(,"DEFAULT":[0.5,1.0],"MIN":[0.0,0.0],"MAX":[1.0,1.0],"IDENTITY":[0.0,1.0])"},
        Case{"PointStartsWithinItsRange", R"("point2D", "MIN": [2, -4], "MAX": [3, -1])",
            R"(,"DEFAULT":[2.0,-1.0],"MIN":[2.0,-4.0],"MAX":[3.0,-1.0])"},
        Case{"PointTypeInOtherCase", R"("Point2d")", R"(,"DEFAULT":[0.0,0.0])"},
        Case{"Color", R"("color")", R"(,"DEFAULT":[0.0,0.0,0.0,1.0],"MIN":[0.0,0.0,0.0,0.0],"MAX":[1.0,1.0,1.0,1.0])"},
        Case{"ColorGiven",
            R"("color", "DEFAULT": [1, 0.5, 0, 1], "MIN": [0, 0, 0, 1], "MAX": [2, 2, 2, 1], "IDENTITY": [1, 1, 1, 1])",
            R"(,"DEFAULT":[1.0,0.5,0.0,1.0],"MIN":[0.0,0.0,0.0,1.0],"MAX":[2.0,2.0,2.0,1.0],)"
            R"("IDENTITY":[1.0,1.0,1.0,1.0])"},
        Case{"Audio", R"("audio")", ""}, //
        Case{"AudioSamples", R"("audio", "MAX": 1)", R"(,"MAX":1)"},
        Case{"AudioWithoutSamples", R"("audio", "MAX": 0)", ""},
        Case{"AudioFft", R"("audioFFT", "MAX": 256.0)", R"(,"MAX":256)"},
        Case{"AudioFftInOtherCase", R"("audiofft")", ""}),
    caseName);

TEST(ParseShaderISF, WritesInputTypesInTheirOwnCase)
{
    EXPECT_EQ(configPart(R"({"INPUTS": [{"NAME": "n", "TYPE": "AUDIOfft", "LABEL": 3}]})", "INPUTS"),
        R"([{"NAME":"n","TYPE":"audioFFT","LABEL":"3"}])");
}

/// Heads and the passes that result.
class Pass : public Table
{};

TEST_P(Pass, GetsDefaults)
{
    EXPECT_EQ(configPart('{' + GetParam().in + '}', "PASSES"), '[' + GetParam().out + ']');
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, Pass,
    testing::Values( //
        Case{"Formulas", R"_("PASSES": [{"TARGET": "a", "WIDTH": "floor($WIDTH/4.0)", "HEIGHT": "$size"}])_",
            R"_({"TARGET":"a","PERSISTENT":false,"FLOAT":false,"WIDTH":"floor($WIDTH/4.0)","HEIGHT":"$size"})_"},
        Case{"Numbers", R"("PASSES": [{"TARGET": "a", "WIDTH": 16, "HEIGHT": 0.5}])",
            R"({"TARGET":"a","PERSISTENT":false,"FLOAT":false,"WIDTH":"16","HEIGHT":"0.5"})"},
        Case{"EmptyFormulas", R"("PASSES": [{"WIDTH": "", "HEIGHT": null}])",
            R"({"TARGET":"","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"})"},
        Case{"Flags", R"("PASSES": [{"TARGET": "a", "PERSISTENT": 1, "FLOAT": "true"}])",
            R"({"TARGET":"a","PERSISTENT":true,"FLOAT":true,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"})"},
        Case{"OneTargetTwice", R"("PASSES": [{"TARGET": "a"}, {"TARGET": "a"}])",
            R"({"TARGET":"a","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"},)"
            R"({"TARGET":"a","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"})"},
        Case{"ListOfPersistentBuffers", R"("PERSISTENT_BUFFERS": ["a", "unused"], "PASSES": [{"TARGET": "a"}, {}])",
            R"({"TARGET":"a","PERSISTENT":true,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"},)"
            R"({"TARGET":"","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"})"},
        Case{"DescribedPersistentBuffers",
            R"("PERSISTENT_BUFFERS": {"a": {"WIDTH": "$WIDTH/8", "HEIGHT": 4, "FLOAT": true}},)"
            R"("PASSES": [{"TARGET": "a", "HEIGHT": 2}])",
            R"({"TARGET":"a","PERSISTENT":true,"FLOAT":true,"WIDTH":"$WIDTH/8","HEIGHT":"2"})"}),
    caseName);

/// An import in the file's form and in the normal one.
class Import : public Table
{};

TEST_P(Import, BecomesAnArray)
{
    EXPECT_EQ(configPart(R"({"IMPORTED": )" + GetParam().in + '}', "IMPORTED"), GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, Import,
    testing::Values( //
        Case{"Object", R"({"b": {"PATH": "../b.png"}, "a": {"PATH": "a.png"}})",
            R"([{"NAME":"a","PATH":"a.png"},{"NAME":"b","PATH":"../b.png"}])"},
        Case{"Array", R"([{"NAME": "b", "PATH": "b.png"}, {"PATH": "a.png", "NAME": "a"}])",
            R"([{"NAME":"b","PATH":"b.png"},{"NAME":"a","PATH":"a.png"}])"},
        Case{"CubeMap", R"({"sky": {"TYPE": "cube", "PATH": ["l", "r", "b", "t", "f", "k"]}})",
            R"([{"NAME":"sky","PATH":["l","r","b","t","f","k"]}])"},
        Case{"EmptyObject", "{}", "[]"}, //
        Case{"EmptyArray", "[]", "[]"}),
    caseName);

/// Shaders whose head gives the credit "us".
class Syntax : public Table
{};

TEST_P(Syntax, IsUnderstood)
{
    EXPECT_EQ(nlohmann::json::parse(parse(GetParam().in).config).at("CREDIT"), GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, Syntax,
    testing::Values(                                    //
        Case{"Plain", R"(/*{"CREDIT": "us"}*/)", "us"}, //
        Case{"Utf8Mark", "\xEF\xBB\xBF/*{\"CREDIT\": \"us\"}*/", "us"},
        Case{"WindowsLineEnds", "/*{\r\n\"CREDIT\": \"us\" // we\r\n}*/\r\n", "us"},
        Case{"OldLineEnds", "/*{\r\"CREDIT\": \"us\" // we\r}*/\r", "us"},
        Case{"BlankLinesBefore", "\n\n  /*{\"CREDIT\": \"us\"}*/", "us"},
        Case{"VersionLineBefore", "#version 120\n/*{\"CREDIT\": \"us\"}*/", "us"},
        Case{"StrayTextBefore", "3 / 4 a/b */ text\n/*{\"CREDIT\": \"us\"}*/", "us"},
        Case{"LineCommentBefore", "// /*{\"CREDIT\": \"nobody\"}*/\n/*{\"CREDIT\": \"us\"}*/", "us"},
        Case{"BlockCommentBefore", "/* licence: {} */ /**/ /*/ { */\n/*{\"CREDIT\": \"us\"}*/", "us"},
        Case{"Stars", "/**\n ** {\"CREDIT\": \"us\"} **/", "us"},
        Case{"NotesBehindTheObject", "/*{\"CREDIT\": \"us\"} \"notes, { and [ */", "us"},
        Case{"TrailingCommas", R"(/*{"CATEGORIES": ["a", "b" , ], "CREDIT": "us",
            }*/)",
            "us"},
        Case{"TrailingCommaAndComment", "/*{\"CREDIT\": \"us\", // ,\n}*/", "us"},
        Case{"CommasInStrings", R"(/*{"CREDIT": "us,}", "INPUTS": []}*/)", "us,}"},
        Case{"LineComments", "/*{ // it's \"the\" head {\n\"CREDIT\": \"us\"}*/", "us"},
        Case{"NestedComment", "/*{\"CREDIT\": /* it's { */ \"us\"}*/", "us"},
        Case{"CommentMarksInStrings", R"(/*{"CREDIT": "/* // */ us"}*/)", "/* // */ us"},
        Case{"EscapedQuotes", R"(/*{"CREDIT": "\\\"*/ us\\"}*/)", R"(\"*/ us\)"},
        Case{"TabInString", "/*{\"CREDIT\": \"u\ts\"}*/", "u s"}, //
        Case{"Unicode", "/*{\"CREDIT\": \"\xC3\xBCs\"}*/", "\xC3\xBCs"},
        Case{"NoUtf8", "/*{\"CREDIT\": \"u\xFCs\"}*/", "u\xEF\xBF\xBDs"},
        Case{"CutUtf8", "/*{\"CREDIT\": \"us\"}*/\xE2\x82", "us"}, //
        Case{"LastOfTwoKeys", R"(/*{"CREDIT": "nobody", "CREDIT": "us"}*/)", "us"}),
    caseName);

TEST(ParseShaderISF, ReadsUtf16BehindItsMark)
{
    std::string const text = R"(/*{"CREDIT": "us"}*/)";
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (char const c : text) {
        little += {c, '\0'};
        big += {'\0', c};
    }
    EXPECT_EQ(parse(little).config, parse(text).config);
    EXPECT_EQ(parse(big).config, parse(text).config);
}

/// A fragment shader as it is in its file, and what the compiler gets.
class PixelShader : public Table
{};

TEST_P(PixelShader, LosesItsHeadButNoLine)
{
    EXPECT_EQ(parse(GetParam().in).pixelShader, GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, PixelShader,
    testing::Values(                                               //
        Case{"OneLine", "/*{}*/void main() {}", "void main() {}"}, //
        Case{"ManyLines", "/*{\n\"INPUTS\": []\n}*/\nvoid main() {}\n", "\n\n\nvoid main() {}\n"},
        Case{"TextBefore", "#version 120\n/*{\n}*/\nvoid main() {}\n", "#version 120\n\n\nvoid main() {}\n"},
        Case{"OtherComments", "/* a */ /*{} notes\n*/ /* b */ // c\n", "/* a */ \n /* b */ // c\n"},
        Case{"SecondHead", "/*{}*/\n/*{}*/\n", "\n/*{}*/\n"},
        Case{"WindowsLineEnds", "/*{\r\n}*/\r\na;\r\nb;\r\n", "\n\na;\nb;\n"}, //
        Case{"OldLineEnds", "/*{}*/\ra;\r\rb;", "\na;\n\nb;"},                 //
        Case{"Mark", "\xEF\xBB\xBF/*{}*/a;", "a;"},                            //
        Case{"Nothing", "/*{}*/", ""}),
    caseName);

TEST(ParseShaderISF, DecodesTheVertexShader)
{
    EXPECT_EQ(parse("/*{}*/").vertexShader, "");
    EXPECT_EQ(parse("/*{}*/", "\xEF\xBB\xBFvoid main()\r\n{}\r\n").vertexShader, "void main()\n{}\n");
    EXPECT_EQ(parse("/*{}*/", "/*{}*/").vertexShader, "/*{}*/");
}

/// Shaders that are refused, and why.
class Refused : public Table
{};

TEST_P(Refused, SaysWhatAndWhere)
{
    EXPECT_EQ(errorOf(GetParam().in), GetParam().out);
}

std::string const noHead = "there is no comment with a JSON object at the head of the shader";

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, Refused,
    testing::Values(                                        //
        Case{"Empty", "", noHead},                          //
        Case{"Mark", "\xEF\xBB\xBF", noHead},               //
        Case{"NoComment", body, noHead},                    //
        Case{"OtherComment", "/* by us */" + body, noHead}, //
        Case{"LineComment", "// {}\n" + body, noHead},      //
        Case{"OpenComment", "\n /* by us {}", noHead},      //
        Case{"LoneSlash", "/", noHead},                     //
        Case{"LoneStart", "/*", noHead},                    //
        Case{"Array", "/*[]*/", noHead},                    //
        Case{"OpenHead", "\n /*{}", "line 2, column 2: the comment with the head is not closed"},
        Case{"OpenObject", "/*{", "line 1, column 1: the comment with the head is not closed"},
        Case{"OpenString", "/*{\"CREDIT\": \"us", "line 1, column 1: the comment with the head is not closed"},
        Case{"OpenEscape", "/*{\"CREDIT\": \"us\\", "line 1, column 1: the comment with the head is not closed"},
        Case{"OpenNestedComment", "/*{ /* */", "line 1, column 1: the comment with the head is not closed"},
        Case{"ZeroByte", std::string("/*{}*/\0", 7), "the fragment shader holds a zero byte, so it is no text"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(ParseShaderISFHead, Refused,
    testing::Values( //
        Case{"Inputs", R"(/*{"INPUTS": {}}*/)", "INPUTS must be an array of objects"},
        Case{"Input", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "image"}, 3]}*/)", "INPUTS[1] must be an object"},
        Case{"NoName", R"(/*{"INPUTS": [{"TYPE": "image"}]}*/)", R"(INPUTS[0].NAME: "" is no name of a GLSL variable)"},
        Case{"NameWithSpace", R"(/*{"INPUTS": [{"NAME": "a b", "TYPE": "image"}]}*/)",
            R"(INPUTS[0].NAME: "a b" is no name of a GLSL variable)"},
        Case{"NameWithLineBreak", R"(/*{"INPUTS": [{"NAME": "a\nb", "TYPE": "image"}]}*/)",
            R"(INPUTS[0].NAME: "a\nb" is no name of a GLSL variable)"},
        Case{"NameWithDigitFirst", R"(/*{"INPUTS": [{"NAME": "1a", "TYPE": "image"}]}*/)",
            R"(INPUTS[0].NAME: "1a" is no name of a GLSL variable)"},
        Case{"NameTwice", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "image"}, {"NAME": "a", "TYPE": "bool"}]}*/)",
            R"(INPUTS[1].NAME: the name "a" is used twice)"},
        Case{"NameOfImportTwice",
            R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "image"}], "IMPORTED": {"a": {"PATH": "p"}}}*/)",
            R"(IMPORTED: the name "a" is used twice)"},
        Case{"NoType", R"(/*{"INPUTS": [{"NAME": "a"}]}*/)", "INPUTS[0].TYPE is missing"},
        Case{"UnknownType", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "int"}]}*/)",
            R"(INPUTS[0].TYPE is "int", which is no type of inputs)"},
        Case{"TypeOfWrongKind", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": []}]}*/)", "INPUTS[0].TYPE must be a text"},
        Case{"Bool", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "bool", "DEFAULT": "maybe"}]}*/)",
            "INPUTS[0].DEFAULT must be true or false"},
        Case{"Float", R"(/*{"inputs": [{"name": "a", "type": "float", "max": "high"}]}*/)",
            "INPUTS[0].MAX must be a number"},
        Case{"LongWithFraction", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "long", "DEFAULT": 0.5}]}*/)",
            "INPUTS[0].DEFAULT must be a whole number of 32 bits"},
        Case{"LongTooLarge", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "long", "DEFAULT": 2147483648}]}*/)",
            "INPUTS[0].DEFAULT must be a whole number of 32 bits"},
        Case{"LongValues", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "long", "VALUES": [1, "2"]}]}*/)",
            "INPUTS[0].VALUES must be an array, each of its elements a whole number of 32 bits"},
        Case{"LongLabels", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "long", "LABELS": "l"}]}*/)",
            "INPUTS[0].LABELS must be an array, each of its elements a text"},
        Case{"Point", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "point2D", "MIN": [1, 2, 3]}]}*/)",
            "INPUTS[0].MIN must be an array of 2 numbers"},
        Case{"Color", R"(/*{"INPUTS": [{"NAME": "a", "TYPE": "color", "IDENTITY": 1}]}*/)",
            "INPUTS[0].IDENTITY must be an array of 4 numbers"},
        Case{"Categories", R"(/*{"CATEGORIES": "Blur"}*/)", "CATEGORIES must be an array, each of its elements a text"},
        Case{"Passes", R"(/*{"PASSES": 2}*/)", "PASSES must be an array of objects"},
        Case{"Target", R"(/*{"PASSES": [{}, {"TARGET": "a b"}]}*/)",
            R"(PASSES[1].TARGET is "a b", which is no name of a GLSL variable)"},
        Case{"PassWidth", R"(/*{"PASSES": [{"WIDTH": []}]}*/)", "PASSES[0].WIDTH must be a text"},
        Case{"PersistentBuffers", R"(/*{"PERSISTENT_BUFFERS": 1}*/)",
            "PERSISTENT_BUFFERS must be an array, each of its elements a text"},
        Case{"PersistentBuffer", R"(/*{"PERSISTENT_BUFFERS": {"b": 1}}*/)", "PERSISTENT_BUFFERS.b must be an object"},
        Case{"PersistentBufferHeight",
            R"(/*{"PERSISTENT_BUFFERS": {"b": {"HEIGHT": {}}}, "PASSES": [{"TARGET": "b"}]}*/)",
            "PERSISTENT_BUFFERS.b.HEIGHT must be a text"},
        Case{"Imports", R"(/*{"IMPORTED": "a.png"}*/)", "IMPORTED must be an array of objects"},
        Case{"Import", R"(/*{"IMPORTED": {"a": "a.png"}}*/)", "IMPORTED.a must be an object"},
        Case{"ImportWithoutPath", R"(/*{"IMPORTED": {"a": {}}}*/)", "IMPORTED.a.PATH is missing or empty"},
        Case{"ImportWithoutName", R"(/*{"IMPORTED": [{"PATH": "a.png"}]}*/)",
            R"(IMPORTED[0].NAME: "" is no name of a GLSL variable)"},
        Case{"ImportWithFivePaths", R"(/*{"IMPORTED": {"a": {"PATH": ["1", "2", "3", "4", "5"]}}}*/)",
            "IMPORTED.a.PATH must be one text, or six for a cube map"}),
    caseName);

/// Heads that are no JSON, and where it breaks.
class Broken : public Table
{};

TEST_P(Broken, SaysWhere)
{
    EXPECT_THAT(errorOf(GetParam().in), testing::StartsWith(GetParam().out));
}

INSTANTIATE_TEST_SUITE_P(ParseShaderISF, Broken,
    testing::Values( //
        Case{"MissingComma", "\n/*{\n\"CREDIT\": \"us\"\n\"INPUTS\": []}*/", "line 4, column 8: syntax error"},
        Case{"MissingValue", "/*{\"CREDIT\": }*/", "line 1, column 14: syntax error"},
        Case{"TwoCommas", "/*{\"CATEGORIES\": [\"a\",,]}*/", "line 1, column 24: syntax error"},
        Case{"WrongBracket", "/*{\"CATEGORIES\": [}]}*/", "line 1, column 19: syntax error"},
        Case{"OpenString", "/*{\"CREDIT\": \"us\n}*/", "line 1, column 17: syntax error"},
        Case{"OpenObject", "/*{\"CREDIT\": \"us\"*/", "line 1, column 18: syntax error"},
        Case{"WrongEscape", "/*{\"CREDIT\": \"\\x\"}*/", "line 1, column 16: syntax error"},
        Case{"HugeNumber", "\n/*{\"ISFVSN\": 1e999}*/", "line 2, column 1: within the head: number overflow"}),
    caseName);

TEST(ParseShaderISF, NamesTheVertexShaderAtFault)
{
    EXPECT_EQ(errorOf("/*{}*/", std::string(1, '\0')), "the vertex shader holds a zero byte, so it is no text");
    EXPECT_EQ(errorOf("/*{}*/", std::string(maximumFileSize + 1, ' ')), "the vertex shader is larger than 4 MiB");
}

TEST(ParseShaderISF, KeepsMessagesShort)
{
    std::string const longText(100000, 'x');
    EXPECT_LT(errorOf("/*{\"CREDIT\": " + longText + "}*/").size(), 400u);
    EXPECT_LT(errorOf("/*{\"CREDIT\": \"" + longText + "\n}*/").size(), 400u);
    EXPECT_LT(errorOf("/*{\"INPUTS\": [{\"NAME\": \"-" + longText + "\"}]}*/").size(), 400u);
    EXPECT_LT(errorOf("/*{\"IMPORTED\": {\"" + longText + "\": 1}}*/").size(), 400u);
    EXPECT_LT(errorOf("/*{\"PERSISTENT_BUFFERS\": {\"" + longText + "\": 1}}*/").size(), 400u);
}

TEST(ParseShaderISF, TakesTextsUpToTheLargestSize)
{
    std::string const head = "/*{}*/";
    EXPECT_EQ(parse(head + std::string(maximumFileSize - head.size(), ' ')).pixelShader.size(),
        maximumFileSize - head.size());
    EXPECT_EQ(errorOf(head + std::string(maximumFileSize - head.size() + 1, ' ')),
        "the fragment shader is larger than 4 MiB");
}

TEST(ParseShaderISF, TakesHeadsUpToTheDeepestNesting)
{
    auto const nested = [](int depth) {
        auto const count = static_cast<std::size_t>(depth - 1);
        return "/*{\"OTHER\": " + std::string(count, '[') + std::string(count, ']') + "}*/";
    };
    EXPECT_EQ(errorOf(nested(maximumDepth)), "no error");
    EXPECT_EQ(errorOf(nested(maximumDepth + 1)), "line 1, column 44: the head is nested more than 32 levels deep");
}

TEST(ParseShaderISF, TakesHeadsUpToTheLargestSize)
{
    std::string const begin = "{\"CREDIT\": \"";
    std::string const end = "\"}";
    std::string const text(maximumHeadSize - begin.size() - end.size(), 'x');
    EXPECT_EQ(errorOf("/*" + begin + text + end + "*/"), "no error");
    EXPECT_EQ(errorOf("\n/* " + begin + text + "x" + end + "*/"),
        "line 2, column 4: the JSON object of the head is larger than 256 KiB");
}

/// `begin` and `end` with as many of `repeated` between them as fit into `size`.
std::string fill(std::string begin, std::string const & repeated, std::string const & end, std::size_t size)
{
    while (begin.size() + repeated.size() + end.size() <= size)
        begin += repeated;
    return begin + end;
}

/// The largest texts of what could take a time beyond proportion. Each takes less than a second; were it the square of
/// the size, it would be hours.
TEST(ParseShaderISF, TakesTimeInProportionToTheSize)
{
    for (char const * comment : {"/", "//\n", "/**/", "/* ", "/* *", "\r"})
        EXPECT_EQ(errorOf(fill("", comment, "", maximumFileSize)), noHead) << comment;
    for (char const * open : {" ", "\"\n", "//\n", "/**/", "/* ", ",", ", ", "\\", "\"\\\\\""}) {
        EXPECT_EQ(errorOf(fill("/*{", open, "", maximumFileSize)),
            "line 1, column 1: the comment with the head is not closed")
            << open;
    }
    for (char const * valid : {" ", "//\n", "/**/", "// *\n"})
        EXPECT_EQ(errorOf(fill("/*{", valid, "}*/", maximumHeadSize)), "no error") << valid;
    EXPECT_EQ(errorOf(fill("/*{\"PASSES\": [{}", ",{}", "]}*/", maximumHeadSize)), "no error");
    EXPECT_EQ(errorOf(fill("/*{\"OTHER\": [", "[],", "]}*/", maximumHeadSize)), "no error");
    EXPECT_EQ(errorOf(fill("/*{\"CATEGORIES\": [", "1,", "]}*/", maximumHeadSize)), "no error");
}

} // namespace
