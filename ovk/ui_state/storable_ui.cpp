#include "ovk/ui_state/storable_ui.h"

#include "ovk/commands/ui_controller.h"
#include "ovk/main_window/ribbon_window.h"
#include "ovk/ui_state/live_sites_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_state_dialogs.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

namespace ovk {

namespace {

UiStateDialogs* ActiveDialogs()
{
    UiController* controller = UiController::GetInstance();
    UiLayout* layout = controller ? controller->GetActiveLayout() : nullptr;
    return layout ? dynamic_cast<UiStateDialogs*>(layout->GetState(UiStateDialogs::GetSuiteName()))
                  : nullptr;
}

/// Whether the rectangle lies on the union of all screens; never when there is no screen.
bool IsOnDesktop(const QRect& geometry)
{
    QRect desktop;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        desktop |= screen->geometry();
    return !screens.isEmpty() && desktop.contains(geometry, false);
}

} // namespace

class StorableUI::Impl : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!mp_widget || watched != mp_widget)
            return false;
        if (event->type() == QEvent::Hide)
            SaveGeometry(mp_widget, Name());
        else if (event->type() == QEvent::Show)
            RestoreGeometry(mp_widget, Name());
        return false;
    }

    QString Name() const
    {
        return m_name.isEmpty() ? QString::fromLatin1(mp_widget->metaObject()->className())
                                : m_name;
    }

    QPointer<QWidget> mp_widget;
    QString m_name;
};

StorableUI::StorableUI() : mp_impl(std::make_unique<Impl>()) {}

StorableUI::StorableUI(QWidget* widget, const QString& name) : StorableUI()
{
    SetWidget(widget);
    SetPrefName(name);
}

StorableUI::~StorableUI() = default;

void StorableUI::SetWidget(QWidget* widget)
{
    mp_impl->mp_widget = widget;
    if (widget)
        widget->installEventFilter(mp_impl.get());
}

void StorableUI::SetPrefName(const QString& name)
{
    mp_impl->m_name = name;
}

void StorableUI::SaveGeometry(QWidget* widget, const QString& name)
{
    UiStateDialogs* dialogs = ActiveDialogs();
    if (dialogs && widget)
        dialogs->GetDialogItem(name).SetGeometry(widget->geometry());
}

void StorableUI::RestoreGeometry(QWidget* widget, const QString& name)
{
    UiStateDialogs* dialogs = ActiveDialogs();
    if (!dialogs || !widget)
        return;
    const UiStateDialog* item = dialogs->Find(name);
    if (item && IsOnDesktop(item->GetGeometry())) {
        widget->setGeometry(item->GetGeometry());
        return;
    }
    RibbonWindow* window = LiveWindow();
    const QWidget* view = window ? window->GetCentralViewWidget() : nullptr;
    const QRect frame = widget->frameGeometry();
    if (view && view->height() > frame.height() && view->width() > frame.width())
        widget->move(view->mapToGlobal(QPoint(0, 0)));
}

} // namespace ovk
