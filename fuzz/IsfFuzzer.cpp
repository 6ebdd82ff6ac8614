// ISF shaders: any text either is refused with a reason, or gives a configuration in normal form and a shader that has
// kept its lines.
#include <EditorExternalResourses/ShaderISF.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

#include <QString>

using namespace External::ShaderISF;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

auto countLines(std::string const & text)
{
    return std::count(text.begin(), text.end(), '\n');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string_view const text(reinterpret_cast<char const *>(data), size);
    ISFSettings settings;
    try {
        settings = parse(text, text);
    } catch (std::runtime_error const & error) {
        std::string_view const reason = error.what();
        require(!reason.empty() && reason.size() < 1000 && reason.find('\n') == std::string_view::npos);
        require(QString::fromUtf8(error.what()).toUtf8().toStdString() == reason);
        return 0;
    }
    require(countLines(settings.pixelShader) == countLines(settings.vertexShader));
    require(settings.vertexShader.find_first_of(std::string_view("\r\0", 2)) == std::string::npos);
    if (settings.config.size() <= maximumHeadSize)
        require(parse("/*" + settings.config + "*/").config == settings.config);
    return 0;
}
