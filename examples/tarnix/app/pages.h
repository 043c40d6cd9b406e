#pragma once

#include "model/phrase.h"

#include <ovk/commands/widget_factory.h>
#include <ovk/docking/dock_page.h>

#include <QHash>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

namespace tarnix {

class Host;

/// Base of the pages of the panels.
class HostPage : public QWidget, public ovk::IDockPage
{
    Q_OBJECT

public:
    HostPage(const QString& id, const Phrase& title);

    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<HostPage*>(this); }
    /// Only in the layouts that it is made for.
    bool IsAvailable() const override;
    void OnActivated() override {}
    bool IsToggleable() const override { return true; }
    void OnVisibilityToggled(bool visible) override;
    QString GetSizeGroupId() const override { return QString(); }
    QSizePolicy GetSizePolicy() const override
    {
        return {QSizePolicy::Expanding, QSizePolicy::Expanding};
    }

    QSize minimumSizeHint() const override { return {180, 90}; }

    /// The first letters of the layouts that offer the page.
    void SetLayouts(const char* layouts) { m_layouts = QString::fromLatin1(layouts); }

protected:
    /// Runs `set` now and whenever the language changes.
    void Say(const std::function<void()>& set);
    void changeEvent(QEvent* event) override;

private:
    QString m_layouts;
    std::vector<std::function<void()>> m_texts;
};

/// Makes the pages of the panels. A page is made once and goes from layout to layout, so that it
/// keeps what the user did in it.
class PageFactory : public ovk::IWidgetFactory
{
public:
    explicit PageFactory(Host& host);
    ~PageFactory() override;

    QWidget* CreatePageWidget(const QString& pageId) override;
    QStringList GetPageIds() const override;

    /// The page, if it was made.
    ovk::IDockPage* Find(const QString& page) const;

private:
    Host& m_host;
    QHash<QString, QPointer<HostPage>> m_pages;
};

HostPage* MakePartsPage(Host& host);
HostPage* MakePropertiesPage(Host& host);
HostPage* MakePartTreePage(Host& host);
HostPage* MakeMeasurementsPage(Host& host);
HostPage* MakeFindingsPage(Host& host);
HostPage* MakeLayersPage(Host& host);
HostPage* MakeHistoryPage(Host& host);
HostPage* MakePrimitivesPage(Host& host);
HostPage* MakeNotesPage(Host& host);
HostPage* MakeLogPage(Host& host);
HostPage* MakeLegendPage(Host& host);

} // namespace tarnix
