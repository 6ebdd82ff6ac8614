/// @file
/// The formats, each in a source file of its own behind one creating function: it returns the format's parser if the
/// text begins as the format does, and null otherwise.
#pragma once

#include <memory>
#include <string_view>

#include <ParserLUT/IParserLUT.h>

namespace Quoril::Proc::LUT {

std::unique_ptr<IParserLUT> Create3dlParser(std::string_view text);
std::unique_ptr<IParserLUT> CreateCspParser(std::string_view text);
std::unique_ptr<IParserLUT> CreateCubeParser(std::string_view text);
std::unique_ptr<IParserLUT> CreateSpi3dParser(std::string_view text);

/// The largest sizes that are read. Tools write up to 129 along an axis; the bound keeps products of sizes within an
/// int and refuses nonsense early. It is not what bounds the memory: that is the length of the text.
constexpr int maxSize1D = 65536;
constexpr int maxSize3D = 256;

} // namespace Quoril::Proc::LUT
