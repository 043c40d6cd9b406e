#include "ovk/docking/dock_toolbox_site_handle_p.h"

#include "ovk/core/icons_controller.h"
#include "ovk/docking/dock_layout.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_title_p.h"
#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/dock_widget.h"

#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolButton>

namespace ovk {

namespace {

constexpr int c_thickness = 5;
constexpr int c_button_length = 17;

/// What a handle is called, by side.
struct SideTexts
{
    const char* name;
    const char* fold;
    const char* unfold;
};

constexpr SideTexts c_texts[] = {
    {QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Left panels"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Hide the panels at the left"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Show the panels at the left")},
    {QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Right panels"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Hide the panels at the right"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Show the panels at the right")},
    {QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Top panels"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Hide the panels at the top"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Show the panels at the top")},
    {QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Bottom panels"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Hide the panels at the bottom"),
     QT_TRANSLATE_NOOP("ovk::DockToolboxSiteHandle", "Show the panels at the bottom")},
};

QIcon Icon(const char* name)
{
    return IconsController::Load(QString::fromLatin1(name));
}

} // namespace

DockToolboxSiteHandle::DockToolboxSiteHandle(QWidget* parent)
    : QWidget(parent), mp_button(new QToolButton(this))
{
    mp_button->setAutoRaise(true);
    mp_button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    mp_button->setFocusPolicy(Qt::TabFocus);
    mp_button->installEventFilter(this);
    setAttribute(Qt::WA_Hover);
}

DockToolboxSiteHandle::~DockToolboxSiteHandle() = default;

void DockToolboxSiteHandle::Init(DockToolboxSite* site)
{
    mp_site = site;
    mp_button->setFixedSize(GetButtonSize());
    mp_button->setIconSize(GetButtonSize());
    mp_button->setCursor(Qt::ArrowCursor);
    setCursor(GetCursor());
    connect(mp_button, &QToolButton::clicked, this,
            [this] { mp_site->SetMinimized(!mp_site->IsMinimized()); });
    Update();
}

void DockToolboxSiteHandle::Update()
{
    // Asked for with each panel that comes or goes; what it looks like changes with the folding.
    if (m_dressed_for != mp_site->IsMinimized())
        Dress();
    if (!mp_site->IsMinimized() && !mp_site->_pp()->HasVisibleItem())
        hide();
    else
        setVisible(mp_site->count() > 1 && mp_site->IsMinimizeAvailable());
}

void DockToolboxSiteHandle::Dress()
{
    m_dressed_for = mp_site->IsMinimized();
    mp_button->setIcon(GetIcon());
    const SideTexts& texts = c_texts[mp_site->GetSide()];
    const QString meaning = tr(mp_site->IsMinimized() ? texts.unfold : texts.fold);
    mp_button->setToolTip(meaning);
    mp_button->setAccessibleName(meaning);
    setAccessibleName(tr(texts.name));
}

bool DockToolboxSiteHandle::IsSiteMinimized() const
{
    return mp_site && mp_site->IsMinimized();
}

int DockToolboxSiteHandle::Along(const QMouseEvent& event) const
{
    return mp_site->IsVertical() ? event.x() : event.y();
}

void DockToolboxSiteHandle::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_press_pos = Along(*event);
    m_pressed = true;
    update();
}

void DockToolboxSiteHandle::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    // The last step may not have moved the handle yet: the position is that of where it was.
    const QPoint before = pos();
    mp_site->_pp()->EnsureLaidOut();
    const QPoint shift = pos() - before;
    const int moved = mp_site->IsVertical() ? shift.x() : shift.y();
    mp_site->_pp()->ResizeBy(Along(*event) - moved - m_press_pos);
}

void DockToolboxSiteHandle::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = false;
    update();
}

void DockToolboxSiteHandle::paintEvent(QPaintEvent*)
{
    // Nothing but the button while it rests. The button is too small for a frame of focus, so the
    // whole handle shows it.
    const bool by_key =
        mp_button->hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    const bool warm = m_pressed || underMouse() || by_key;
    if (!warm)
        return;
    QStyleOption option;
    option.initFrom(this);
    option.state |= QStyle::State_AutoRaise | QStyle::State_MouseOver;
    option.state |= m_pressed ? QStyle::State_Sunken : QStyle::State_Raised;
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter, this);
}

void DockToolboxSiteHandle::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const QEvent::Type type = event->type();
    if (mp_site && (type == QEvent::StyleChange || type == QEvent::LanguageChange))
        Dress();
}

bool DockToolboxSiteHandle::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    if (event->type() == QEvent::FocusIn && watched == mp_button &&
        IsStrayFocus(*mp_button, static_cast<const QFocusEvent&>(*event)))
        QTimer::singleShot(0, this, &DockToolboxSiteHandle::PassFocusOn);
    return QWidget::eventFilter(watched, event);
}

void DockToolboxSiteHandle::PassFocusOn()
{
    if (!mp_button->hasFocus())
        return;
    QWidget* const central = mp_site->GetDockSite()->GetRootLayout()->GetCentralWidget();
    for (QWidget* next = nextInFocusChain(); central && next != this;
         next = next->nextInFocusChain()) {
        if ((next == central || central->isAncestorOf(next)) && next->isVisible() &&
            next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            next->setFocus(Qt::ActiveWindowFocusReason);
            return;
        }
    }
    mp_button->clearFocus();
}

QSize DockToolboxSiteHandleHorizontal::sizeHint() const
{
    return {c_thickness, 0};
}

QCursor DockToolboxSiteHandleHorizontal::GetCursor() const
{
    return Qt::SplitHCursor;
}

QSize DockToolboxSiteHandleHorizontal::GetButtonSize() const
{
    return {c_thickness, c_button_length};
}

void DockToolboxSiteHandleHorizontal::resizeEvent(QResizeEvent* event)
{
    DockToolboxSiteHandle::resizeEvent(event);
    GetButton()->move(0, (height() - GetButton()->height()) / 2);
}

QSize DockToolboxSiteHandleVertical::sizeHint() const
{
    return {0, c_thickness};
}

QCursor DockToolboxSiteHandleVertical::GetCursor() const
{
    return Qt::SplitVCursor;
}

QSize DockToolboxSiteHandleVertical::GetButtonSize() const
{
    return {c_button_length, c_thickness};
}

void DockToolboxSiteHandleVertical::resizeEvent(QResizeEvent* event)
{
    DockToolboxSiteHandle::resizeEvent(event);
    GetButton()->move((width() - GetButton()->width()) / 2, 0);
}

QIcon DockToolboxSiteHandleLeft::GetIcon() const
{
    return Icon(IsSiteMinimized() ? "DockCollapseRight" : "DockCollapseLeft");
}

QIcon DockToolboxSiteHandleRight::GetIcon() const
{
    return Icon(IsSiteMinimized() ? "DockCollapseLeft" : "DockCollapseRight");
}

QIcon DockToolboxSiteHandleTop::GetIcon() const
{
    return Icon(IsSiteMinimized() ? "DockCollapseDown" : "DockCollapseUp");
}

QIcon DockToolboxSiteHandleBottom::GetIcon() const
{
    return Icon(IsSiteMinimized() ? "DockCollapseUp" : "DockCollapseDown");
}

} // namespace ovk

#include "moc_dock_toolbox_site_handle_p.cpp"
