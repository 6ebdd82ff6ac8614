// The inspector example, used as a person uses it. With EDITOREFFECTS_UPDATE_GOLDEN in the environment, the test of its
// picture writes the one in the documents.

#include <cstdlib>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>
#include <examples/inspector.h>

#include <nlohmann/json.hpp>

#include <QTest>

#include <gtest/gtest.h>

namespace {

namespace Schema = Effect::Schema;
using nlohmann::json;

class InspectorTest : public testing::Test
{
protected:
    InspectorTest()
    {
        EditorCollection::CollectionProvider::setItemStorage(&m_noItems);
        m_provider.emplace();
        m_panel.emplace();
    }
    ~InspectorTest() override
    {
        m_panel.reset();
        m_provider.reset();
        EditorCollection::CollectionProvider::setItemStorage(nullptr);
    }

    Inspector & panel() { return *m_panel; }

    void edit(char const * name) { m_panel->editNew(*Schema::find(name)); }

    /// The widget of that kind for the parameter; null when there is none.
    template <class Widget> Widget * find(char const * path)
    {
        for (QWidget * const widget : m_panel->findChildren<QWidget *>(path)) {
            if (auto * const found = qobject_cast<Widget *>(widget))
                return found;
            if (auto * const found = widget->findChild<Widget *>())
                return found;
        }
        return nullptr;
    }

    json value(char const * key) { return Schema::value(m_panel->effect(), *Schema::of(m_panel->effect())->find(key)); }

    /// The lines of the settings.
    QStringList settings() { return m_panel->findChild<QTextBrowser *>()->toPlainText().split('\n'); }

private:
    int m_argumentCount = 1;
    char m_name[10] = "inspector";
    char * m_arguments[2] = {m_name, nullptr};
    QApplication m_application{m_argumentCount, m_arguments};
    EditorCollection::NullItemStorage m_noItems;
    std::optional<Effect::ContentProvider> m_provider;
    std::optional<Inspector> m_panel;
};

/// Enters the text as a person does, in place of what is there.
void type(QWidget & field, char const * text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

TEST_F(InspectorTest, ASpinBoxSetsTheEffectAndMovesItsSlider)
{
    edit("Effect::ChromaKey");
    auto * const spin = find<QDoubleSpinBox>("/hueTolerance");
    auto * const slider = find<QSlider>("/hueTolerance");
    ASSERT_TRUE(spin && slider);
    EXPECT_EQ(spin->value(), 80);
    EXPECT_EQ(slider->value(), 80);
    EXPECT_EQ(spin->suffix(), "") << "the unit is the engine's own";
    EXPECT_EQ(find<QDoubleSpinBox>("/harshness")->suffix(), " %");

    type(*spin, "37");
    EXPECT_EQ(value("hueTolerance"), 37);
    EXPECT_EQ(slider->value(), 37);
    EXPECT_TRUE(settings().contains("  SetParams [37, 0, 0.01, 0.1]")) << settings().join('\n').toStdString();

    // Beyond the slider's end is no error.
    type(*spin, "120");
    EXPECT_EQ(value("hueTolerance"), 120);
    EXPECT_EQ(slider->value(), 100);
}

TEST_F(InspectorTest, ASliderSetsTheEffectThroughItsSpinBox)
{
    edit("Effect::TiltShift");
    auto * const slider = find<QSlider>("/smns"); // from 0 to 1 in thousandths
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->value(), 200);
    slider->setValue(275);
    EXPECT_DOUBLE_EQ(value("smns").get<double>(), 0.275);
    EXPECT_DOUBLE_EQ(find<QDoubleSpinBox>("/smns")->value(), 0.275);
}

TEST_F(InspectorTest, ACheckBoxSetsTheEffect)
{
    edit("Effect::RetroArtefacts");
    auto * const box = find<QCheckBox>("/vignetting");
    ASSERT_TRUE(box);
    EXPECT_TRUE(settings().contains("  vignetting = false"));
    box->click();
    EXPECT_EQ(value("vignetting"), true);
    EXPECT_EQ(value("shake"), false);
    EXPECT_TRUE(settings().contains("  vignetting = true")) << settings().join('\n').toStdString();
}

TEST_F(InspectorTest, AComboBoxOffersTheChoicesByLabel)
{
    edit("Effect::RetroColors");
    auto * const combo = find<QComboBox>("/type");
    ASSERT_TRUE(combo);
    auto const & choices = Schema::of(panel().effect())->find("type")->choices;
    ASSERT_EQ(combo->count(), int(choices.size()));
    EXPECT_EQ(combo->itemText(2).toStdString(), choices[2].label);
    EXPECT_EQ(combo->currentIndex(), 0);
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(value("type"), 2);
}

TEST_F(InspectorTest, AColourButtonOpensADialog)
{
    edit("Effect::ChromaKey");
    auto * const button = find<QPushButton>("/color");
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), "#ff00c800");
    auto const choose = [](bool accepts) {
        return [accepts] {
            auto * const dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->setCurrentColor(QColor(17, 34, 51, 68));
            accepts ? dialog->accept() : dialog->reject();
        };
    };
    QTimer::singleShot(0, choose(false));
    button->click();
    EXPECT_EQ(value("color"), 0xFF00C800u);
    QTimer::singleShot(0, choose(true));
    button->click();
    EXPECT_EQ(value("color"), 0x44112233u);
    EXPECT_EQ(button->text(), "#44112233");
    EXPECT_TRUE(settings().contains("  red = 17")) << settings().join('\n').toStdString();
}

