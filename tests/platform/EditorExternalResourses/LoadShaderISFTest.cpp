#include <EditorExternalResourses/ShaderISF.h>

#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <EditorModel/Resource.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "../../support/LogCapture.h"

namespace {

using External::ShaderISF::ISFSettings;
using External::ShaderISF::loadEffectISF;
using External::ShaderISF::loadFile;
using External::ShaderISF::maximumFileSize;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class LoadShaderISF : public testing::Test
{
protected:
    /// A shader whose pixel shader text is `code`.
    void writeShader(QString const & file, std::string const & code) const { write(file, "/*{}*/" + code); }

    void write(QString const & file, std::string const & text) const
    {
        QFile out(path(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_EQ(out.write(text.data(), static_cast<qint64>(text.size())), static_cast<qint64>(text.size()));
    }

    QString path(QString const & file) const { return m_folder.filePath(file); }

    /// Loads an effect that must give nothing, and returns the one line logged.
    std::string refused(QString const & name, QString const & file) const
    {
        LogCapture const log;
        auto const settings = loadEffectISF(name, file);
        EXPECT_NE(settings, nullptr);
        if (settings) {
            EXPECT_EQ(settings->config, "");
            EXPECT_EQ(settings->pixelShader, "");
            EXPECT_EQ(settings->vertexShader, "");
        }
        EXPECT_THAT(log.errors(), ElementsAre());
        EXPECT_EQ(log.warnings().size(), 1u);
        std::string const line = log.warnings().empty() ? std::string() : log.warnings().front();
        EXPECT_THAT(line, Not(HasSubstr("\n")));
        EXPECT_EQ(QString::fromStdString(line).toStdString(), line) << "this is no UTF-8";
        return line;
    }

    QTemporaryDir m_folder;
};

TEST_F(LoadShaderISF, GivesTheThreeTexts)
{
    write("glow.fs", "/*{\"CREDIT\": \"us\"}*/\r\nvoid main() {}\r\n");
    write("glow.vs", "void main() { isf_vertShaderInit(); }\r\n");
    LogCapture const log;
    auto const settings = loadEffectISF("Glow", path("glow.fs"));
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(nlohmann::json::parse(settings->config).at("CREDIT"), "us");
    EXPECT_EQ(settings->pixelShader, "\nvoid main() {}\n");
    EXPECT_EQ(settings->vertexShader, "void main() { isf_vertShaderInit(); }\n");
    EXPECT_THAT(log.errors(), ElementsAre());
    EXPECT_THAT(log.warnings(), ElementsAre());
}

TEST_F(LoadShaderISF, GivesEveryCallerItsOwnObject)
{
    writeShader("glow.fs", "glow;");
    EXPECT_NE(loadEffectISF("Glow", path("glow.fs")), loadEffectISF("Glow", path("glow.fs")));
}

TEST_F(LoadShaderISF, FindsTheVertexShaderBesideTheFragmentShader)
{
    writeShader("plain.fs", "");
    EXPECT_EQ(loadFile(path("plain.fs")).vertexShader, "");

    writeShader("glow.frag", "");
    write("glow.vert", "vert");
    write("other.vs", "other");
    EXPECT_EQ(loadFile(path("glow.frag")).vertexShader, "vert");
    write("glow.vs", "vs");
    EXPECT_EQ(loadFile(path("glow.frag")).vertexShader, "vs");

    writeShader("soft.glow.fs", "");
    write("soft.vs", "soft");
    EXPECT_EQ(loadFile(path("soft.glow.fs")).vertexShader, "");
    write("soft.glow.vs", "soft glow");
    EXPECT_EQ(loadFile(path("soft.glow.fs")).vertexShader, "soft glow");
}

TEST_F(LoadShaderISF, CompletesThePath)
{
    writeShader("glow.isf", "isf;");
    EXPECT_EQ(loadFile(path("glow")).pixelShader, "isf;");
    writeShader("glow.frag", "frag;");
    EXPECT_EQ(loadFile(path("glow")).pixelShader, "frag;");
    writeShader("glow.fs", "fs;");
    EXPECT_EQ(loadFile(path("glow")).pixelShader, "fs;");
    writeShader("glow", "bare;");
    EXPECT_EQ(loadFile(path("glow")).pixelShader, "bare;");
    writeShader("glow.txt", "text;");
    EXPECT_EQ(loadFile(path("glow.txt")).pixelShader, "text;");
}

TEST_F(LoadShaderISF, FindsTheShaderOfTheNameWithinAFolder)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("Glow"));
    writeShader("Glow/Glow.fs", "glow;");
    writeShader("Glow/Soft Glow.frag", "soft;");
    EXPECT_EQ(loadEffectISF("Glow", path("Glow"))->pixelShader, "glow;");
    EXPECT_EQ(loadEffectISF("Soft Glow", path("Glow"))->pixelShader, "soft;");
    EXPECT_EQ(loadEffectISF("Soft Glow.frag", path("Glow"))->pixelShader, "soft;");
    EXPECT_THAT(refused("Blur", path("Glow")), HasSubstr("Glow/Blur\": there is no such file"));
}

TEST_F(LoadShaderISF, LooksUpAnEmptyPathInTheRegistry)
{
    writeShader("glow.fs", "glow;");
    writeShader("other.fs", "other;");
    Resource::ID const id("Glow", Resource::Type::Blob);
    Resource::registerResource(id, path("glow.fs"), 0, MTime(), Resource::Timing());
    EXPECT_EQ(loadEffectISF("Glow", {})->pixelShader, "glow;");
    EXPECT_EQ(loadEffectISF("Glow", path("other.fs"))->pixelShader, "other;");
    Resource::unregisterResource(id);
    EXPECT_THAT(refused("Glow", {}), AllOf(HasSubstr("\"Glow\""), HasSubstr("no file is registered under this name")));
}

TEST_F(LoadShaderISF, TakesNamesInAnyScript)
{
    QString const name = QString::fromUtf8("\xD0\xA1\xD0\xB2\xD0\xB5\xD1\x82");
    writeShader(name + ".fs", "light;");
    write(name + ".vs", "vertex");
    ISFSettings const settings = loadFile(path(name));
    EXPECT_EQ(settings.pixelShader, "light;");
    EXPECT_EQ(settings.vertexShader, "vertex");
}

TEST_F(LoadShaderISF, MakesThePathsOfImportsAbsolute)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("shaders"));
    write("shaders/glow.fs",
        R"(/*{"IMPORTED": {"a": {"PATH": "./a.png"}, "b": {"PATH": "../b.png"}, "c": {"PATH": "/pictures/c.png"},
            "d": {"PATH": ["1", "2", "3", "4", "5", "x/6"]}}}*/)");
    auto const imports = nlohmann::json::parse(loadFile(path("shaders/glow.fs")).config).at("IMPORTED");
    EXPECT_EQ(imports.at(0).at("PATH"), path("shaders/a.png").toStdString());
    EXPECT_EQ(imports.at(1).at("PATH"), path("b.png").toStdString());
    EXPECT_EQ(imports.at(2).at("PATH"), "/pictures/c.png");
    EXPECT_EQ(imports.at(3).at("PATH").at(5), path("shaders/x/6").toStdString());
}

