#include "ovk/widgets/color_edit.h"

#include "color_text_p.h"
#include "widget_accessibility_p.h"

#include "ovk/widgets/dlg_select_color.h"
#include "ovk/widgets/gallery_item_color.h"

#include <QAccessible>
#include <QAction>
#include <QFontMetrics>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOption>

#include <qtitan/ribbon.h>

#include <algorithm>

namespace ovk {

namespace {

constexpr QSize g_cell_size(17, 17);
/// Cells of a row of the palette, whose indices run down the columns.
constexpr int g_row_length = 8;
constexpr int g_standard_rows = 6;
constexpr int g_custom_rows = 2;
constexpr int g_least_cells = 2;

constexpr QSize g_least_size(59, 23);
constexpr int g_least_text_height = 14;

template <class Item> void AddRows(Qtitan::RibbonGalleryGroup& group, int rows)
{
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < g_row_length; ++column)
            group.addItem(std::make_unique<Item>(row + column * rows).release());
    }
}

} // namespace

ColorEdit::ColorEdit(QWidget* parent)
    : QToolButton(parent), mp_gallery_group(std::make_unique<Qtitan::RibbonGalleryGroup>()),
      mp_gallery(std::make_unique<Qtitan::RibbonGallery>())
{
    InstallWidgetAccessibility();
    const int margin = style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, this) / 2;
    m_margins = QMargins(margin, margin, margin, margin);
    _createPopup();
    connect(this, &QToolButton::clicked, this, &ColorEdit::_showPopup);
}

ColorEdit::~ColorEdit() = default;

void ColorEdit::_createPopup()
{
    _fillGallery();
    auto* const popup = Qtitan::OfficePopupMenu::createPopupMenu(this);
    mp_default_action = popup->addAction(tr("No color"));
    mp_default_action->setVisible(m_default_enabled);
    popup->addGallery(mp_gallery.get());
    popup->addSeparator();
    const QAction* const more = popup->addAction(tr("More Colors..."));
    setMenu(popup);
    setText(mp_default_action->text());

    connect(popup, &QMenu::aboutToShow, this, &ColorEdit::_updateGallery);
    connect(mp_default_action, &QAction::triggered, this, &ColorEdit::_onDefaultPressed);
    connect(mp_gallery.get(), &Qtitan::RibbonGallery::itemClicked, this,
            &ColorEdit::_onColorPicked);
    connect(more, &QAction::triggered, this, &ColorEdit::_showDialog);
}

