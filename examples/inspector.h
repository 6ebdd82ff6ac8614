/// @file
/// A panel that edits any effect. It is made from the effect's description alone and knows no class.
#pragma once

#include <memory>

#include <effects/Schema.h>

#include <QtWidgets>

class Inspector : public QWidget
{
public:
    /// The settings factory must be installed while the panel lives.
    Inspector();

    /// Edits a new effect of that class.
    void editNew(Effect::Schema::Class const & info);

    /// The effect as it is now.
    Effect::Object const & effect() const { return *m_effect; }

private:
    /// A widget for each parameter. Its object name is the path of keys to it, such as "/intensity" or
    /// "/echoes/0/delay".
    void addFields(Serialize::ISerializable & object, QString const & path);
    void rebuild();

    std::unique_ptr<Effect::Object> m_effect;
    QComboBox * m_classes = new QComboBox(this);
    QLabel * m_description = new QLabel(this);
    QScrollArea * m_fields = new QScrollArea(this);
    QFormLayout * m_form = nullptr;                     ///< in the scroll area
    QTextBrowser * m_settings = new QTextBrowser(this); ///< the settings, or why a value was refused
};
