#include "ovk/ui_state/ui_state_toolbar.h"

#include "ovk/core/pimpl_basics.h"
#include "ovk/main_window/work_area.h"
#include "ovk/ui_state/live_sites_p.h"
#include "ovk/ui_state/site_contents_p.h"

#include <QtCore/QJsonObject>
#include <QtCore/QPointer>
#include <QtWidgets/QToolBar>

namespace ovk {

namespace {

const QLatin1String key_title("title");
const QLatin1String key_break("break");
const QLatin1String key_floating("floating");
const QLatin1String key_movable("movable");
const QLatin1String key_area("area");

/// The area to place a bar in; a number of a file that is no area means the top.
Qt::ToolBarArea LegalArea(int area)
{
    switch (area) {
    case Qt::LeftToolBarArea:
    case Qt::RightToolBarArea:
    case Qt::TopToolBarArea:
    case Qt::BottomToolBarArea:
        return static_cast<Qt::ToolBarArea>(area);
    default:
        return Qt::TopToolBarArea;
    }
}

} // namespace

class UiStateToolbar::Impl : public PimplBasics<UiStateToolbar>
{
public:
    explicit Impl(UiStateToolbar& owner) : PimplBasics(owner) {}
    Impl(UiStateToolbar& owner, const Impl& other)
        : PimplBasics(owner), m_title(other.m_title), m_break(other.m_break),
          m_floating(other.m_floating), m_movable(other.m_movable), m_area(other.m_area)
    {
    }
    ~Impl() override { delete mp_widget; }

    void CreateWidget(WorkArea& workArea);
    void Fill();
    void UpdateTitle();
    void ClaimName(WorkArea& workArea);

