#pragma once

#include <ovk/core/export.h>

#include <QFont>
#include <QHash>
#include <QSize>
#include <QString>
#include <QStyledItemDelegate>

namespace ovk {

class TreeEdit;

/// The delegate of a whole TreeEdit, which passes the work to those of the rows.
class OVK_EXPORT TreeItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TreeItemDelegate(TreeEdit* parent);
    ~TreeItemDelegate() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    friend class TreeEdit;

    bool _IsCurrentTitle(const QModelIndex& index) const;
    /// Measures anew from now on: the look of the view changed.
    void _ForgetSizes();

    /// The size hints of titles in m_sizes_font. Views measure all rows several times over while
    /// they come up.
    mutable QHash<QString, QSize> m_sizes;
    mutable QFont m_sizes_font;
};

} // namespace ovk
