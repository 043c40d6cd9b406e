#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QToolButton>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonBackstageView;
class RibbonBar;

/// The button at the beginning of the tab row. It opens its backstage, or its menu when it has one
/// and no backstage. With Qt::ToolButtonTextOnly it is a coloured tab with a word; otherwise the
/// theme decides, the 2007 themes showing a round button.
class OVK_EXPORT RibbonSystemButton : public QToolButton
{
    Q_OBJECT
public:
    explicit RibbonSystemButton(RibbonBar* bar);
    ~RibbonSystemButton() override;

    /// Binds the view that a click opens and closes. It stays the caller's; null unbinds.
    void setBackstage(RibbonBackstageView* backstage);
    RibbonBackstageView* backstage() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void toggleBackstage();
    /// Round, over the caption and the tab row, as in the 2007 themes.
    bool isRound() const;
    RibbonBar* m_bar;
    QPointer<RibbonBackstageView> m_backstage;
    friend class RibbonBarPrivate;
};

} // namespace Qtitan
