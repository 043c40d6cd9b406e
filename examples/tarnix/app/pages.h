#pragma once

#include <ovk/commands/widget_factory.h>
#include <ovk/docking/dock_page.h>

#include <QHash>
#include <QPointer>
#include <QWidget>

namespace tarnix {

class Host;

/// Base of the pages of the panels.
class HostPage : public QWidget, public ovk::IDockPage
{
    Q_OBJECT

public:
    HostPage(const QString& id, const QString& title);

    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<HostPage*>(this); }
    bool IsAvailable() const override { return true; }
    void OnActivated() override {}
    bool IsToggleable() const override { return true; }
    void OnVisibilityToggled(bool visible) override;
    QString GetSizeGroupId() const override { return QString(); }
    QSizePolicy GetSizePolicy() const override
    {
        return {QSizePolicy::Preferred, QSizePolicy::Expanding};
    }

    QSize minimumSizeHint() const override { return {180, 90}; }
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
HostPage* MakeMeasurementsPage(Host& host);
HostPage* MakeFindingsPage(Host& host);
HostPage* MakeLayersPage(Host& host);
HostPage* MakeHistoryPage(Host& host);

} // namespace tarnix
