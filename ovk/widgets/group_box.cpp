#include "ovk/widgets/group_box.h"

#include <QChildEvent>

namespace ovk {

struct GroupBox::Private
{
    bool collapsive = true;
    bool saved_flat = false;
};

GroupBox::GroupBox(QWidget* parent) : GroupBox(QString(), parent) {}

GroupBox::GroupBox(const QString& title, QWidget* parent)
    : QGroupBox(title, parent), mp_private(std::make_unique<Private>())
{
    setCheckable(true);
    setChecked(true);
    connect(this, &QGroupBox::toggled, this, &GroupBox::setExpanded);
}

GroupBox::~GroupBox() = default;

bool GroupBox::isCollapsive() const
{
    return mp_private->collapsive;
}

void GroupBox::setCollapsive(bool collapsive)
{
    if (mp_private->collapsive == collapsive)
        return;
    mp_private->collapsive = collapsive;
    if (!collapsive)
        setExpanded(true);
    else if (!isChecked())
        setExpanded(false);
}

void GroupBox::setCollapsed(bool collapsed)
{
    setExpanded(!collapsed);
}

void GroupBox::setExpanded(bool expanded)
{
    if (!mp_private->collapsive && !expanded)
        return;
    const QObjectList contents = children();
    for (QObject* child : contents) {
        if (child->isWidgetType())
            static_cast<QWidget*>(child)->setVisible(expanded);
    }
    if (expanded) {
        setFlat(mp_private->saved_flat);
    } else {
        mp_private->saved_flat = isFlat();
        setFlat(true);
    }
}

void GroupBox::childEvent(QChildEvent* event)
{
    // The base is left out on purpose: it would disable the children of an unchecked box, which
    // are to come back as they were.
    if (event->added() && event->child()->isWidgetType() && mp_private->collapsive && !isChecked())
        static_cast<QWidget*>(event->child())->hide();
}

} // namespace ovk

#include "moc_group_box.cpp"