TEST_F(InspectorTest, ALineEditSetsTextsAndJson)
{
    edit("Effect::Crop");
    auto * const line = find<QLineEdit>("/transform");
    ASSERT_TRUE(line);
    type(*line, "[0.5,0,0, 0,0.25,0, 0,0,1]");
    EXPECT_EQ(value("transform")["m"], json({0.5, 0, 0, 0, 0.25, 0, 0, 0, 1}));

    edit("Effect::ExternalShader");
    type(*find<QLineEdit>("/shaderResource"), "[1]");
    EXPECT_EQ(value("shaderResource"), "[1]");
}

TEST_F(InspectorTest, SaysWhyAValueIsRefused)
{
    edit("Effect::Crop");
    json const before = value("transform");
    type(*find<QLineEdit>("/transform"), "[1,2,3]");
    EXPECT_EQ(value("transform"), before);
    EXPECT_TRUE(settings().join('\n').contains("\"transform\"")) << settings().join('\n').toStdString();
}

TEST_F(InspectorTest, AnElementOfAListHasFieldsOfItsOwn)
{
    edit("Effect::AudioEcho");
    EXPECT_FALSE(find<QWidget>("/echos/0/delay"));
    type(*find<QLineEdit>("/echos"), "[{}, {}]");
    QCoreApplication::processEvents();
    auto * const delay = find<QDoubleSpinBox>("/echos/1/delay");
    ASSERT_TRUE(delay);
    type(*delay, "12");
    EXPECT_EQ(value("echos")[1]["delay"], 12);
    EXPECT_NE(value("echos")[0]["delay"], 12);
}

TEST_F(InspectorTest, TheChooserStartsANewEffect)
{
    auto * const chooser = panel().findChild<QComboBox *>(QString(), Qt::FindDirectChildrenOnly);
    edit("Effect::Blur");
    EXPECT_EQ(chooser->currentText(), "Effect::Blur");
    QTest::keyClick(chooser, Qt::Key_Down);
    EXPECT_EQ(panel().effect().GetNameInArchive(), chooser->currentText().toStdString());
    EXPECT_NE(chooser->currentText(), "Effect::Blur");
}

TEST_F(InspectorTest, EveryEffectHasAFieldForEachParameterThatCounts)
{
    for (Schema::Class const * const info : Schema::classes()) {
        if (!info->isEffect || info->id.isEmpty())
            continue;
        panel().editNew(*info);
        for (Schema::Parameter const & parameter : info->parameters) {
            if (parameter.owner == "Effect::Object")
                continue;
            EXPECT_TRUE(
                find<QWidget>(('/' + parameter.key).c_str()) || find<QWidget>(('/' + parameter.key + "/0").c_str()))
                << info->name << ' ' << parameter.key;
        }
        EXPECT_FALSE(settings().isEmpty()) << info->name;
    }
}

TEST_F(InspectorTest, SpeaksTheLanguageOfTheTranslator)
{
    QTranslator german;
    ASSERT_TRUE(german.load(EDITOR_GERMAN));
    QCoreApplication::installTranslator(&german);
    edit("Effect::TiltShift");
    QFormLayout * const form = panel().findChild<QFormLayout *>();
    auto const label = [&] {
        return qobject_cast<QLabel *>(form->labelForField(panel().findChild<QSplitter *>("/smns")))->text();
    };
    EXPECT_EQ(label(), "Weichheit");
}

/// A picture of the panel, which the documents show.
TEST_F(InspectorTest, Picture)
{
    edit("Effect::ChromaKey");
    find<QSlider>("/hueTolerance")->setValue(60);
    find<QSlider>("/noiseLevel")->setValue(16);
    panel().resize(880, 300);
    QImage const picture = panel().grab().toImage();
    picture.save(EDITOR_PICTURE);
    if (std::getenv("EDITOREFFECTS_UPDATE_GOLDEN")) {
        ASSERT_TRUE(picture.save(EDITOR_DOCUMENTED_PICTURE));
    }

    // Fonts differ between machines, so only its size and the swatch are compared.
    QImage const documented(EDITOR_DOCUMENTED_PICTURE);
    EXPECT_EQ(documented.size(), picture.size());
    auto const swatch = find<QPushButton>("/color")->mapTo(&panel(), QPoint(20, 10));
    EXPECT_EQ(picture.pixelColor(swatch), QColor(0, 200, 0));
    EXPECT_EQ(documented.pixelColor(swatch), QColor(0, 200, 0));
}

} // namespace
