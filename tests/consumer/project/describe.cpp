// Prints what a tilt shift does in German, by the translation in the folder in the first argument.
#include <effects/Schema.h>

#include <iostream>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    QTranslator translator;
    if (argc < 2 || !translator.load(QLocale("de"), "editoreffects", "_", argv[1]))
        return 1;
    QCoreApplication::installTranslator(&translator);
    std::cout << Effect::Schema::find("Effect::TiltShift")->description().toStdString() << '\n';
}
