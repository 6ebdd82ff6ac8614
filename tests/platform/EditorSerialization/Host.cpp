#include "Host.h"

BOOST_CLASS_EXPORT_IMPLEMENT(Host::Leaf)
BOOST_CLASS_EXPORT_IMPLEMENT(Host::Node)
BOOST_CLASS_EXPORT_IMPLEMENT(Host::Branch)
BOOST_CLASS_EXPORT_IMPLEMENT(Host::Parcel)

namespace Host {

namespace {

template <class Class> struct Creator : Serialize::BaseCreator
{
    Creator() { boost::serialization::void_cast_register<Class, Serialize::ISerializable>(); }
    Serialize::ISerializable * create() const override { return new Class; }
};

Serialize::Registrator const leaf(Leaf::NameInArchive(), new Creator<Leaf>);
Serialize::Registrator const node(Node::NameInArchive(), new Creator<Node>);
Serialize::Registrator const branch(Branch::NameInArchive(), new Creator<Branch>);
Serialize::Registrator const parcel(Parcel::NameInArchive(), new Creator<Parcel>);

} // namespace

std::unique_ptr<Node> nested(int depth)
{
    auto root = std::make_unique<Node>();
    if (depth > 1)
        root->children.push_back(nested(depth - 1));
    return root;
}

} // namespace Host
