#include "app/ui_dump.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSaveFile>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

namespace tarnix {
namespace {

constexpr int k_calm_ms = 120;

QString TextOf(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget))
        return edit->text();
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        return box->currentText();
    if (const auto* bar = qobject_cast<const QStatusBar*>(widget))
        return bar->currentMessage();
    return widget->windowTitle();
}

/// The items of a menu as if they were widgets: where they are, and what they say.
void DescribeItems(const QMenu& menu, QJsonArray& children)
{
    for (QAction* action : menu.actions()) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        const QRect rect = menu.actionGeometry(action);
        const QPoint origin = menu.mapToGlobal(rect.topLeft());
        children.append(QJsonObject{{"class", "MenuItem"},
                                    {"command", action->objectName()},
                                    {"text", action->text()},
                                    {"x", origin.x()},
                                    {"y", origin.y()},
                                    {"width", rect.width()},
                                    {"height", rect.height()},
                                    {"enabled", action->isEnabled()},
                                    {"checked", action->isChecked()}});
    }
}

/// A part of a widget, as if it were one.
QJsonObject PartOf(const QWidget& widget, const char* kind, const QRect& rect, const QString& text)
{
    const QPoint origin = widget.mapToGlobal(rect.topLeft());
    return {{"class", kind},       {"text", text},
            {"x", origin.x()},     {"y", origin.y()},
            {"width", rect.width()}, {"height", rect.height()}};
}

/// The cells of a list that are in sight, and how deep they lie.
void DescribeCells(const QAbstractItemView& view, QJsonArray& children)
{
    if (!view.model() || !view.selectionModel())
        return;
    const QRect seen = view.viewport()->rect();
    for (int y = 1; y < seen.height();) {
        const QModelIndex row = view.indexAt({seen.center().x(), y});
        const QRect rect = view.visualRect(row);
        if (!row.isValid() || rect.height() <= 0)
            break;
        int level = 0;
        for (QModelIndex parent = row.parent(); parent.isValid(); parent = parent.parent())
            ++level;
        for (int column = 0; column < view.model()->columnCount(row.parent()); ++column) {
            const QModelIndex index = row.siblingAtColumn(column);
            QJsonObject cell = PartOf(*view.viewport(), "Cell", view.visualRect(index) & seen,
                                      index.data().toString());
            cell.insert("column", column);
            cell.insert("level", level);
            cell.insert("selected", view.selectionModel()->isSelected(index));
            cell.insert("checked", index.data(Qt::CheckStateRole).toInt() == Qt::Checked);
            children.append(cell);
        }
        y = rect.bottom() + 2;
    }
}

void DescribeTabs(const QTabBar& bar, QJsonArray& children)
{
    for (int i = 0; i < bar.count(); ++i) {
        QJsonObject tab = PartOf(bar, "Tab", bar.tabRect(i), bar.tabText(i));
        tab.insert("checked", bar.currentIndex() == i);
        children.append(tab);
    }
}

QJsonObject Describe(QWidget* widget)
{
    const QPoint origin = widget->mapToGlobal(QPoint(0, 0));
    QJsonObject node{{"class", QString::fromLatin1(widget->metaObject()->className())},
                     {"name", widget->objectName()},
                     {"text", TextOf(widget)},
                     {"x", origin.x()},
                     {"y", origin.y()},
                     {"width", widget->width()},
                     {"height", widget->height()},
                     {"enabled", widget->isEnabled()}};
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        node.insert("checked", button->isChecked());
    if (const auto* button = qobject_cast<const QToolButton*>(widget)) {
        if (const QAction* action = button->defaultAction())
            node.insert("command", action->objectName());
    }
    QJsonArray actions;
    for (const QAction* action : widget->actions()) {
        if (!action->objectName().isEmpty() && action->isVisible())
            actions.append(action->objectName());
    }
    if (!actions.isEmpty())
        node.insert("actions", actions);
    QJsonArray children;
    if (const auto* menu = qobject_cast<const QMenu*>(widget))
        DescribeItems(*menu, children);
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
        DescribeCells(*view, children);
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
        DescribeTabs(*tabs, children);
    for (QObject* child : widget->children()) {
        auto* child_widget = qobject_cast<QWidget*>(child);
        if (child_widget && child_widget->isVisible() && !child_widget->isWindow())
            children.append(Describe(child_widget));
    }
    if (!children.isEmpty())
        node.insert("children", children);
    return node;
}

} // namespace

UiDump::UiDump(const QString& path) : m_path(path)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(k_calm_ms);
    connect(&m_timer, &QTimer::timeout, this, &UiDump::Write);
    qApp->installEventFilter(this);
    m_timer.start();
}

QJsonObject UiDump::Tree()
{
    QJsonArray windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            windows.append(Describe(window));
    }
    return QJsonObject{{"windows", windows}};
}

bool UiDump::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Paint:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ActionChanged:
        if (!m_timer.isActive())
            m_timer.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void UiDump::Write()
{
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QJsonDocument(Tree()).toJson(QJsonDocument::Compact));
    file.commit();
}

} // namespace tarnix

#include "moc_ui_dump.cpp"
