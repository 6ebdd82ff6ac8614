// The translation holds every text of the descriptions.

#include <map>
#include <set>

#include <effects/Schema.h>

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

using Effect::Schema::Class;
using Effect::Schema::Parameter;

/// The sources of a translation file with their translations.
std::map<QString, QString> messagesIn(QString const & path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader reader(&file);
    std::map<QString, QString> messages;
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("source"))
            source = reader.readElementText();
        else if (reader.name() == QLatin1String("translation"))
            messages[source] = reader.readElementText();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return messages;
}

std::set<QString> texts()
{
    std::set<QString> all;
    for (Class const * const info : Effect::Schema::classes()) {
        all.insert(info->description());
        for (Parameter const & parameter : info->parameters) {
            all.insert(parameter.label());
            all.insert(parameter.description());
            for (Effect::Choice const & choice : parameter.choices)
                all.insert(parameter.label(choice));
            if (parameter.elements)
                for (Parameter const & part : parameter.elements->parameters)
                    all.insert({part.label(), part.description()});
        }
    }
    all.erase(QString());
    return all;
}

TEST(GermanTranslation, HasEveryTextOfTheDescriptions)
{
    auto const messages = messagesIn(QStringLiteral(EDITOR_TRANSLATION));
    for (QString const & text : texts()) {
        auto const found = messages.find(text);
        ASSERT_NE(found, messages.end()) << text.toStdString();
        EXPECT_FALSE(found->second.isEmpty()) << text.toStdString();
    }
}

} // namespace
