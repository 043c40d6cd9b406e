#include "resource_files.h"

#include <QResource>
#include <QtEndian>
#include <QtGlobal>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace ovk_test {

namespace {

/// A file or a folder of the image.
struct Node
{
    QString name;
    bool folder = true;
    QByteArray content;
    std::vector<std::unique_ptr<Node>> children;

    Node& Child(const QString& child_name)
    {
        for (const std::unique_ptr<Node>& child : children) {
            if (child->name == child_name)
                return *child;
        }
        children.push_back(std::make_unique<Node>());
        children.back()->name = child_name;
        return *children.back();
    }
};

template <typename Number>
void Append(QByteArray& bytes, Number number)
{
    const Number big = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

/// The hash by which the resource system orders and finds the names of a folder.
quint32 NameHash(const QString& name)
{
    quint32 hash = 0;
    for (const QChar letter : name) {
        hash = (hash << 4) + letter.unicode();
        hash ^= (hash & 0xf0000000) >> 23;
        hash &= 0x0fffffff;
    }
    return hash;
}

/// The image in the first version of the format: header, tree, data, names.
QByteArray Image(Node& root)
{
    std::vector<Node*> order{&root};
    QByteArray tree;
    QByteArray data;
    QByteArray names;
    for (std::size_t i = 0; i < order.size(); ++i) {
        Node& node = *order[i];
        Append<quint32>(tree, static_cast<quint32>(names.size()));
        Append<quint16>(names, static_cast<quint16>(node.name.size()));
        Append<quint32>(names, NameHash(node.name));
        for (const QChar letter : qAsConst(node.name))
            Append<quint16>(names, letter.unicode());
        if (node.folder) {
            std::sort(node.children.begin(), node.children.end(), [](const auto& a, const auto& b) {
                return NameHash(a->name) < NameHash(b->name);
            });
            Append<quint16>(tree, 2);
            Append<quint32>(tree, static_cast<quint32>(node.children.size()));
            Append<quint32>(tree, static_cast<quint32>(order.size()));
            for (const std::unique_ptr<Node>& child : node.children)
                order.push_back(child.get());
        } else {
            Append<quint16>(tree, 0);
            Append<quint32>(tree, (0u << 16) | 1u); // any country, the C locale
            Append<quint32>(tree, static_cast<quint32>(data.size()));
            Append<quint32>(data, static_cast<quint32>(node.content.size()));
            data.append(node.content);
        }
    }

    constexpr int header_size = 20;
    QByteArray image("qres");
    Append<quint32>(image, 1);
    Append<quint32>(image, static_cast<quint32>(header_size));
    Append<quint32>(image, static_cast<quint32>(header_size + tree.size()));
    Append<quint32>(image, static_cast<quint32>(header_size + tree.size() + data.size()));
    return image + tree + data + names;
}

} // namespace

ResourceFiles::ResourceFiles(const Files& files)
{
    Node root;
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        Node* node = &root;
        const QStringList parts = it.key().split(QLatin1Char('/'), Qt::SkipEmptyParts);
        for (const QString& part : parts)
            node = &node->Child(part);
        node->folder = false;
        node->content = it.value();
    }
    m_image = Image(root);
    if (!QResource::registerResource(reinterpret_cast<const uchar*>(m_image.constData())))
        qFatal("The resource system does not take the test's files");
}

ResourceFiles::~ResourceFiles()
{
    QResource::unregisterResource(reinterpret_cast<const uchar*>(m_image.constData()));
}

} // namespace ovk_test
