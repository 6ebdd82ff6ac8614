#include "Parsing.h"

#include <ParserLUT/ParseError.h>
#include <ParserLUT/ParserLUTFactory.h>

using namespace Quoril::Proc::LUT;

std::shared_ptr<LUTTable> Parse(std::string const & text, std::string const & format)
{
    auto const parser = ParserLUTFactory::GetParser(text);
    EXPECT_TRUE(parser) << text;
    if (!parser)
        return std::make_shared<LUTTable>();
    EXPECT_EQ(parser->FormatName(), format);
    auto table = parser->Parse(text);
    EXPECT_EQ(table->format, format);
    EXPECT_EQ(table->entries.size(), table->Count());
    return table;
}

std::string ErrorOf(std::string const & text)
{
    try {
        if (auto const parser = ParserLUTFactory::GetParser(text))
            parser->Parse(text);
    } catch (ParseError const & error) {
        EXPECT_EQ(std::string(error.what()).rfind("line " + std::to_string(error.Line()) + ": ", 0), 0u);
        return error.what();
    }
    return {};
}

std::string NameOf(testing::TestParamInfo<BadText> const & info)
{
    return info.param.name;
}

TEST_P(BadTexts, AreRefused)
{
    EXPECT_EQ(ErrorOf(GetParam().text), GetParam().message);
}
