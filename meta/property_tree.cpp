#include "meta/property_tree.h"

#include "platform/imageio/metadata/property_labels.h"

namespace meta {

QVariantList nodesOf(const QVariantMap &properties)
{
    QVariantList nodes;
    for (auto entry = properties.begin(); entry != properties.end(); ++entry) { // a QMap is in that order already
        QVariantMap node = {{QStringLiteral("key"), platform::propertyLabel(entry.key())},
                            {QStringLiteral("val"), entry.value()}};
        if (entry.value().typeId() == QMetaType::QVariantMap) {
            node.insert(QStringLiteral("val"), QStringLiteral(""));
            node.insert(QStringLiteral("children"), nodesOf(entry.value().toMap()));
        }
        nodes.append(node);
    }
    return nodes;
}

} // namespace meta
