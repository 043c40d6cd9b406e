#pragma once

#include "tests/support/fake_host.h"

#include <qtitan/style.h>

#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QStyleFactory>

namespace ovk_test {

/// The catalogue of fake_host.h whose product also has these functions, visual or not.
inline QJsonObject CatalogueWith(const QStringList& ids, const QStringList& hidden = {})
{
    QJsonObject root = SmallCatalogue();
    QJsonObject commands = root.value(QStringLiteral("commands")).toObject();
    QJsonArray list = commands.value(QStringLiteral("command")).toArray();
    for (const QString& id : ids + hidden) {
        list.append(QJsonObject{{QStringLiteral("id"), id},
                                {QStringLiteral("title"), id},
                                {QStringLiteral("visual"), !hidden.contains(id)}});
    }
    commands.insert(QStringLiteral("command"), list);
    root.insert(QStringLiteral("commands"), commands);

    QJsonObject products = root.value(QStringLiteral("products")).toObject();
    QJsonArray product_list = products.value(QStringLiteral("product")).toArray();
    const int fake = product_list.at(0).toObject().value(QStringLiteral("id")) == QStringLiteral("Fake") ? 0 : 1;
    QJsonObject product = product_list.at(fake).toObject();
    QJsonObject functions = product.value(QStringLiteral("functions")).toObject();
    QJsonArray function_ids = functions.value(QStringLiteral("function_ids")).toArray();
    for (const QString& id : ids + hidden)
        function_ids.append(id);
    functions.insert(QStringLiteral("function_ids"), function_ids);
    product.insert(QStringLiteral("functions"), functions);
    product_list.replace(fake, product);
    products.insert(QStringLiteral("product"), product_list);
    root.insert(QStringLiteral("products"), products);
    return root;
}

/// The commands that give the window its fixed buttons.
inline QStringList WindowCommands()
{
    return {QStringLiteral("Ui.Ribbon.Minimize.Button"), QStringLiteral("Edit.CustomizeUI"),
            QStringLiteral("Help.Service"), QStringLiteral("Ui.Ribbon.System.Button")};
}

/// The ribbon's style on the application while it lives, then a plain one.
class RibbonStyleScope
{
public:
    RibbonStyleScope() { QApplication::setStyle(new Qtitan::RibbonStyle); } // the application's
    ~RibbonStyleScope() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    RibbonStyleScope(const RibbonStyleScope&) = delete;
    RibbonStyleScope& operator=(const RibbonStyleScope&) = delete;

    Qtitan::RibbonStyle& Style() const
    {
        return *qobject_cast<Qtitan::RibbonStyle*>(QApplication::style());
    }
};

} // namespace ovk_test
