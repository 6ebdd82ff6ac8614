#include "inspector.h"

#include "ConvertEffect.h"
#include <functional>
#include <nlohmann/json.hpp>

namespace Schema = Effect::Schema;
using nlohmann::json;
using Set = std::function<void(json const &)>;

static QWidget * makeNumber(Schema::Parameter const & parameter, json const & value, Set const & set)
{
    auto * const spin = new QDoubleSpinBox;
    spin->setDecimals(parameter.kind == Schema::Kind::Real ? 3 : 0);
    spin->setRange(-1e12, 1e12); // numbers beyond the bounds are valid, or setValue() refuses them
    spin->setSuffix(parameter.unit == Effect::Unit::engine ? "" : ' ' + QString::fromStdString(parameter.unit));
    spin->setValue(value);
    auto const changed = qOverload<double>(&QDoubleSpinBox::valueChanged);
    QObject::connect(spin, changed, [=](double to) { set(spin->decimals() ? json(to) : json(std::int64_t(to))); });
    auto const least = parameter.suggestedMinimum ? parameter.suggestedMinimum : parameter.minimum;
    auto const most = parameter.suggestedMaximum ? parameter.suggestedMaximum : parameter.maximum;
    if (!least || !most || *least >= *most)
        return spin;
    auto * const slider = new QSlider(Qt::Horizontal);
    slider->setMaximum(spin->decimals() ? 1000 : qRound(qMin(*most - *least, 1000.0)));
    double const step = (*most - *least) / slider->maximum();
    auto const follow = [=](double to) {
        QSignalBlocker const blocker(slider);
        slider->setValue(qRound((qBound(*least, to, *most) - *least) / step));
    };
    follow(spin->value());
    QObject::connect(spin, changed, follow);
    QObject::connect(slider, &QSlider::valueChanged, [=](int at) { spin->setValue(*least + at * step); });
    auto * const row = new QSplitter;
    row->addWidget(slider);
    row->addWidget(spin);
    return row;
}

static QWidget * makeColor(json const & value, Set const & set)
{
    auto * const button = new QPushButton;
    auto const paint = [=](QColor const & color) {
        button->setText(color.name(QColor::HexArgb));
        button->setStyleSheet("border: 1px solid gray; border-left: 60px solid " + color.name());
    };
    paint(QColor::fromRgba(value));
    QObject::connect(button, &QPushButton::clicked, [=] {
        QColor const color = QColorDialog::getColor(button->text(), button, "", QColorDialog::ShowAlphaChannel);
        if (color.isValid()) {
            paint(color);
            set(color.rgba());
        }
    });
    return button;
}

static QWidget * makeText(json const & value, Set const & set)
{
    auto * const line = new QLineEdit(QString::fromStdString(value.is_string() ? std::string(value) : value.dump()));
    QObject::connect(line, &QLineEdit::editingFinished, [=] {
        std::string const text = line->text().toStdString();
        set(!value.is_string() && json::accept(text) ? json::parse(text) : json(text));
    });
    return line;
}

static QWidget * makeWidget(Schema::Parameter const & parameter, json const & value, Set const & set)
{
    if (parameter.kind == Schema::Kind::Boolean) {
        auto * const box = new QCheckBox;
        box->setChecked(value);
        QObject::connect(box, &QCheckBox::toggled, set);
        return box;
    }
    if (parameter.kind == Schema::Kind::Enumeration) {
        auto * const combo = new QComboBox;
        for (Effect::Choice const & choice : parameter.choices)
            combo->addItem(parameter.label(choice), int(choice.value));
        combo->setCurrentIndex(combo->findData(value.get<int>())); // -1, no choice, for a number that is none
        QObject::connect(combo, qOverload<int>(&QComboBox::activated), [=] { set(combo->currentData().toInt()); });
        return combo;
    }
    return parameter.kind == Schema::Kind::Color ? makeColor(value, set)
           : value.is_number()                   ? makeNumber(parameter, value, set)
                                                 : makeText(value, set); // or JSON
}

Inspector::Inspector()
{
    for (Schema::Class const * const info : Schema::classes())
        if (info->isEffect && !info->id.isEmpty())
            m_classes->addItem(QString::fromStdString(info->name));
    setStyleSheet("QTextBrowser { font-family: monospace } QDoubleSpinBox { max-width: 110px }");
    m_fields->setWidgetResizable(true);
    auto * const layout = new QGridLayout(this);
    layout->addWidget(m_classes, 0, 0);
    layout->addWidget(m_description, 1, 0, 1, 2);
    layout->addWidget(m_fields, 2, 0);
    layout->addWidget(m_settings, 2, 1);
    connect(m_classes, &QComboBox::textActivated,
        [this](auto const & name) { editNew(*Schema::find(name.toStdString())); });
}

void Inspector::editNew(Schema::Class const & info)
{
    m_effect.reset(&dynamic_cast<Effect::Object &>(*info.create().release()));
    m_classes->setCurrentText(QString::fromStdString(info.name));
    m_description->setText(info.description());
    rebuild();
}

void Inspector::rebuild()
{
    m_fields->setWidget(new QWidget);
    m_form = new QFormLayout(m_fields->widget());
    addFields(*m_effect, QString());
    m_settings->setPlainText(QString::fromStdString(convertEffect(*m_effect)));
}

void Inspector::addFields(Serialize::ISerializable & object, QString const & path)
{
    for (Schema::Parameter const & parameter : Schema::of(object)->parameters) {
        // Of what all effects have in common, only what changes the picture or the sound: no names and identifiers.
        if (parameter.owner == "Effect::Object" && (parameter.isEffective != true || parameter.key == "id"))
            continue;
        QString const name = path + '/' + QString::fromStdString(parameter.key);
        std::size_t const count = parameter.elements ? Schema::elementCount(object, parameter) : 0;
        for (std::size_t index = 0; index < count; ++index)
            if (auto * const element = Schema::element(object, parameter, index))
                addFields(*element, name + '/' + QString::number(index));
        if (count)
            continue;
        auto const set = [=, &object, &parameter](json const & value) {
            try {
                Schema::setValue(object, parameter, value);
                if (parameter.elements) // an element has fields of its own; later, as this widget goes then
                    QTimer::singleShot(0, this, &Inspector::rebuild);
                m_settings->setPlainText(QString::fromStdString(convertEffect(*m_effect)));
            } catch (std::invalid_argument const & error) {
                m_settings->setPlainText(error.what());
            }
        };
        QWidget * const widget = makeWidget(parameter, Schema::value(object, parameter), set);
        widget->setObjectName(name);
        widget->setToolTip(parameter.description());
        m_form->addRow(parameter.label(), widget);
    }
}
