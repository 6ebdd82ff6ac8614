#include <EditorUtil/Item.h>

#include <utility>

namespace EditorCollection {

namespace {

class Item final : public IItem
{
public:
    Item(Effect::Object const & payload, std::set<QString> categories, std::string file)
        : m_categories(std::move(categories))
        , m_file(std::move(file))
        , m_payload(payload)
    {}

    std::set<QString> const & categories() const override { return m_categories; }
    void addCategory(QString const & name) override { m_categories.insert(name); }
    Effect::Object const & payload() const override { return m_payload; }
    void setUserFlagA(bool set) override { m_userFlagA = set; }
    void setUserFlagB(bool set) override { m_userFlagB = set; }
    bool userFlagA() const override { return m_userFlagA; }
    bool userFlagB() const override { return m_userFlagB; }
    std::string const & file() const override { return m_file; }

    /// The storage has released the payload.
    void ownPayload() { m_owned.reset(&m_payload); }

private:
    std::set<QString> m_categories;
    std::string m_file;
    bool m_userFlagA = false;
    bool m_userFlagB = false;
    Effect::Object const & m_payload;
    std::unique_ptr<Effect::Object const> m_owned; // null as long as the storage owns the payload
};

} // namespace

serialize_ptr<IItem> makeItem(std::unique_ptr<Effect::Object> effect, std::set<QString> categories, std::string file)
{
    auto item = std::make_unique<Item>(*effect, std::move(categories), std::move(file));
    serialize_ptr<IItem> made;
    made.storage.add(std::move(effect), [&item = *item] { item.ownPayload(); });
    made.pointer = std::move(item);
    return made;
}

} // namespace EditorCollection
