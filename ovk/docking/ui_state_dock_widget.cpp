#include "ovk/docking/ui_state_dock_widget.h"

#include "ovk/commands/widget_factory.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_page.h"
#include "ovk/docking/dock_widget_p.h"
#include "ovk/docking/ui_state_dock_live_p.h"
#include "ovk/docking/ui_state_docking.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace ovk {

namespace {

const QLatin1String c_key_spacer("is_spacer");
const QLatin1String c_key_width("width");
const QLatin1String c_key_height("height");
const QLatin1String c_key_top("top");
const QLatin1String c_key_left("left");
const QLatin1String c_key_title("title");

const QLatin1String c_spacer_id("vor.spacer");

constexpr int c_large_window = 4096; // pixels

QString TitleOf(const ITreeItem* node, const QString& id)
{
    const UiStateDocking* const root = UiStateDocking::FindRoot(node);
    return root ? root->GetTitle(id) : QString();
}

void KeepTitle(ITreeItem* node, const QString& id, const QString& title)
{
    if (UiStateDocking* const root = UiStateDocking::FindRoot(node))
        root->SetTitle(id, title);
}

/// Bounded, so that the far corner of a rectangle is a number too.
int ReadLength(const QJsonObject& json, QLatin1String key)
{
    return qBound(-QWIDGETSIZE_MAX, json.value(key).toInt(0), QWIDGETSIZE_MAX);
}

/// No window system shows windows of any size; what a screen can hold it must be able to take.
QSize FitToScreen(const QSize& size)
{
    const QSize room = QGuiApplication::primaryScreen()->virtualSize();
    return size.boundedTo(room.expandedTo(QSize(c_large_window, c_large_window)));
}

QString NameOf(const QWidget* widget)
{
    return qobject_cast<const DockWidget*>(widget) ? widget->objectName() : QString(c_spacer_id);
}

} // namespace

UiStateDockPage::UiStateDockPage(const QString& id) : UiStateItem(id) {}

UiStateDockPage::UiStateDockPage(const QJsonObject& json) : UiStateItem(json) {}

UiStateDockPage::UiStateDockPage(const DockWidget& panel, const QWidget& page)
    : UiStateItem(page.objectName())
{
    SetVisible(!panel.IsExplicitlyHidden(&page));
}

UiStateDockPage::UiStateDockPage(const UiStateDockPage& other) = default;

UiStateDockPage::~UiStateDockPage() = default;

UiProfileItem* UiStateDockPage::Clone() const
{
    return new UiStateDockPage(*this);
}

QJsonObject UiStateDockPage::ToJson() const
{
    QJsonObject json = UiStateItem::ToJson();
    json.insert(c_key_title, GetTitle());
    return json;
}

bool UiStateDockPage::FromJson(const QJsonObject& json)
{
    KeepTitle(this, GetName(), json.value(c_key_title).toString());
    return UiStateItem::FromJson(json);
}

QString UiStateDockPage::GetTitle() const
{
    return TitleOf(this, GetName());
}

QString UiStateDockPage::GetDisplayTitle() const
{
    return TranslatedPageTitle(GetName(), GetTitle());
}

/// A field that is written only when it differs from its default.
struct UiStateDockWidget::Flag
{
    QLatin1String key;
    bool UiStateDockWidget::*field;
    bool value;
};

const std::vector<UiStateDockWidget::Flag>& UiStateDockWidget::_Flags()
{
    static const std::vector<Flag> s_flags = {
        {QLatin1String("title_visible"), &UiStateDockWidget::m_title_visible, true},
        {QLatin1String("minimized"), &UiStateDockWidget::m_minimized, false},
        {QLatin1String("minimizable"), &UiStateDockWidget::m_minimizable, true},
        {QLatin1String("closeable"), &UiStateDockWidget::m_closeable, true},
        {QLatin1String("movable"), &UiStateDockWidget::m_movable, true},
    };
    return s_flags;
}

UiStateDockWidget::UiStateDockWidget(const QString& id) : TUiState(id) {}

UiStateDockWidget::UiStateDockWidget(const QJsonObject& json) : TUiState(json) {}

UiStateDockWidget::UiStateDockWidget(QWidget* widget) : TUiState(NameOf(widget))
{
    auto* const panel = qobject_cast<DockWidget*>(widget);
    if (!panel) {
        m_spacer = true;
        return;
    }
    mp_widget = panel;
    SetPersistence(panel->IsDeleteOnEmpty() ? ipOrdinary : ipBuiltIn);
    // A panel that is only away while the backstage is open was not hidden by the user.
    const bool away = panel->GetManager()->_Impl()->hidden.contains(panel);
    SetVisible(away || !panel->IsExplicitlyHidden());
    // What folded for want of room is not the user's wish: it opens again where there is room.
    const bool no_room =
        panel->GetToolboxSite() && (panel->IsForcedCollapsed() || panel->_Impl()->folded_for_room);
    m_minimized = panel->IsCollapsed() && !no_room;
    m_minimizable = panel->IsCollapsible();
    m_title_visible = panel->IsTitleEnabled();
    m_movable = panel->IsMovable();
    m_geometry = panel->geometry();
    for (int i = 0; i < panel->GetCount(DockWidget::All); ++i)
        AppendChild(
            new UiStateDockPage(*panel, *panel->GetPageAt(i, DockWidget::All)->GetWidget()));
}