TEST_F(LoadShaderISF, LogsOneLineForWhatItCannotRead)
{
    EXPECT_THAT(refused("Glow", path("glow.fs")),
        AllOf(HasSubstr("\"Glow\""), HasSubstr(path("glow.fs").toStdString()), HasSubstr("there is no such file")));

    write("glow.fs", "void main() {}");
    EXPECT_THAT(refused("Glow", path("glow.fs")),
        AllOf(HasSubstr("\"Glow\""), HasSubstr(path("glow.fs").toStdString()), HasSubstr("no comment with a JSON")));

    write("glow.fs", "/*{\n\"CREDIT\" \"us\"}*/");
    EXPECT_THAT(refused("Glow", path("glow")),
        AllOf(HasSubstr(path("glow.fs").toStdString()), HasSubstr("line 2, column 13: syntax error")));

    write("glow.fs", "/*{}*/" + std::string(maximumFileSize, ' '));
    EXPECT_THAT(refused("Glow", path("glow.fs")), HasSubstr("larger than 4 MiB"));

    writeShader("glow.fs", "");
    write("glow.vs", std::string(1, '\0'));
    EXPECT_THAT(refused("Glow", path("glow.fs")), HasSubstr("the vertex shader holds a zero byte"));
}

TEST_F(LoadShaderISF, RefusesWhatIsNoRegularFile)
{
    EXPECT_THAT(refused("Zero", "/dev/zero"), HasSubstr("\"/dev/zero\": this is not a regular file"));
    EXPECT_THAT(refused({}, m_folder.path()), HasSubstr("this is not a regular file"));
    EXPECT_THROW(loadFile(m_folder.path()), std::runtime_error);
    EXPECT_THROW(loadFile({}), std::runtime_error);
}

TEST_F(LoadShaderISF, KeepsTheLogToOneLineWhateverTheNames)
{
    EXPECT_THAT(refused("two\nlines", path("a\nb.fs")), AllOf(HasSubstr("two\\nlines"), HasSubstr("a\\nb.fs")));
    EXPECT_LT(refused(QString(100000, 'x'), QString(100000, 'y')).size(), 1000u);
}

TEST_F(LoadShaderISF, LogsUtf8WhateverTheBytes)
{
    // The parser stops behind the first byte of a character, and quotes the text up to there.
    std::string const unexpected[] = {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x8E\xA8", "\xFF", "\xC3"};
    for (std::string const & bytes : unexpected) {
        write("glow.fs", "/*{" + bytes + "}*/");
        EXPECT_THAT(refused("Glow", path("glow.fs")), HasSubstr("line 1, column 4: syntax error"));
        write("glow.fs", "/*{\"CREDIT\": \"\xC3\xA9\", " + bytes);
        refused("Glow", path("glow.fs"));
        write("glow.fs", "/*{\"INPUTS\": [{\"NAME\": \"" + bytes + "\"}]}*/");
        EXPECT_THAT(refused("Glow", path("glow.fs")), HasSubstr("is no name of a GLSL variable"));
        write("glow.fs", "/*{\"PASSES\": [{\"TARGET\": \"" + std::string(199, 'x') + bytes + "tail\"}]}*/");
        EXPECT_THAT(refused("Glow", path("glow.fs")), HasSubstr("is no name of a GLSL variable"));
    }
}

TEST_F(LoadShaderISF, LoadsInParallel)
{
    writeShader("glow.fs", "glow;");
    std::vector<std::shared_ptr<ISFSettings>> results(4);
    std::vector<std::thread> threads;
    for (auto & result : results)
        threads.emplace_back([&] { result = loadEffectISF("Glow", path("glow.fs")); });
    for (std::thread & thread : threads)
        thread.join();
    for (auto const & result : results)
        EXPECT_EQ(result->pixelShader, "glow;");
}

} // namespace
