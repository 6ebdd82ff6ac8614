/// @file
/// What the tests of the parsers share.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <ParserLUT/LUTTable.h>

/// A table out of a text, by the parser that the factory gives for it; without a parser the test fails, and so does one
/// whose format is not @p format.
std::shared_ptr<Quoril::Proc::LUT::LUTTable> Parse(std::string const & text, std::string const & format);

/// The message that refuses a text; empty if there is a parser which accepts it, or no parser.
std::string ErrorOf(std::string const & text);

/// A text that is refused, and how.
struct BadText
{
    std::string name; ///< of the case, of letters and digits
    std::string text;
    std::string message;

    friend std::ostream & operator<<(std::ostream & stream, BadText const & bad) { return stream << bad.name; }
};

/// A suite of bad texts.
class BadTexts : public testing::TestWithParam<BadText>
{};

/// For INSTANTIATE_TEST_SUITE_P.
std::string NameOf(testing::TestParamInfo<BadText> const & info);

using Colors = std::vector<Quoril::Proc::LUT::Color>;
