#pragma once

#include "dock_fixture.h"
#include "tests/ui_state/live_host.h"

#include <ovk/docking/ui_state_docking.h>

namespace ovk_test {

using namespace ovk;

/// Makes a page for every identifier that does not begin with "Unknown".
class PageFactory : public IWidgetFactory
{
public:
    QWidget* CreatePageWidget(const QString& id) override
    {
        if (id.startsWith(QLatin1String("Unknown")))
            return nullptr;
        made.append(id);
        // The first one of an identifier stays the host's page, as hosts do it.
        if (QWidget* const kept = keep.value(id))
            return kept;
        auto* const page = new FakePage(id, QSize(80, 50));
        page->setWindowTitle(QString());
        page->available = !id.startsWith(QLatin1String("Away"));
        keep.insert(id, page);
        return page;
    }
    QStringList GetPageIds() const override { return {}; }

    QStringList made;
    QHash<QString, QPointer<FakePage>> keep;
};

/// A shown window of a host with its docking state.
class DockHost
{
public:
    DockHost()
    {
        DockSettings::Animated().SetData(false);
        host.window->resize(1000, 800);
        host.window->show();
        DockFixture::Settle();
        layout = host.Activate(QStringLiteral("Model"));
        DockFixture::Settle();
    }
    ~DockHost()
    {
        host.Controller().SetActiveLayout(nullptr);
        DockSettings::Animated().SetData(true);
    }

    DockManager& Manager() const { return *host.window->GetDockManager(); }
    UiStateDocking& State() const { return ovk_test::SuiteOf<UiStateDocking>(*layout); }
    DockToolboxSite& Site(DockLayout::Side side) const
    {
        return *Manager().GetLayout()->GetSite(side)->GetToolboxSite();
    }
    DockWidget* Find(const QString& name) const
    {
        for (DockWidget* panel : Manager().GetWidgetsList()) {
            if (panel->GetName() == name)
                return panel;
        }
        return nullptr;
    }

    /// Puts a state that was read from JSON into the active layout.
    void Load(const QJsonObject& json)
    {
        auto state = std::make_unique<UiStateDocking>();
        state->FromJson(json);
        layout->ReplaceState(&State(), state.release());
        DockFixture::Settle();
    }

    /// What would be written now.
    QJsonObject Captured() const
    {
        State().Store();
        return State().ToJson();
    }

    PageFactory& Pages() { return *mp_pages; }

    LiveHost host;
    UiLayout* layout = nullptr;

private:
    std::unique_ptr<PageFactory> mp_pages = std::make_unique<PageFactory>();
};

inline QJsonObject Page(const QString& id, const QString& title = {})
{
    return {{"id", id}, {"title", title}};
}

inline QJsonObject Panel(const QString& id, const QStringList& pages, const QRect& rect = {})
{
    QJsonArray list;
    for (const QString& page : pages)
        list.append(Page(page, page));
    return {{"id", id},
            {"width", rect.width()},
            {"height", rect.height()},
            {"left", rect.left()},
            {"top", rect.top()},
            {"title", id},
            {"pages", list}};
}

inline const QJsonObject c_spacer{
    {"id", "vor.spacer"}, {"is_spacer", true}, {"pages", QJsonArray()}};

inline QJsonObject Docking(const QMap<QString, QJsonArray>& docked, const QJsonArray& floated = {},
                           int size = 0, const QString& area = QStringLiteral("manager.area"))
{
    QJsonArray sites;
    for (const char* side : {"left", "right", "top", "bottom"}) {
        QJsonArray panels = docked.value(QString::fromLatin1(side));
        if (!panels.contains(c_spacer))
            panels.append(c_spacer);
        QJsonObject toolbox{{"id", "toolboxes.site"}, {"subitems", panels}};
        if (size && panels.size() > 1)
            toolbox.insert("size", size);
        sites.append(QJsonObject{
            {"id", QString::fromLatin1(side)},
            {"subitems",
             QJsonArray{toolbox, QJsonObject{{"id", "toolbars.inner"}, {"subitems", QJsonArray()}},
                        QJsonObject{{"id", "toolbars.outter"}, {"subitems", QJsonArray()}}}}});
    }
    return {{"id", "docking"},
            {"subitems",
             QJsonArray{
                 QJsonObject{{"id", "areas"},
                             {"subitems", QJsonArray{QJsonObject{{"id", area}, {"sites", sites}}}}},
                 QJsonObject{{"id", "floated"}, {"subitems", floated}}}}};
}

inline QByteArray Text(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

/// The first line in which two texts differ; empty if they are equal.
inline QString Difference(const QByteArray& actual, const QByteArray& expected)
{
    const QList<QByteArray> left = actual.split('\n');
    const QList<QByteArray> right = expected.split('\n');
    for (int i = 0; i < qMin(left.size(), right.size()); ++i) {
        if (left.at(i) != right.at(i))
            return QString::fromUtf8(left.at(i).trimmed() + " instead of " + right.at(i).trimmed());
    }
    return left.size() == right.size() ? QString() : QStringLiteral("one is longer");
}

} // namespace ovk_test
