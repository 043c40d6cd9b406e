#pragma once

#include "ribbon_backstage.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>

#include <vector>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonBar;

/// A row of the backstage's column: of a page or of a command.
class OVK_TEST_EXPORT RibbonBackstageRow : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonBackstageRow(QAction* action, QWidget* parent);
    QAction* action() const { return m_action; }
    /// Takes text, icon and state from the action.
    void follow();
    /// Whether the row's page is the one at the right.
    bool isCurrent() const { return m_current; }
    void setCurrent(bool current);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QAction* m_action;
    bool m_current = false;
};

/// The arrow at the top of the column that leads back.
class OVK_TEST_EXPORT RibbonBackstageBack : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonBackstageBack(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslate();
};

class OVK_TEST_EXPORT RibbonBackstageViewPrivate
{
public:
    explicit RibbonBackstageViewPrivate(RibbonBackstageView* view) : q(view) {}
    static RibbonBackstageViewPrivate* get(RibbonBackstageView* view) { return view->d.get(); }

    struct Entry
    {
        QAction* action = nullptr;
        RibbonBackstagePage* page = nullptr; ///< null for a command or a line
        RibbonBackstageRow* row = nullptr;   ///< null for a line
        QRect rect;
    };

    /// Back arrow and rows from top to bottom, as the keyboard walks them.
    QList<QAbstractButton*> rowButtons() const;
    int columnWidth() const;
    QRect columnRect() const;
    void layout();
    void openPage(RibbonBackstagePage* page);
    void rowClicked(QAction* action);
    std::vector<Entry>::iterator find(const QAction* action);
    std::vector<Entry>::iterator find(const RibbonBackstagePage* page);
    RibbonBackstagePage* firstPage() const;
    void moveRow(int step);
    void scrollBy(int distance);

    RibbonBackstageView* const q;
    QPointer<RibbonBar> bar;
    QPointer<QWidget> watched;
    QPointer<QWidget> focusBefore;
    RibbonBackstageBack* backButton = nullptr;
    std::vector<Entry> entries;
    RibbonBackstagePage* active = nullptr;
    RibbonBackstagePage* inserting = nullptr;
    int scroll = 0;
    int maximumScroll = 0;
    mutable int columnCache = -1;
};

} // namespace Qtitan