    QString m_title;
    bool m_break = false;
    bool m_floating = false;
    bool m_movable = true;
    int m_area = Qt::TopToolBarArea;
    QPointer<QToolBar> mp_widget;
    /// What the widget was last given, which may be a translation of the title.
    QString m_live_title;
    SiteContents m_contents;
};

void UiStateToolbar::Impl::CreateWidget(WorkArea& workArea)
{
    m_live_title = owner().GetTitle();
    mp_widget = new QToolBar(m_live_title, nullptr);
    mp_widget->setObjectName(owner().GetName());
    if (m_floating && m_movable) {
        workArea.addToolBar(mp_widget);
    } else {
        workArea.addToolBar(LegalArea(m_area), mp_widget);
        if (m_break)
            workArea.insertToolBarBreak(mp_widget);
    }
    Fill();
}

void UiStateToolbar::Impl::Fill()
{
    FillToolBar(owner(), *mp_widget);
    m_contents.Take(owner());
}

void UiStateToolbar::Impl::UpdateTitle()
{
    m_live_title = owner().GetTitle();
    mp_widget->setWindowTitle(m_live_title);
}

/// Several layouts may hold a bar of the same identifier, and the main window tells bars apart by
/// their names alone: the bar on screen has the name, one that sleeps in another layout gives way.
void UiStateToolbar::Impl::ClaimName(WorkArea& workArea)
{
    const QList<QToolBar*> bars =
        workArea.findChildren<QToolBar*>(owner().GetName(), Qt::FindDirectChildrenOnly);
    for (QToolBar* bar : bars) {
        if (bar != mp_widget)
            bar->setObjectName(owner().GetName() + QLatin1String(" (asleep)"));
    }
    mp_widget->setObjectName(owner().GetName());
}

UiStateToolbar::UiStateToolbar() : UiStateToolbar(QString()) {}

UiStateToolbar::UiStateToolbar(const QString& id)
    : UiStateCommandSpots(id), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateToolbar::UiStateToolbar(const QJsonObject& json)
    : UiStateCommandSpots(json), mp_impl(std::make_unique<Impl>(*this))
{
}

UiStateToolbar::UiStateToolbar(const UiStateToolbar& other)
    : UiStateCommandSpots(other), mp_impl(std::make_unique<Impl>(*this, other._pr()))
{
}

UiStateToolbar::~UiStateToolbar() = default;

QString UiStateToolbar::GetTitle() const
{
    return SiteTitle("toolbars", _pr().m_title, _IsChangedByUser());
}

void UiStateToolbar::SetTitle(const QString& title)
{
    if (title == _pr().m_title)
        return;
    _SetChangedByUser(true);
    _pr().m_title = title;
    if (IsActive() && _pr().mp_widget)
        _pr().UpdateTitle();
}

void UiStateToolbar::SetMovable(bool movable)
{
    if (movable == _pr().m_movable)
        return;
    _pr().m_movable = movable;
    QToolBar* bar = _pr().mp_widget;
    if (!IsActive() || !bar)
        return;
    if (!movable && bar->isFloating()) {
        if (WorkArea* work_area = LiveWorkArea()) {
            const bool shown = !bar->isHidden();
            work_area->removeToolBar(bar);
            work_area->addToolBar(LegalArea(_pr().m_area), bar);
            // Taking a bar out of a main window hides it.
            bar->setVisible(shown);
        }
    }
    bar->setMovable(movable);
}

bool UiStateToolbar::IsMovable() const
{
    return _pr().m_movable;
}

void UiStateToolbar::SetArea(int area)
{
    if (area == _pr().m_area)
        return;
    _pr().m_area = area;
    if (!IsActive() || !_pr().mp_widget)
        return;
    if (WorkArea* work_area = LiveWorkArea())
        work_area->addToolBar(LegalArea(area), _pr().mp_widget);
}

int UiStateToolbar::GetArea() const
{
    return _pr().m_area;
}

bool UiStateToolbar::HasBreak() const
{
    return _pr().m_break;
}

void UiStateToolbar::ClearBreak()
{
    if (!_pr().m_break)
        return;
    _pr().m_break = false;
    if (!IsActive() || !_pr().mp_widget)
        return;
    if (WorkArea* work_area = LiveWorkArea())
        work_area->removeToolBarBreak(_pr().mp_widget);
}

bool UiStateToolbar::IsFloating() const
{
    return _pr().m_floating;
}

QToolBar* UiStateToolbar::GetWidget() const
{
    return _pr().mp_widget;
}

UiProfileItem* UiStateToolbar::Clone() const
{
    return new UiStateToolbar(*this);
}

QJsonObject UiStateToolbar::ToJson() const
{
    QJsonObject json = UiStateCommandSpots::ToJson();
    json.insert(key_title, _pr().m_title);
    json.insert(key_break, _pr().m_break);
    json.insert(key_floating, _pr().m_floating);
    json.insert(key_movable, _pr().m_movable);
    json.insert(key_area, _pr().m_area);
    return json;
}

bool UiStateToolbar::FromJson(const QJsonObject& json)
{
    _pr().m_title = json.value(key_title).toString();
    _pr().m_break = json.value(key_break).toBool(false);
    _pr().m_floating = json.value(key_floating).toBool(false);
    _pr().m_movable = json.value(key_movable).toBool(_pr().m_movable);
    // Not the top area of a new bar: existing files rely on it.
    _pr().m_area = json.value(key_area).toInt(0);
    return UiStateCommandSpots::FromJson(json);
}

void UiStateToolbar::SpotsChanged()
{
    if (!IsActive() || !_pr().mp_widget) {
        _pr().m_contents.Forget();
        return;
    }
    ClearToolBar(*_pr().mp_widget);
    _pr().Fill();
}

void UiStateToolbar::_OnChangeVisibility(bool visible)
{
    // A bar of a layout that is not on screen must not come up in another one.
    if (IsActive() && _pr().mp_widget)
        _pr().mp_widget->setVisible(visible);
}

void UiStateToolbar::_Activate(ActivationMode)
{
    WorkArea* work_area = LiveWorkArea();
    if (!work_area)
        return;
    if (!_pr().mp_widget) {
        _pr().CreateWidget(*work_area);
    } else if (!_pr().m_contents.IsCurrent(*this)) {
        ClearToolBar(*_pr().mp_widget);
        _pr().Fill();
    }
    _pr().ClaimName(*work_area);
    _pr().UpdateTitle();
    _pr().mp_widget->setMovable(_pr().m_movable);
    _pr().mp_widget->setVisible(IsVisible());
}

void UiStateToolbar::_Deactivate(ActivationMode)
{
    if (_pr().mp_widget)
        _pr().mp_widget->setVisible(false);
}

void UiStateToolbar::_Store()
{
    QToolBar* bar = _pr().mp_widget;
    WorkArea* work_area = LiveWorkArea();
    if (!bar || !work_area)
        return;
    // What the bar shows may be a translation of the title, which must not take its place.
    if (bar->windowTitle() != _pr().m_live_title) {
        _pr().m_title = bar->windowTitle();
        _pr().m_live_title = _pr().m_title;
    }
    _pr().m_area = work_area->toolBarArea(bar);
    _pr().m_break = work_area->toolBarBreak(bar);
    _pr().m_floating = bar->isFloating();
    _pr().m_movable = bar->isMovable();
}

void UiStateToolbar::_Validate(QSet<QString>& changed)
{
    // The language may have changed. A title that was given to the bar alone waits to be stored.
    if (_pr().mp_widget && _pr().mp_widget->windowTitle() == _pr().m_live_title)
        _pr().UpdateTitle();
    UiStateCommandSpots::_Validate(changed);
}

} // namespace ovk