UiStateDockWidget::UiStateDockWidget(const UiStateDockWidget& other) = default;

UiStateDockWidget::~UiStateDockWidget() = default;

QJsonObject UiStateDockWidget::ToJson() const
{
    QJsonObject json = TUiState::ToJson();
    if (m_spacer) {
        json.insert(c_key_spacer, true);
        return json;
    }
    json.insert(c_key_width, m_geometry.width());
    json.insert(c_key_height, m_geometry.height());
    json.insert(c_key_top, m_geometry.top());
    json.insert(c_key_left, m_geometry.left());
    json.insert(c_key_title, GetTitle());
    for (const Flag& flag : _Flags()) {
        if (this->*flag.field != flag.value)
            json.insert(flag.key, !flag.value);
    }
    return json;
}

bool UiStateDockWidget::FromJson(const QJsonObject& json)
{
    m_spacer = json.value(c_key_spacer).toBool(false);
    if (!m_spacer) {
        m_geometry = QRect(ReadLength(json, c_key_left), ReadLength(json, c_key_top),
                           ReadLength(json, c_key_width), ReadLength(json, c_key_height));
        KeepTitle(this, GetName(), json.value(c_key_title).toString());
        for (const Flag& flag : _Flags())
            this->*flag.field = json.value(flag.key).toBool(flag.value);
    }
    return TUiState::FromJson(json);
}

QString UiStateDockWidget::_GetSubitemsTag() const
{
    return QStringLiteral("pages");
}

QString UiStateDockWidget::GetTitle() const
{
    return TitleOf(this, GetName());
}

QString UiStateDockWidget::GetDisplayTitle() const
{
    return TranslatedPanelTitle(GetTitle());
}

DockWidget* UiStateDockWidget::Materialize()
{
    const bool alive = mp_widget && !mp_widget->_Impl()->destroying;
    if (alive || m_spacer)
        return mp_widget;
    DockManager* const manager = LiveDockManager();
    if (!manager)
        return nullptr;

    mp_widget = manager->CreateDockWidget();
    DockWidget& panel = *mp_widget;
    panel.setVisible(false);
    panel.SetName(GetName().isEmpty() ? manager->_Impl()->UniqueName() : GetName());
    panel.SetDeleteOnClose(false);
    panel.SetDeleteOnEmpty(!IsPersistent());
    panel.SetOwnWidgets(false);
    panel.SetFitToCurrent(true);
    UiStateDocking* const root = UiStateDocking::FindRoot(this);
    panel.SetForcedTitle(root ? root->ShowPanelTitle(GetName()) : GetDisplayTitle());
    panel.SetTitleEnabled(m_title_visible);
    panel.SetClosable(m_closeable);
    panel.SetCollapsed(m_minimized, false);
    panel.SetCollapsible(m_minimizable);
    panel.SetMovable(m_movable);
    _AddPages(panel);
    return mp_widget;
}

void UiStateDockWidget::GivePlace(DockWidget& panel) const
{
    // In a folded site a panel has no width, but a place.
    const QSize size = m_geometry.size();
    if (!size.isNull() && size.width() >= 0 && size.height() >= 0)
        panel.setGeometry(QRect(m_geometry.topLeft(), FitToScreen(size)));
}

void UiStateDockWidget::ShowAsStored(DockWidget& panel) const
{
    const QPointer<DockWidget> guard(&panel);
    panel.setVisible(IsVisible());
    if (guard && panel.GetCount(DockWidget::Visible) == 0)
        panel.QWidget::setVisible(false);
}

void UiStateDockWidget::_AddPages(DockWidget& panel)
{
    IWidgetFactory* const factory = IWidgetFactory::GetInstance();
    if (!factory)
        return;
    UiStateDocking* const root = UiStateDocking::FindRoot(this);
    const QPointer<DockWidget> guard(&panel);
    for (const UiStateDockPage* page : _GetChildren()) {
        QWidget* const widget = factory->CreatePageWidget(page->GetName());
        if (!widget)
            continue;
        // The identifier under which the page is stored again.
        if (widget->objectName().isEmpty())
            widget->setObjectName(page->GetName());
        const QString title = root ? root->ShowPageTitle(page->GetName()) : page->GetDisplayTitle();
        if (!title.isEmpty())
            widget->setWindowTitle(title);
        if (auto* const dock_page = dynamic_cast<IDockPage*>(widget))
            panel.AddPage(dock_page);
        else
            panel.AddWidget(widget);
        if (!guard)
            return;
        panel.SetPageVisible(widget, page->IsVisible());
        if (!guard)
            return;
    }
}

void UiStateDockWidget::_Activate(ActivationMode)
{
    const QPointer<DockWidget> panel = Materialize();
    if (!panel)
        return;
    if (m_geometry.isValid()) {
        const QSize size = FitToScreen(m_geometry.size());
        panel->resize(size);
        // A page that is used again must not bring the size that it had in another layout.
        IDockPage* const page = panel->GetCurrentPage();
        const QSize open = page ? page->GetPrefferedSize() : QSize();
        if (page && !m_minimized)
            page->SetPrefferedSize(size);
        else if (page && open.isValid())
            page->SetPrefferedSize(
                {size.width(), open.height()}); // how high it opens is not stored
    }
    panel->SetFloated(m_geometry.topLeft());
    if (panel)
        ShowAsStored(*panel);
}

} // namespace ovk
