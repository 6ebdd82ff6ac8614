// Shows the panel of the inspector, or saves a picture of it.

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>

#include <iostream>

#include "inspector.h"

int main(int argc, char ** argv)
{
    QCommandLineParser options;
    options.addOptions(
        {{"class", "", "name", "Effect::ChromaKey"}, {"translation", "", "file"}, {"picture", "", "file"}});
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    if (!options.parse(arguments) || !options.positionalArguments().isEmpty()) {
        std::cerr << "usage: inspector [--class NAME] [--translation FILE] [--picture FILE]\n";
        return 2;
    }
    Effect::Schema::Class const * const info = Effect::Schema::find(options.value("class").toStdString());
    if (!info || !info->isEffect) {
        std::cerr << options.value("class").toStdString() << ": no class of effects\n";
        return 1;
    }
    QTranslator translator; // of the descriptions
    if (options.isSet("translation") && !translator.load(options.value("translation"))) {
        std::cerr << options.value("translation").toStdString() << ": no translation\n";
        return 1;
    }

    if (options.isSet("picture"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // a picture needs no display
    QApplication const application(argc, argv);
    QCoreApplication::installTranslator(&translator);
    // The factory is installed for as long as the provider lives; this host wants no catalogue with it.
    EditorCollection::NullItemStorage noItems;
    EditorCollection::CollectionProvider::setItemStorage(&noItems);
    Effect::ContentProvider const provider;
    Inspector panel;
    panel.editNew(*info);
    panel.resize(960, 540);
    if (!options.isSet("picture")) {
        panel.show();
        return QApplication::exec();
    }
    if (!panel.grab().save(options.value("picture"))) {
        std::cerr << options.value("picture").toStdString() << ": cannot be written\n";
        return 1;
    }
}
