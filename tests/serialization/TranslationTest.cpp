// The German translation is complete, in its source and compiled.

#include <set>

#include <effects/Schema.h>
#include <translations/Texts.h>

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QMap>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

using Effect::Schema::Class;
using Effect::Schema::Parameter;

using Messages = QMap<QString, QString>;

/// The sources of a translation file with their translations; that of an unfinished one is empty. Texts that are marked
/// as vanished are left out.
Messages messagesIn(QString const & path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader reader(&file);
    Messages messages;
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            QString const state = reader.attributes().value("type").toString();
            QString const translation = reader.readElementText();
            if (state != "vanished" && state != "obsolete")
                messages[source] = state == "unfinished" ? QString() : translation;
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return messages;
}

TEST(GermanTranslation, HasEveryTextOfTheDescriptionsAndNoOther)
{
    Messages const messages = messagesIn(QStringLiteral(EDITOR_TRANSLATION));
    std::set<QString> const texts = Translations::texts();
    for (QString const & text : texts)
        EXPECT_FALSE(messages.value(text).isEmpty()) << text.toStdString() << ": run script/make-translations";
    for (QString const & source : messages.keys())
        EXPECT_TRUE(texts.count(source)) << source.toStdString() << ": run script/make-translations";
}

/// Installs a translator while it lives.
class Installed
{
public:
    explicit Installed(QTranslator & translator)
        : m_translator(translator)
    {
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Installed() { QCoreApplication::removeTranslator(&m_translator); }

private:
    QTranslator & m_translator;
};

TEST(GermanTranslation, ReachesTheDescriptionsThroughAnInstalledTranslator)
{
    if (!QFile::exists(EDITOR_TRANSLATIONS_DIR))
        GTEST_SKIP() << "built without lrelease";
    int argumentCount = 1;
    char name[] = "test";
    char * arguments[] = {name, nullptr};
    QCoreApplication const application(argumentCount, arguments);
    QTranslator translator;
    ASSERT_TRUE(translator.load(QLocale("de_AT"), "editoreffects", "_", EDITOR_TRANSLATIONS_DIR));

    Class const & info = *Effect::Schema::find("Effect::RetroArtefacts");
    Parameter const & shake = *info.find("shake");
    EXPECT_EQ(shake.label(), "Shake");
    {
        Installed const installed(translator);
        EXPECT_EQ(info.description(), messagesIn(EDITOR_TRANSLATION).value(info.text));
        EXPECT_EQ(shake.label(), "Wackeln");
        // All of it is translated, in the compiled form as well.
        auto const messages = messagesIn(EDITOR_TRANSLATION);
        for (auto message = messages.begin(); message != messages.end(); ++message)
            EXPECT_EQ(QCoreApplication::translate("Effect::Schema", message.key().toUtf8()), message.value());
    }
    EXPECT_EQ(shake.label(), "Shake");
}

} // namespace
