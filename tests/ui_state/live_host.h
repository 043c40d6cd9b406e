#pragma once

#include "suites_support.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/work_area.h>
#include <ovk/ui_state/ui_state_ribbon.h>

#include <qtitan/ribbon.h>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QToolBar>
#include <QTranslator>

namespace ovk_test {

/// A fake host with a main window. The window goes first, as it does when an application is
/// closed; close the layout before if the test wants it the other way round.
class LiveHost : public FakeHost
{
public:
    explicit LiveHost(const QJsonObject& catalogue = SmallCatalogue(),
                      const QJsonObject& profile = SmallProfile())
        : FakeHost(catalogue, profile)
    {
        Start();
        window = std::make_unique<ovk::RibbonWindow>();
    }

    Qtitan::RibbonBar& Bar() const { return *window->ribbonBar(); }
    QToolBar& QuickAccess() const { return *window->ribbonBar()->quickAccessBar(); }
    QMainWindow& Area() const { return *window->GetWorkArea(); }

    /// Looks everything up anew, as after a change of the commands or of the language.
    void Revalidate() const
    {
        Controller().InvalidateLayouts();
        Controller().ValidateActiveLayout();
    }

    std::unique_ptr<ovk::RibbonWindow> window;
};

/// What a site shows: identifiers of commands, "|" for a separator, the text of what has neither.
inline QStringList Shown(const QWidget& site)
{
    QStringList shown;
    const QList<QAction*> actions = site.actions();
    for (const QAction* action : actions) {
        if (action->isSeparator())
            shown << "|";
        else
            shown << (action->objectName().isEmpty() ? action->text() : action->objectName());
    }
    return shown;
}

/// The object names of the pages of the bar, hidden ones in brackets.
inline QStringList LivePages(const Qtitan::RibbonBar& bar)
{
    QStringList names;
    const QList<Qtitan::RibbonPage*> pages = bar.pages();
    for (const Qtitan::RibbonPage* page : pages)
        names << (page->isHidden() && bar.currentPage() != page
                      ? QLatin1Char('(') + page->objectName() + QLatin1Char(')')
                      : page->objectName());
    return names;
}

/// The object names of the groups of a live page.
inline QStringList LiveGroups(const Qtitan::RibbonPage& page)
{
    QStringList names;
    const QList<Qtitan::RibbonGroup*> groups = page.groups();
    for (const Qtitan::RibbonGroup* group : groups)
        names << group->objectName();
    return names;
}

/// Counts how often each of the watched sites was built: a build adds at least one action.
class BuildCounter : public QObject
{
public:
    void Watch(QWidget* site)
    {
        site->installEventFilter(this);
        m_sites.insert(site, {});
    }
    /// Builds of the site since the last call of Reset.
    int Builds(QWidget* site) const { return m_sites.value(site).builds; }
    int AllBuilds() const
    {
        int all = 0;
        for (const Site& site : m_sites)
            all += site.builds;
        return all;
    }
    /// Sites that were built at all.
    int BuiltSites() const
    {
        int built = 0;
        for (const Site& site : m_sites)
            built += site.builds > 0 ? 1 : 0;
        return built;
    }
    void Reset()
    {
        for (Site& site : m_sites)
            site = {};
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto site = m_sites.find(static_cast<QWidget*>(watched));
        if (site == m_sites.end())
            return false;
        if (event->type() == QEvent::ActionRemoved)
            site->building = false;
        if (event->type() == QEvent::ActionAdded && !site->building) {
            site->building = true;
            ++site->builds;
        }
        return false;
    }

private:
    struct Site
    {
        int builds = 0;
        bool building = false;
    };
    QHash<QWidget*, Site> m_sites;
};

/// Puts a prefix before every text of the given contexts while it lives.
class PrefixTranslator : public QTranslator
{
public:
    explicit PrefixTranslator(const QString& prefix) : m_prefix(prefix)
    {
        QCoreApplication::installTranslator(this);
    }
    ~PrefixTranslator() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return m_prefix + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }

private:
    QString m_prefix;
};

} // namespace ovk_test
