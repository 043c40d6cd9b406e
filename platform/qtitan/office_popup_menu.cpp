#include "office_popup_menu.h"

#include "ribbon_gallery.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidgetAction>

namespace Qtitan {
namespace {

/// Shows a widget that belongs to somebody else.
class BorrowedWidgetAction : public QWidgetAction
{
public:
    BorrowedWidgetAction(QWidget* widget, QObject* parent) : QWidgetAction(parent), m_widget(widget)
    {
    }

    ~BorrowedWidgetAction() override
    {
        // The base would delete what it believes to have made.
        const QList<QWidget*> widgets = createdWidgets();
        for (QWidget* widget : widgets)
            releaseWidget(widget);
    }

protected:
    QWidget* createWidget(QWidget* parent) override
    {
        if (m_widget)
            m_widget->setParent(parent);
        return m_widget;
    }

    void deleteWidget(QWidget* widget) override
    {
        widget->hide();
        widget->setParent(nullptr);
    }

private:
    QPointer<QWidget> m_widget;
};

} // namespace

OfficePopupMenu* OfficePopupMenu::createPopupMenu(QWidget* parent)
{
    return new OfficePopupMenu(parent);
}

OfficePopupMenu::OfficePopupMenu(QWidget* parent) : QMenu(parent) {}

OfficePopupMenu::~OfficePopupMenu() = default;

QAction* OfficePopupMenu::addWidget(QWidget* widget)
{
    return insertWidget(nullptr, widget);
}

QAction* OfficePopupMenu::insertWidget(QAction* before, QWidget* widget)
{
    if (!widget)
        return nullptr;
    auto* action = new QWidgetAction(this);
    action->setDefaultWidget(widget);
    insertAction(before, action);
    if (auto* gallery = qobject_cast<RibbonGallery*>(widget))
        connect(gallery, &RibbonGallery::itemClicked, this, &OfficePopupMenu::closeAll);
    return action;
}

QAction* OfficePopupMenu::addGallery(RibbonGallery* gallery)
{
    if (!gallery)
        return nullptr;
    auto* action = new BorrowedWidgetAction(gallery, this);
    addAction(action);
    connect(gallery, &RibbonGallery::itemClicked, this, &OfficePopupMenu::closeAll);
    return action;
}

/// Closes this menu and those that led to it.
void OfficePopupMenu::closeAll()
{
    QPointer<QWidget> popup = QApplication::activePopupWidget();
    while (popup && qobject_cast<QMenu*>(popup.data())) {
        popup->close();
        QWidget* next = QApplication::activePopupWidget();
        if (next == popup)
            break;
        popup = next;
    }
    hide();
}

bool OfficePopupMenu::event(QEvent* event)
{
    // A widget that became smaller or larger while the menu is open.
    if (event->type() == QEvent::LayoutRequest && isVisible())
        adjustSize();
    return QMenu::event(event);
}

} // namespace Qtitan

#include "moc_office_popup_menu.cpp"
