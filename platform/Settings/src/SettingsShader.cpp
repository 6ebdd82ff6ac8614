#include <Settings/SettingsShader.h>

#include "ImageForm.h"
#include "MemberTable.h"

#include <ParserLUT/LUTTable.h>

namespace Quoril::Proc {

/// Told as its size.
template <> struct Form<std::shared_ptr<LUT::LUTTable>> : HandleForm<std::shared_ptr<LUT::LUTTable>>
{
    static Value toValue(std::shared_ptr<LUT::LUTTable> const & table)
    {
        return table ? Value::Object{{"size", Form<std::array<int, 3>>::toValue(table->size)}} : Value();
    }
    static std::string expected() { return "a table, which only code can give"; }
};

SETTINGS_DEFINE(SettingsEffectLUT, intensity, m_Table, m_Mode)
SETTINGS_DEFINE(SettingsEffectISF, m_Config, m_PixelShader, m_VertexShader)
SETTINGS_DEFINE(SettingsEffectTemplateQES, m_Version, m_Intensity, m_Shader, m_AuxImage)

} // namespace Quoril::Proc
