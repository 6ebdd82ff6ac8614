// Prints what is wrong with an effect that has a misspelt key, by the library that looks into files.
#include <iostream>

#include <inspect/Check.h>
#include <inspect/Findings.h>

int main()
{
    Effect::Inspect::RenderHost host;
    Effect::Inspect::Checker checker(host);
    for (auto const & finding : checker.check("crop.json", R"({"$meta": {"class": "Effect::Crop"}, "transfrom": {}})"))
        std::cout << Effect::Inspect::toLine("crop.json", finding) << '\n';
}
