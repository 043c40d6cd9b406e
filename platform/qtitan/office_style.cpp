#include "office_style.h"

#include "ribbon_theme_p.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QWidget>

namespace Qtitan {
namespace {

constexpr QRgb Accents[] = {
    0xFF1BA1E2, // Blue
    0xFFA05000, // Brown
    0xFF339933, // Green
    0xFFA2C139, // Lime
    0xFFD80073, // Magenta
    0xFFF09609, // Orange
    0xFFE671B8, // Pink
    0xFFA200FF, // Purple
    0xFFE51400, // Red
    0xFF00ABA9, // Teal
};

bool IsTheme(int theme)
{
    return theme >= OfficeStyle::Office2007Blue && theme <= OfficeStyle::Office2013Dark;
}

/// The colour of links goes into a label's document when its text is read, so it is read again.
void RenewLinks(QLabel& label)
{
    const QString text = label.text();
    if (label.textFormat() == Qt::PlainText || !text.contains(QLatin1String("<a "), Qt::CaseInsensitive))
        return;
    label.clear();
    label.setText(text);
}

/// Tells every window that the style is another one: layouts are made anew and each widget is
/// painted once, when the event loop runs again.
void AnnounceStyle()
{
    QVector<QPointer<QWidget>> widgets;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->testAttribute(Qt::WA_WState_Polished))
            widgets.append(widget);
    }
    QEvent event(QEvent::StyleChange);
    for (const QPointer<QWidget>& widget : widgets) {
        if (!widget)
            continue;
        QCoreApplication::sendEvent(widget, &event);
        if (auto* label = qobject_cast<QLabel*>(widget.data()))
            RenewLinks(*label);
    }
}

} // namespace

class OfficeStyle::Impl
{
public:
    Impl() : plain(Office2007Blue, OfficeStyle::accentColor(AccentColorBlue)), theme(plain) {}

    Theme number = Office2007Blue;
    QColor accent = OfficeStyle::accentColor(AccentColorBlue);
    RibbonTheme plain; ///< what was asked for
    RibbonTheme theme; ///< what is drawn: the same, or what a high contrast palette demands
    QPointer<QApplication> application;
    bool restyling = false;

    /// True when the colours that are drawn with have changed.
    bool TakePalette()
    {
        const bool high = application && RibbonTheme::isHighContrast(QApplication::palette());
        if (high) {
            const bool same = theme.isHighContrast() && drawn == QApplication::palette();
            drawn = QApplication::palette();
            if (!same)
                theme = RibbonTheme(drawn);
            return !same;
        }
        const bool was_high = theme.isHighContrast();
        theme = plain;
        return was_high;
    }

    void Restyle(OfficeStyle* style)
    {
        plain = RibbonTheme(number, accent);
        if (!application) {
            theme = plain;
            Q_EMIT style->themeChanged();
            return;
        }
        restyling = true;
        if (!theme.isHighContrast())
            theme = plain;
        // The palette of the style is asked for anew; what the application set itself stays.
        QApplication::setPalette(QApplication::palette());
        TakePalette();
        restyling = false;
        Q_EMIT style->themeChanged();
        AnnounceStyle();
    }

private:
    QPalette drawn; ///< the high contrast palette that `theme` was made from
};

OfficeStyle::OfficeStyle() : QProxyStyle(QStringLiteral("Fusion")), m_impl(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("ribbon"));
}

OfficeStyle::~OfficeStyle()
{
    if (&RibbonTheme::current() == &m_impl->theme)
        RibbonTheme::setCurrent(nullptr);
}

OfficeStyle::Theme OfficeStyle::getTheme() const
{
    return m_impl->number;
}

void OfficeStyle::setTheme(Theme theme)
{
    if (!IsTheme(theme) || theme == m_impl->number)
        return;
    m_impl->number = theme;
    m_impl->Restyle(this);
}

void OfficeStyle::setAccentColor(AccentColor color)
{
    setAccentColor(accentColor(color));
}

void OfficeStyle::setAccentColor(const QColor& color)
{
    if (!color.isValid())
        return;
    const QColor opaque = QColor::fromRgb(color.rgb());
    if (opaque == m_impl->accent)
        return;
    m_impl->accent = opaque;
    if (m_impl->plain.family() == RibbonTheme::Family::Office2013)
        m_impl->Restyle(this);
}

QColor OfficeStyle::accentColor() const
{
    return m_impl->accent;
}

QColor OfficeStyle::accentColor(AccentColor color)
{
    const auto index = static_cast<uint>(color);
    return index < std::size(Accents) ? QColor::fromRgb(Accents[index]) : QColor();
}

const RibbonTheme& OfficeStyle::ribbonTheme() const
{
    return m_impl->theme;
}

void OfficeStyle::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    m_impl->application = application;
    m_impl->TakePalette();
    RibbonTheme::setCurrent(&m_impl->theme);
    connect(application, &QGuiApplication::paletteChanged, this, &OfficeStyle::followPalette);
}

void OfficeStyle::unpolish(QApplication* application)
{
    disconnect(application, nullptr, this, nullptr);
    m_impl->application = nullptr;
    if (&RibbonTheme::current() == &m_impl->theme)
        RibbonTheme::setCurrent(nullptr);
    QProxyStyle::unpolish(application);
}

void OfficeStyle::polish(QPalette& palette)
{
    if (!RibbonTheme::isHighContrast(palette))
        palette = m_impl->plain.palette();
}

void OfficeStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
}

void OfficeStyle::unpolish(QWidget* widget)
{
    QProxyStyle::unpolish(widget);
}

QPalette OfficeStyle::standardPalette() const
{
    return m_impl->plain.palette();
}

void OfficeStyle::followPalette()
{
    // What the system or the application brought may turn high contrast on or off.
    if (m_impl->restyling || !m_impl->TakePalette())
        return;
    Q_EMIT themeChanged();
    AnnounceStyle();
}

} // namespace Qtitan

#include "moc_office_style.cpp"
