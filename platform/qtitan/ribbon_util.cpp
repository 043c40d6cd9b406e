#include "ribbon_util_p.h"

#include "ribbon_bar.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_area_p.h"

#include <QAction>
#include <QKeySequence>
#include <QWidget>

namespace Qtitan {

namespace {

/// More than fits on any screen. Measuring and eliding what is longer takes long and shows nothing.
constexpr int MostShown = 400;

} // namespace

QString shortened(const QString& text)
{
    if (text.size() <= MostShown)
        return text;
    // Never through the middle of a character of two units.
    const int most = text.at(MostShown - 1).isHighSurrogate() ? MostShown - 1 : MostShown;
    return text.left(most) + QChar(0x2026);
}

QString plainText(const QString& title)
{
    const QString text = shortened(title);
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && ++i == text.size())
            break;
        result += text.at(i);
    }
    return result;
}

QString escapedText(const QString& text)
{
    QString result = text;
    return result.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString mnemonicOf(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) != QLatin1Char('&'))
            return text.at(i + 1).toUpper();
        ++i;
    }
    return QString();
}

void initPaintOption(RibbonPaintOption& option, const QWidget* widget)
{
    option.rect = widget->rect();
    option.font = widget->font();
    option.direction = widget->layoutDirection();
    option.scale = RibbonMetrics::of(widget).scale;
    option.devicePixelRatio = widget->devicePixelRatioF();
    option.state.setFlag(RibbonState::Disabled, !widget->isEnabled());
    option.state.setFlag(RibbonState::Hover, widget->isEnabled() && widget->underMouse());
    option.state.setFlag(RibbonState::Focus, widget->hasFocus());
    option.state.setFlag(RibbonState::Inactive, !widget->isActiveWindow());
}

RibbonBar* ribbonBarOf(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        if (const auto* bar = qobject_cast<const RibbonBar*>(w))
            return const_cast<RibbonBar*>(bar);
        if (const auto* area = qobject_cast<const RibbonPageArea*>(w))
            return area->bar();
    }
    return nullptr;
}

QString toolTipTitle(const QString& text, const QAction* action)
{
    QStringList shortcuts;
    if (action)
        for (const QKeySequence& sequence : action->shortcuts())
            if (!sequence.isEmpty())
                shortcuts.append(sequence.toString(QKeySequence::NativeText));
    if (shortcuts.isEmpty())
        return text;
    const QString keys = shortcuts.join(QLatin1String(", "));
    return text.isEmpty() ? keys : text + QLatin1String(" (") + keys + QLatin1Char(')');
}

QString toolTipBody(const QString& toolTip, const QString& text)
{
    // An action without a tool tip of its own gives its text once more.
    QString plain = toolTip;
    plain.remove(QLatin1String("..."));
    return plain.trimmed() == text.trimmed() ? QString() : toolTip;
}

} // namespace Qtitan
