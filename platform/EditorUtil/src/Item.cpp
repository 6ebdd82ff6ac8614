#include <EditorUtil/Item.h>

#include <utility>

namespace EditorCollection {

namespace {

class Item final : public IItem
{
public:
    Item(Effect::Object const & payload, std::set<QString> categories)
        : m_categories(std::move(categories))
        , m_payload(payload)
    {}

    std::set<QString> const & categories() const override { return m_categories; }
    void addCategory(QString const & name) override { m_categories.insert(name); }
    Effect::Object const & payload() const override { return m_payload; }
    void setUserFlagA(bool set) override { m_userFlagA = set; }
    void setUserFlagB(bool set) override { m_userFlagB = set; }
    bool userFlagA() const override { return m_userFlagA; }
    bool userFlagB() const override { return m_userFlagB; }

    /// The storage has given the payload up.
    void ownPayload() { m_owned.reset(&m_payload); }

private:
    std::set<QString> m_categories;
    bool m_userFlagA = false;
    bool m_userFlagB = false;
    Effect::Object const & m_payload;
    std::unique_ptr<Effect::Object const> m_owned; // null as long as the storage owns the payload
};

} // namespace

serialize_ptr<IItem> makeItem(std::unique_ptr<Effect::Object> effect, std::set<QString> categories)
{
    auto item = std::make_unique<Item>(*effect, std::move(categories));
    serialize_ptr<IItem> made;
    made.storage.add(std::move(effect), [&item = *item] { item.ownPayload(); });
    made.pointer = std::move(item);
    return made;
}

} // namespace EditorCollection
