#include "ribbon_style_draw_p.h"

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace Qtitan {
namespace style_draw {
namespace {

/// The rows of a combo box's list, drawn as rows of other lists are. Qt's own delegate draws them
/// without the style.
class ComboDelegate : public QStyledItemDelegate
{
public:
    explicit ComboDelegate(QAbstractItemView* view) : QStyledItemDelegate(view) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        if (!IsSeparator(index)) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        const ThemeLook& look = RibbonTheme::current()[Element::MenuColumn];
        painter->fillRect(option.rect.left(), option.rect.center().y(), option.rect.width(), 1,
                          look.border);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        if (IsSeparator(index))
            return QSize(0, Px(option.widget, 5));
        return QStyledItemDelegate::sizeHint(option, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // A list that is open is in use, though its window is not the active one.
        option->state |= QStyle::State_Active;
    }

private:
    static bool IsSeparator(const QModelIndex& index)
    {
        return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
    }
};

} // namespace

void UseComboDelegate(QWidget& widget)
{
    auto* view = qobject_cast<QAbstractItemView*>(&widget);
    if (view && view->inherits("QComboBoxListView") && view->itemDelegate() &&
        view->itemDelegate()->inherits("QComboBoxDelegate"))
        view->setItemDelegate(new ComboDelegate(view));
}

} // namespace style_draw
} // namespace Qtitan
