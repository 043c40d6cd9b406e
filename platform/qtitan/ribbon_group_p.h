#pragma once

#include "ribbon_group.h"
#include "ribbon_group_panel_p.h"

#include <QtCore/QPointer>

#include <ovk/core/export.h>

namespace Qtitan {

/// The window in which a group that is reduced to one button shows itself in full.
class OVK_TEST_EXPORT RibbonGroupPopup : public QWidget
{
    Q_OBJECT
public:
    RibbonGroupPopup(RibbonGroup* group, RibbonGroupPanel* panel);

    RibbonGroup* group() const { return m_group; }
    void openAt(const QRect& button);
    /// Lays out the panel in its full size and fits the window to it.
    void fit();

protected:
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    RibbonGroup* m_group;
    RibbonGroupPanel* m_panel;
};

class RibbonGroupPrivate
{
public:
    explicit RibbonGroupPrivate(RibbonGroup* group) : q(group) {}

    static RibbonGroupPrivate* get(RibbonGroup* group) { return group->d.get(); }
    static const RibbonGroupPrivate* get(const RibbonGroup* group) { return group->d.get(); }

    /// Something changed the width of the panel.
    void panelChanged();
    /// The steps of the panel with, where it may be, the one button at the end.
    std::vector<std::pair<int, int>> reductionSteps() const;
    int collapsedWidth() const;
    /// Shows the step, one of reductionSteps().
    void applyStep(int step);
    void setCollapsed(bool collapsed);
    /// Gives the panel the size of the group, unless it is in the popup.
    void fitPanel();
    void setTitleVisible(bool visible);
    void popupHidden();
    void insertAction(QAction* action, QAction* before);
    void actionChanged(const QAction* action);
    /// Forgets everything that was measured.
    void invalidateAll();
    void stopKeyTips();

    RibbonGroup* const q;
    RibbonGroupPanel* panel = nullptr;
    RibbonPage* page = nullptr;
    QString title;
    QIcon icon;
    QPointer<RibbonGroupPopup> popup;
    std::unique_ptr<QAction> optionAction;
    bool collapsed = false;
    mutable int collapsedCache = -1;

    /// What addAction was told, until the action's event arrives.
    struct Pending
    {
        QAction* action = nullptr;
        Qt::ToolButtonStyle style = Qt::ToolButtonTextBesideIcon;
        QMenu* menu = nullptr;
        QToolButton::ToolButtonPopupMode mode = QToolButton::MenuButtonPopup;
    } pending;
};

} // namespace Qtitan
