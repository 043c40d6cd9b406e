#pragma once

#include <QWidget>
#include <ovk/docking/dock_page.h>

/// A page of a panel of the viewer.
class PanelPage : public QWidget, public ovk::IDockPage
{
    Q_OBJECT

public:
    PanelPage(const QString& id, const QString& title);

    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<PanelPage*>(this); }
    bool IsAvailable() const override { return true; }
    void OnActivated() override {}
    bool IsToggleable() const override { return true; }
    void OnVisibilityToggled(bool) override {}
    QString GetSizeGroupId() const override { return QString(); }
    QSizePolicy GetSizePolicy() const override
    {
        return {QSizePolicy::Preferred, QSizePolicy::Expanding};
    }

    QSize minimumSizeHint() const override { return {160, 80}; }
};

QStringList PanelPageIds();
/// A new page; null for an identifier that is none.
PanelPage* MakePanelPage(const QString& id);
