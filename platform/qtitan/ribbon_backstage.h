#pragma once

#include <QtCore/QList>
#include <QtGui/QIcon>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonBackstageViewPrivate;
class RibbonBar;

/// A page of the backstage. Its window title and window icon are its row in the left column.
class OVK_EXPORT RibbonBackstagePage : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonBackstagePage(QWidget* parent = nullptr);
    ~RibbonBackstagePage() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A large button on a backstage page: the icon above its text, flat until the pointer is over it.
class OVK_EXPORT RibbonBackstageButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(bool flatStyle READ isFlatStyle WRITE setFlatStyle)
public:
    explicit RibbonBackstageButton(QWidget* parent = nullptr);
    ~RibbonBackstageButton() override;

    /// Whether the button shows its frame under the pointer only. Initially false.
    bool isFlatStyle() const;
    void setFlatStyle(bool flat);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_flat = false;
};

/// The backstage: covers the client area of the window below the caption, with a column of rows at
/// the left and the chosen page beside it. setVisible opens and closes it.
class OVK_EXPORT RibbonBackstageView : public QWidget
{
    Q_OBJECT
public:
    /// A closed backstage of the bar's window. The bar's window owns it.
    explicit RibbonBackstageView(RibbonBar* bar);
    ~RibbonBackstageView() override;

    /// Appends a page and takes ownership. Null is ignored.
    void addPage(RibbonBackstagePage* page);
    /// Inserts a page before a row, at the end when `before` is null or unknown.
    void insertPage(QAction* before, RibbonBackstagePage* page);
    /// Takes a page out; it is the caller's from now on.
    void removePage(RibbonBackstagePage* page);
    /// The row of a page, null for a page of another view.
    QAction* pageAction(RibbonBackstagePage* page) const;
    QList<RibbonBackstagePage*> pages() const;

    /// Appends a row that runs a command and closes the backstage. The view owns the action.
    QAction* addAction(const QIcon& icon, const QString& text);
    using QWidget::addAction;
    /// Appends a line between rows.
    QAction* addSeparator();

    /// The page at the right, null when there is none.
    RibbonBackstagePage* activePage() const;
    void setActivePage(RibbonBackstagePage* page);

    RibbonBar* ribbonBar() const;
    /// Opens or closes the backstage. The signals come once for each change.
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Comes before the backstage is shown.
    void aboutToShow();
    /// Comes before the backstage is hidden.
    void aboutToHide();
    void activePageChanged(Qtitan::RibbonBackstagePage* page);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    friend class RibbonBackstageViewPrivate;
    std::unique_ptr<RibbonBackstageViewPrivate> d;
};

} // namespace Qtitan
