#pragma once

#include "tests/support/fake_host.h"

#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_state_command_spots.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ovk_test {

/// JSON as a test reads best; single quotes stand for double ones.
inline QJsonObject Json(QByteArray text)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(text.replace('\'', '"'), &error).object();
    if (error.error != QJsonParseError::NoError)
        qWarning("Bad JSON in a test: %s", qPrintable(error.errorString()));
    return object;
}

/// The suite of a layout by its class.
template <class Suite> Suite& SuiteOf(ovk::UiLayout& layout)
{
    return dynamic_cast<Suite&>(*layout.GetState(Suite::GetSuiteName()));
}

/// The names of all children, in order.
inline QStringList ChildNames(const ovk::ITreeItem& item)
{
    QStringList names;
    for (int i = 0; i < item.GetChildCount(); ++i)
        names << dynamic_cast<const ovk::UiProfileItem*>(item.GetChild(i))->GetName();
    return names;
}

/// A catalogue of one product "Fake" with one layout "Big" of `count` commands "Big.0", "Big.1"...
inline QJsonObject BigCatalogue(int count)
{
    QJsonArray commands;
    QJsonArray ids;
    for (int i = 0; i < count; ++i) {
        const QString id = QStringLiteral("Big.%1").arg(i);
        commands.append(QJsonObject{
            {"id", id}, {"title", QStringLiteral("Command %1").arg(i)}, {"visual", true}});
        ids.append(id);
    }
    const QJsonObject layout{{"id", "Big"}, {"command_ids", ids}};
    const QJsonObject product{
        {"id", "Fake"}, {"profile_suffix", "fake"}, {"layout", QJsonArray{layout}}};
    return {{"commands", QJsonObject{{"command", commands}}},
            {"products", QJsonObject{{"product", QJsonArray{product}}}}};
}

/// A profile of one layout "Big" with empty suites.
inline QJsonObject BigProfile()
{
    return Json("{'profile': {'product': 'Fake', 'layouts': [{'id': 'Big', 'states': {}}]}}");
}

} // namespace ovk_test
