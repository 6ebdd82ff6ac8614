// Prints the texts of the descriptions as C++, for Qt's lupdate.

#include "Texts.h"

#include <iostream>

#include <nlohmann/json.hpp>

int main()
{
    for (QString const & text : Translations::texts())
        std::cout << "QT_TRANSLATE_NOOP(\"Effect::Schema\", " << nlohmann::json(text.toStdString()) << ")\n";
}
