#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace bench {

/// How the spots of a layout are shared out over its ribbon.
struct RibbonShape
{
    int spots = 0;
    int groups_a_page = 1;
    int spots_a_group = 1;
    int styles = 4; ///< Spots take the button styles 0 to this in turn, from group to group anew.
};

/// A layout of a profile with nothing but a ribbon, full of the commands `id(0)`, `id(1)` and so
/// on.
template <class Id>
QJsonObject LayoutJson(const QString& name, const RibbonShape& shape, const Id& id)
{
    QJsonArray pages;
    int next = 0;
    for (int p = 0; next < shape.spots; ++p) {
        QJsonArray groups;
        for (int g = 0; g < shape.groups_a_page && next < shape.spots; ++g) {
            QJsonArray spots;
            for (int s = 0; s < shape.spots_a_group && next < shape.spots; ++s, ++next)
                spots.append(QJsonObject{{"id", id(next)}, {"style", s % shape.styles}});
            groups.append(QJsonObject{{"id", QStringLiteral("group%1.%2").arg(p).arg(g)},
                                      {"title", QStringLiteral("Group %1").arg(g)},
                                      {"spots", spots}});
        }
        pages.append(QJsonObject{{"id", QStringLiteral("page%1").arg(p)},
                                 {"title", QStringLiteral("Page %1").arg(p)},
                                 {"groups", groups}});
    }
    const QJsonObject ribbon{{"id", "ribbon"}, {"pages", pages}};
    return {{"id", name}, {"states", QJsonObject{{"ribbon", ribbon}}}};
}

} // namespace bench