void ColorEdit::_fillGallery()
{
    mp_gallery_group->setSize(g_cell_size);
    mp_gallery_group->addSeparator(tr("Standard Colors"));
    AddRows<GalleryItemStandardColor>(*mp_gallery_group, g_standard_rows);
    mp_gallery_group->addSeparator(tr("Custom Colors"));
    AddRows<GalleryItemCustomColor>(*mp_gallery_group, g_custom_rows);

    mp_gallery->setGalleryGroup(mp_gallery_group.get());
    mp_gallery->setMinimumItemCount(g_least_cells);
    mp_gallery->setMaximumItemCount(g_row_length);
    mp_gallery->setLabelsVisible(true);
    mp_gallery->setScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QColor ColorEdit::color() const
{
    return m_color;
}

bool ColorEdit::isNoColor() const
{
    return !m_color.isValid();
}

bool ColorEdit::defaultEnabled() const
{
    return m_default_enabled;
}

void ColorEdit::setDefaultEnabled(bool enabled)
{
    if (m_default_enabled == enabled)
        return;
    m_default_enabled = enabled;
    setToolButtonStyle(enabled ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
    mp_default_action->setVisible(enabled);
    update();
    if (!enabled && isNoColor())
        Q_EMIT defaultChanged(false);
}

QString ColorEdit::defaultText() const
{
    return text();
}

void ColorEdit::setDefaultText(const QString& text)
{
    setText(text);
}

QMargins ColorEdit::margins() const
{
    return m_margins;
}

void ColorEdit::setMargins(const QMargins& margins)
{
    m_margins = margins;
    update();
}

void ColorEdit::setMargins(int left, int top, int right, int bottom)
{
    setMargins(QMargins(left, top, right, bottom));
}

int ColorEdit::leftMargin() const
{
    return m_margins.left();
}

int ColorEdit::rightMargin() const
{
    return m_margins.right();
}

int ColorEdit::topMargin() const
{
    return m_margins.top();
}

int ColorEdit::bottomMargin() const
{
    return m_margins.bottom();
}

void ColorEdit::setLeftMargin(int margin)
{
    m_margins.setLeft(margin);
    update();
}

void ColorEdit::setRightMargin(int margin)
{
    m_margins.setRight(margin);
    update();
}

void ColorEdit::setTopMargin(int margin)
{
    m_margins.setTop(margin);
    update();
}

void ColorEdit::setBottomMargin(int margin)
{
    m_margins.setBottom(margin);
    update();
}

QIcon ColorEdit::noColorIcon() const
{
    return m_no_color_icon;
}

void ColorEdit::setNoColorIcon(const QIcon& icon)
{
    m_no_color_icon = icon;
    m_has_no_color_icon = !icon.isNull();
    update();
}

void ColorEdit::invokePopup()
{
    _showPopup();
}

void ColorEdit::invokeDialog()
{
    _showDialog();
}

void ColorEdit::setColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
#ifndef QT_NO_ACCESSIBILITY
    QAccessibleValueChangeEvent event(this, ColorText(m_color));
    QAccessible::updateAccessibility(&event);
#endif
    Q_EMIT colorChanged(m_color);
}

void ColorEdit::_onColorPicked(Qtitan::RibbonGalleryItem* item)
{
    if (const auto* const cell = qobject_cast<GalleryItemColor*>(item))
        setColor(cell->GetColor());
}

void ColorEdit::_onDefaultPressed()
{
    setColor(QColor());
}

void ColorEdit::_showDialog()
{
    DlgSelectColor dialog(this);
    dialog.setCurrentColor(m_color);
    if (dialog.exec() == QDialog::Accepted)
        setColor(dialog.selectedColor());
}

void ColorEdit::_showPopup()
{
    DlgSelectColor::UpdateCustomColors();
    const QScopedValueRollback<bool> loaded(m_colors_loaded, true);
    showMenu();
}

void ColorEdit::_updateGallery()
{
    // The arrow of a divided button opens the popup past the click.
    if (!m_colors_loaded)
        DlgSelectColor::UpdateCustomColors();
    Qtitan::RibbonGalleryItem* chosen = nullptr;
    const QList<Qtitan::RibbonGalleryItem*> items = mp_gallery_group->items();
    for (Qtitan::RibbonGalleryItem* const item : items) {
        const auto* const cell = qobject_cast<GalleryItemColor*>(item);
        if (!cell)
            continue;
        const QColor color = cell->GetColor();
        item->setToolTip(ColorText(color));
        if (!chosen && m_color.isValid() && color.rgba() == m_color.rgba())
            chosen = item;
    }
    mp_gallery->setCheckedItem(chosen);
}

void ColorEdit::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);

    QRect r = rect();
    if (popupMode() == QToolButton::MenuButtonPopup) {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        const QRect arrow = style()->subControlRect(QStyle::CC_ToolButton, &option,
                                                    QStyle::SC_ToolButtonMenu, this);
        if (isRightToLeft())
            r.setLeft(r.left() + arrow.width());
        else
            r.setRight(r.right() - arrow.width());
    }
    r = r.marginsRemoved(m_margins);

    if (m_color.isValid()) {
        QColor shown = m_color.toHsv();
        if (!isEnabled())
            shown.setHsv(shown.hsvHue(), shown.hsvSaturation() / 2, shown.value(), 255);
        QPainter(this).fillRect(r, shown);
    } else if (m_has_no_color_icon) {
        QPainter(this).drawPixmap(r, m_no_color_icon.pixmap(window()->windowHandle(), r.size()));
    }
}

QSize ColorEdit::sizeHint() const
{
    if (popupMode() == QToolButton::MenuButtonPopup) {
        QStyleOptionComboBox option;
        option.initFrom(this);
        const int height = std::max(fontMetrics().height(), g_least_text_height) + 2;
        return style()->sizeFromContents(QStyle::CT_ComboBox, &option,
                                         QSize(g_least_size.width(), height), this);
    }
    return QToolButton::sizeHint().expandedTo(g_least_size);
}

} // namespace ovk

#include "moc_color_edit.cpp"
