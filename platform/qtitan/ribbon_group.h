#pragma once

#include <QtCore/QList>
#include <QtGui/QIcon>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonGallery;
class RibbonGroupPrivate;
class RibbonPage;

/// A titled group of buttons and widgets on a page.
///
/// A button with its text under the icon takes the full height; buttons with the text beside the
/// icon, with the icon only or the text only stack three to a column, a separator is a vertical
/// line. When the page is narrow the group reduces itself: large buttons become small, texts go, and
/// at last the group becomes one button that opens it in full. The styles that were given stay what
/// they are and come back with the width.
class OVK_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
public:
    explicit RibbonGroup(QWidget* parent = nullptr, const QString& title = QString());
    ~RibbonGroup() override;

    /// The text below the buttons. A single "&" is dropped, "&&" shows one.
    QString title() const;
    void setTitle(const QString& title);

    /// The icon that the group shows when it is reduced to one button.
    QIcon icon() const;
    void setIcon(const QIcon& icon);

    /// Adds a button for an action and returns the action, which stays the caller's. The menu, if
    /// any, stays the caller's too; without a menu (and none on the action) `mode` has no effect.
    /// Qt::ToolButtonFollowStyle means the text beside the icon. An action that is in the group
    /// already gets a new button at the end. Null is ignored.
    QAction* addAction(QAction* action, Qt::ToolButtonStyle style, QMenu* menu = nullptr,
                       QToolButton::ToolButtonPopupMode mode = QToolButton::MenuButtonPopup);
    /// Adds a button with a new action, which the group owns.
    QAction* addAction(const QIcon& icon, const QString& title, Qt::ToolButtonStyle style,
                       QMenu* menu = nullptr,
                       QToolButton::ToolButtonPopupMode mode = QToolButton::InstantPopup);
    using QWidget::addAction;
    /// Adds a vertical line. The action that stands for it is the group's.
    QAction* addSeparator();
    /// Adds a widget and takes ownership. One that is lower than two lines stacks like a small button.
    QAction* addWidget(QWidget* widget);
    /// Adds a gallery, which takes the full height, and takes ownership.
    QAction* addGallery(RibbonGallery* gallery);
    /// Removes all buttons, separators and widgets, and deletes the actions that the group owns.
    void clear();

    /// The button or widget of an action, null when there is none.
    QWidget* widgetForAction(const QAction* action) const;
    /// The button of an action, null when there is none.
    QToolButton* buttonForAction(const QAction* action) const;
    /// The style that an action was added with; Qt::ToolButtonTextBesideIcon for unknown actions.
    Qt::ToolButtonStyle styleForAction(const QAction* action) const;
    void setStyleForAction(const QAction* action, Qt::ToolButtonStyle style);

    /// Whether the launcher, a small button in the corner of the title strip, is shown.
    bool isOptionButtonVisible() const;
    void setOptionButtonVisible(bool visible);
    /// The action of the launcher; its triggered signal tells of the click. Owned by the group.
    QAction* optionButtonAction() const;

    /// The page that the group is in, null when it is in none.
    RibbonPage* page() const;
    /// Whether the group is reduced to one button at present.
    bool isReducedToPopup() const;
    /// Whether the popup of the reduced group is open.
    bool isPopupVisible() const;
    /// Opens the popup of a reduced group; nothing happens otherwise.
    void showPopup();
    void hidePopup();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void titleChanged(const QString& title);

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    friend class RibbonGroupPrivate;
    std::unique_ptr<RibbonGroupPrivate> d;
};

} // namespace Qtitan
