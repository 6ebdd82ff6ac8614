#include <inspect/Categories.h>

#include <map>

namespace Effect::Inspect {

namespace {

std::map<std::string_view, std::string_view> const & texts()
{
    static std::map<std::string_view, std::string_view> const texts{
        {"Vignettes", "Vignettes"},
        {"category_add_noise", "Noise"},
        {"category_adjust", "Adjustments"},
        {"category_artistic", "Artistic"},
        {"category_blur", "Blur"},
        {"category_clean_up", "Clean-up"},
        {"category_color_filters", "Colour filters"},
        {"category_composition", "Composition"},
        {"category_distortion", "Distortion"},
        {"category_dynamics", "Dynamics"},
        {"category_equalizer", "Equalizer"},
        {"category_flying_objects", "Flying objects"},
        {"category_geometry", "Geometry"},
        {"category_lens_flares", "Lens flares"},
        {"category_light_leaks", "Light leaks"},
        {"category_looks", "Looks"},
        {"category_lut_cold", "Cold looks"},
        {"category_lut_warm", "Warm looks"},
        {"category_mask_conceal", "Conceal"},
        {"category_mask_highlight", "Highlight"},
        {"category_modulation", "Modulation"},
        {"category_mosaic", "Mosaic"},
        {"category_music", "Music"},
        {"category_narration", "Narration"},
        {"category_overlay_artsy", "Artsy overlays"},
        {"category_overlay_cyberpunk", "Cyberpunk overlays"},
        {"category_overlay_frames", "Frames"},
        {"category_overlay_shadows", "Shadows"},
        {"category_pip_center", "Centred layouts"},
        {"category_pip_corner", "Corner layouts"},
        {"category_pip_split", "Split screens"},
        {"category_podcast", "Podcast"},
        {"category_repair", "Repair"},
        {"category_retro_movie", "Retro movie"},
        {"category_shaders", "Shaders"},
        {"category_space", "Rooms and spaces"},
        {"category_user", "My own"},
        {"category_voice", "Voice"},
    };
    return texts;
}

} // namespace

std::string categoryText(std::string_view category)
{
    auto const found = texts().find(category);
    return found == texts().end() ? std::string() : std::string(found->second);
}

std::vector<std::string> categories()
{
    std::vector<std::string> names;
    for (auto const & [name, text] : texts())
        names.emplace_back(name);
    return names;
}

} // namespace Effect::Inspect
