#include "ribbon_theme_data_p.h"

#include "draw_helpers.h"

#include <algorithm>

namespace Qtitan {
namespace {

using theme_data::LookRow;
using theme_data::Rows;
using theme_data::ThemeRows;
using theme_data::Tone;
using E = Element;

/// What an element is to the others: which one it resembles when no table names it, and which one
/// lies under it and lends it the ink of its text.
struct Relation
{
    Element element;
    const char* name;
    Element follows; ///< itself: without a row of its own it is bare
    Element ground;  ///< itself: it is a ground
};

constexpr Relation Relations[] = {
    {E::Caption, "Caption", E::Caption, E::Caption},
    {E::CaptionInactive, "CaptionInactive", E::Caption, E::CaptionInactive},
    {E::CaptionButtonHover, "CaptionButtonHover", E::ButtonHover, E::Caption},
    {E::CaptionButtonPressed, "CaptionButtonPressed", E::ButtonPressed, E::Caption},
    {E::CaptionCloseHover, "CaptionCloseHover", E::CaptionButtonHover, E::Caption},
    {E::CaptionClosePressed, "CaptionClosePressed", E::CaptionButtonPressed, E::Caption},
    {E::QuickAccess, "QuickAccess", E::QuickAccess, E::Caption},
    {E::TabStrip, "TabStrip", E::TabStrip, E::TabStrip},
    {E::TabHover, "TabHover", E::TabHover, E::TabStrip},
    {E::TabSelected, "TabSelected", E::TabSelected, E::TabSelected},
    {E::TabSelectedHover, "TabSelectedHover", E::TabSelected, E::TabSelected},
    {E::StripHover, "StripHover", E::ButtonHover, E::TabStrip},
    {E::StripPressed, "StripPressed", E::ButtonPressed, E::TabStrip},
    {E::StripChecked, "StripChecked", E::ButtonChecked, E::TabStrip},
    {E::StripCheckedHover, "StripCheckedHover", E::ButtonCheckedHover, E::TabStrip},
    {E::SystemButton, "SystemButton", E::SystemButton, E::TabStrip},
    {E::SystemButtonHover, "SystemButtonHover", E::SystemButton, E::TabStrip},
    {E::SystemButtonPressed, "SystemButtonPressed", E::SystemButton, E::TabStrip},
    {E::Page, "Page", E::Page, E::Page},
    {E::Group, "Group", E::Group, E::Page},
    {E::GroupHover, "GroupHover", E::GroupHover, E::Page},
    {E::GroupTitle, "GroupTitle", E::GroupTitle, E::Page},
    {E::GroupTitleHover, "GroupTitleHover", E::GroupTitle, E::Page},
    {E::GroupSeparator, "GroupSeparator", E::GroupSeparator, E::GroupSeparator},
    {E::Button, "Button", E::Button, E::Page},
    {E::ButtonHover, "ButtonHover", E::ButtonHover, E::Page},
    {E::ButtonPressed, "ButtonPressed", E::ButtonPressed, E::Page},
    {E::ButtonChecked, "ButtonChecked", E::ButtonChecked, E::Page},
    {E::ButtonCheckedHover, "ButtonCheckedHover", E::ButtonCheckedHover, E::Page},
    {E::ButtonSplitHover, "ButtonSplitHover", E::ButtonHover, E::Page},
    {E::CollapsedGroup, "CollapsedGroup", E::CollapsedGroup, E::Page},
    {E::CollapsedGroupHover, "CollapsedGroupHover", E::ButtonHover, E::Page},
    {E::CollapsedGroupPressed, "CollapsedGroupPressed", E::ButtonPressed, E::Page},
    {E::ScrollButton, "ScrollButton", E::ScrollButton, E::ScrollButton},
    {E::ScrollButtonHover, "ScrollButtonHover", E::ButtonHover, E::ScrollButton},
    {E::ScrollButtonPressed, "ScrollButtonPressed", E::ButtonPressed, E::ScrollButton},
    {E::BackstageColumn, "BackstageColumn", E::BackstageColumn, E::BackstageColumn},
    {E::BackstageHover, "BackstageHover", E::BackstageColumn, E::BackstageColumn},
    {E::BackstagePressed, "BackstagePressed", E::BackstageColumn, E::BackstageColumn},
    {E::BackstageSelected, "BackstageSelected", E::BackstageColumn, E::BackstageColumn},
    {E::BackstagePage, "BackstagePage", E::BackstagePage, E::BackstagePage},
    {E::KeyTip, "KeyTip", E::KeyTip, E::KeyTip},
    {E::ToolTip, "ToolTip", E::ToolTip, E::ToolTip},
    {E::Gallery, "Gallery", E::Gallery, E::Gallery},
    {E::GalleryHeading, "GalleryHeading", E::GalleryHeading, E::Gallery},
    {E::GalleryHover, "GalleryHover", E::ButtonHover, E::Gallery},
    {E::GallerySelected, "GallerySelected", E::ButtonChecked, E::Gallery},
    {E::Menu, "Menu", E::Menu, E::Menu},
    {E::MenuColumn, "MenuColumn", E::Menu, E::Menu},
    {E::MenuItem, "MenuItem", E::ButtonHover, E::Menu},
    {E::MenuItemDisabled, "MenuItemDisabled", E::MenuItemDisabled, E::Menu},
    {E::MenuHeading, "MenuHeading", E::MenuHeading, E::Menu},
    {E::MenuChecked, "MenuChecked", E::ButtonChecked, E::Menu},
    {E::Window, "Window", E::Window, E::Window},
    {E::PushButton, "PushButton", E::PushButton, E::PushButton},
    {E::PushButtonHover, "PushButtonHover", E::ButtonHover, E::PushButton},
    {E::PushButtonPressed, "PushButtonPressed", E::ButtonPressed, E::PushButton},
    {E::PushButtonChecked, "PushButtonChecked", E::ButtonChecked, E::PushButton},
    {E::PushButtonDefault, "PushButtonDefault", E::PushButton, E::PushButton},
    {E::Edit, "Edit", E::Edit, E::Edit},
    {E::EditHover, "EditHover", E::Edit, E::Edit},
    {E::EditFocus, "EditFocus", E::Edit, E::Edit},
    {E::EditDisabled, "EditDisabled", E::Window, E::EditDisabled},
    {E::Box, "Box", E::Edit, E::Edit},
    {E::BoxHover, "BoxHover", E::EditHover, E::Edit},
    {E::BoxPressed, "BoxPressed", E::ButtonSplitHover, E::Edit},
    {E::View, "View", E::View, E::View},
    {E::ViewAlternate, "ViewAlternate", E::View, E::View},
    {E::ItemHover, "ItemHover", E::ItemHover, E::View},
    {E::ItemSelected, "ItemSelected", E::ItemSelected, E::View},
    {E::ItemSelectedInactive, "ItemSelectedInactive", E::ItemSelected, E::View},
    {E::Header, "Header", E::Header, E::Header},
    {E::HeaderHover, "HeaderHover", E::ButtonHover, E::Header},
    {E::HeaderPressed, "HeaderPressed", E::ButtonPressed, E::Header},
    {E::ScrollGroove, "ScrollGroove", E::ScrollGroove, E::ScrollGroove},
    {E::ScrollHandle, "ScrollHandle", E::ScrollHandle, E::ScrollHandle},
    {E::ScrollHandleHover, "ScrollHandleHover", E::ScrollHandle, E::ScrollHandle},
    {E::ScrollHandlePressed, "ScrollHandlePressed", E::ScrollHandle, E::ScrollHandle},
    {E::DocumentTab, "DocumentTab", E::DocumentTab, E::DocumentTab},
    {E::DocumentTabHover, "DocumentTabHover", E::ButtonSplitHover, E::DocumentTab},
    {E::DocumentTabSelected, "DocumentTabSelected", E::DocumentTabSelected, E::DocumentTabSelected},
    {E::TabPane, "TabPane", E::TabPane, E::TabPane},
    {E::ProgressGroove, "ProgressGroove", E::ProgressGroove, E::ProgressGroove},
    {E::ProgressChunk, "ProgressChunk", E::ProgressChunk, E::ProgressChunk},
    {E::GroupBox, "GroupBox", E::GroupBox, E::Window},
    {E::DockTitle, "DockTitle", E::DockTitle, E::DockTitle},
    {E::DockFrame, "DockFrame", E::DockFrame, E::DockFrame},
    {E::ToolBar, "ToolBar", E::ToolBar, E::ToolBar},
    {E::StatusBar, "StatusBar", E::StatusBar, E::StatusBar},
    {E::Splitter, "Splitter", E::Splitter, E::Splitter},
};
static_assert(std::size(Relations) == ElementCount, "one relation for each element");

const Relation& RelationOf(Element element)
{
    return Relations[static_cast<std::size_t>(element)];
}

ThemeRows RowsOf(OfficeStyle::Theme theme)
{
    if (theme <= OfficeStyle::Office2007Aqua)
        return theme_data::Rows2007(theme);
    if (theme <= OfficeStyle::Office2010Black)
        return theme_data::Rows2010(theme);
    return theme_data::Rows2013(theme);
}

const LookRow* FindRow(const Rows& rows, Element element)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [element](const LookRow& row) { return row.element == element; });
    return found == rows.end() ? nullptr : found;
}

/// The element's own row, or that of the nearest element that it follows; null when it is bare.
const LookRow* RowFor(const ThemeRows& rows, Element element)
{
    for (;;) {
        if (const LookRow* row = FindRow(rows.own, element))
            return row;
        if (const LookRow* row = FindRow(rows.shared, element))
            return row;
        const Element next = RelationOf(element).follows;
        if (next == element)
            return nullptr;
        element = next;
    }
}

/// The palest shade of the text that still shows on all grounds.
QColor DisabledText(const QColor& text, const QVector<QColor>& grounds)
{
    // A little above the bar: what is drawn smoothed loses some.
    constexpr qreal wanted = RibbonTheme::DisabledContrast + 0.45;
    const QColor ground = DrawHelpers::mix(grounds.first(), grounds.last(), 0.5);
    for (int step = 66; step > 0; step -= 2) {
        const QColor pale = DrawHelpers::mix(text, ground, step / 100.0);
        const bool shows = std::all_of(grounds.begin(), grounds.end(), [&](const QColor& color) {
            return DrawHelpers::contrast(pale, color) >= wanted;
        });
        if (shows)
            return pale;
    }
    return text;
}

bool Reads(const QColor& text, const QVector<QColor>& grounds)
{
    return std::all_of(grounds.begin(), grounds.end(), [&text](const QColor& ground) {
        return DrawHelpers::contrast(text, ground) >= RibbonTheme::TextContrast;
    });
}

/// Makes the texts of a look right for what is under them. An own ground that is too light for
/// white at one end and too dark for black at the other is drawn together towards its middle.
void MakeLegible(ThemeLook& look, const QVector<QColor>& under)
{
    const bool own = !look.isTransparent();
    const QColor wanted = look.text;
    const ThemeLook first = look;
    for (int step = 0; step <= 4; ++step) {
        if (own) {
            look.top = DrawHelpers::mix(first.top, first.middle, step / 4.0);
            look.bottom = DrawHelpers::mix(first.bottom, first.middle, step / 4.0);
        }
        const QVector<QColor> grounds = own ? look.grounds() : under;
        look.text = DrawHelpers::legible(wanted, grounds, RibbonTheme::TextContrast);
        look.disabled = DisabledText(look.text, grounds);
        if (!own || Reads(look.text, grounds))
            return;
    }
}

/// Works the rows of a table out into colours, each element after the one that lies under it.
class LookMaker
{
public:
    LookMaker(OfficeStyle::Theme theme, const QColor& accent,
              std::array<ThemeLook, ElementCount>& looks)
        : m_rows(RowsOf(theme)), m_accent(accent), m_looks(looks)
    {
        m_made.fill(false);
    }

    void MakeAll()
    {
        for (const Relation& relation : Relations)
            Make(relation.element);
    }

private:
    QColor Color(const Tone& tone) const
    {
        const QColor base = QColor::fromRgb(tone.rgb);
        return tone.accent == 0 ? base : DrawHelpers::mix(base, m_accent, tone.accent / 100.0);
    }

    QColor Ground(const Tone& tone) const
    {
        return tone.kind == Tone::None ? QColor(0, 0, 0, 0) : Color(tone);
    }

    void Make(Element element)
    {
        const auto index = static_cast<std::size_t>(element);
        if (m_made[index])
            return;
        m_made[index] = true;
        const Element under = RelationOf(element).ground;
        if (under != element)
            Make(under);
        const ThemeLook& base = m_looks[static_cast<std::size_t>(under)];

        ThemeLook& look = m_looks[index];
        const LookRow* row = RowFor(m_rows, element);
        look.top = look.bottom = look.middle = look.border = QColor(0, 0, 0, 0);
        Tone text = Tone::Ink;
        if (row) {
            look.top = Ground(row->top);
            look.bottom = Ground(row->bottom);
            look.middle = row->middle.kind == Tone::Middle
                              ? DrawHelpers::mix(look.top, look.bottom, 0.5)
                              : Ground(row->middle);
            look.border = Ground(row->border);
            text = row->text;
        }
        const QVector<QColor> grounds = look.isTransparent() ? base.grounds() : look.grounds();
        if (text.kind == Tone::Ink)
            look.text = base.text;
        else if (text.kind == Tone::Contrast)
            look.text = DrawHelpers::textOn(grounds[1]);
        else
            look.text = Color(text);
        MakeLegible(look, grounds);
    }

    ThemeRows m_rows;
    QColor m_accent;
    std::array<ThemeLook, ElementCount>& m_looks;
    std::array<bool, ElementCount> m_made;
};

/// The elements that a high contrast palette shows in the colours of its selection.
constexpr Element HighlightedElements[] = {
    E::CaptionButtonHover, E::CaptionButtonPressed, E::CaptionCloseHover, E::CaptionClosePressed,
    E::TabHover, E::StripHover, E::StripPressed, E::StripChecked, E::StripCheckedHover,
    E::SystemButton, E::SystemButtonHover, E::SystemButtonPressed, E::ButtonHover, E::ButtonPressed,
    E::ButtonChecked, E::ButtonCheckedHover, E::CollapsedGroupHover, E::CollapsedGroupPressed,
    E::ScrollButtonHover, E::ScrollButtonPressed, E::BackstageHover, E::BackstagePressed,
    E::BackstageSelected, E::GalleryHover, E::GallerySelected, E::MenuItem, E::MenuChecked,
    E::PushButtonHover, E::PushButtonPressed, E::PushButtonChecked, E::ItemHover, E::ItemSelected,
    E::ItemSelectedInactive, E::HeaderHover, E::HeaderPressed, E::ScrollHandleHover,
    E::ScrollHandlePressed, E::DocumentTabHover, E::ProgressChunk,
};

/// The elements that stay without ground and border there.
constexpr Element BareElements[] = {E::QuickAccess, E::Group, E::GroupHover, E::GroupTitle,
                                    E::GroupTitleHover, E::Button, E::MenuItemDisabled};

template <std::size_t N>
bool Contains(const Element (&elements)[N], Element element)
{
    return std::find(std::begin(elements), std::end(elements), element) != std::end(elements);
}

const RibbonTheme* g_current = nullptr;

} // namespace

RibbonTheme::RibbonTheme(OfficeStyle::Theme theme, const QColor& accent)
    : m_theme(theme), m_family(RowsOf(theme).family), m_accent(accent)
{
    LookMaker(theme, accent, m_looks).MakeAll();
}

RibbonTheme::RibbonTheme(const QPalette& high_contrast)
    : m_theme(OfficeStyle::Office2013White), m_family(Family::Office2013), m_high_contrast(true),
      m_accent(high_contrast.color(QPalette::Highlight))
{
    const QColor ground = high_contrast.color(QPalette::Window);
    const QColor text = high_contrast.color(QPalette::WindowText);
    const QColor selected = high_contrast.color(QPalette::Highlight);
    const QColor selected_text = high_contrast.color(QPalette::HighlightedText);
    const QColor disabled = high_contrast.color(QPalette::Disabled, QPalette::WindowText);
    for (const Relation& relation : Relations) {
        ThemeLook& look = m_looks[static_cast<std::size_t>(relation.element)];
        const bool bare = Contains(BareElements, relation.element);
        const bool highlighted = Contains(HighlightedElements, relation.element);
        const QColor fill = bare ? QColor(0, 0, 0, 0) : highlighted ? selected : ground;
        look.top = look.middle = look.bottom = fill;
        look.border = bare ? QColor(0, 0, 0, 0) : text;
        const QVector<QColor> grounds{highlighted ? selected : ground};
        look.text = DrawHelpers::legible(highlighted ? selected_text : text, grounds, TextContrast);
        look.disabled = DrawHelpers::legible(disabled, grounds, DisabledContrast);
    }
}

bool RibbonTheme::isHighContrast(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const bool extreme = window.rgb() == QColor(Qt::black).rgb() || window.rgb() == QColor(Qt::white).rgb();
    return extreme && palette.color(QPalette::Base).rgb() == window.rgb()
           && palette.color(QPalette::Button).rgb() == window.rgb()
           && DrawHelpers::contrast(window, text) >= 12.0;
}

const RibbonTheme& RibbonTheme::current()
{
    if (g_current)
        return *g_current;
    static const RibbonTheme fallback(
        OfficeStyle::Office2007Blue, OfficeStyle::accentColor(OfficeStyle::AccentColorBlue));
    return fallback;
}

void RibbonTheme::setCurrent(const RibbonTheme* theme)
{
    g_current = theme;
}

bool RibbonTheme::isDark() const
{
    return DrawHelpers::luminance((*this)[Element::Window].middle) < 0.2;
}

ThemeLook RibbonTheme::tinted(Element element, const QColor& context, qreal amount) const
{
    ThemeLook look = (*this)[element];
    if (!context.isValid() || m_high_contrast)
        return look;
    const ThemeLook& base = (*this)[RelationOf(element).ground];
    const ThemeLook& ground = look.isTransparent() ? base : look;
    const QColor tops[] = {ground.top, ground.middle, ground.bottom};
    look.top = DrawHelpers::mix(tops[0], context, amount);
    look.middle = DrawHelpers::mix(tops[1], context, amount);
    look.bottom = DrawHelpers::mix(tops[2], context, amount);
    look.border = DrawHelpers::mix(look.border.alpha() ? look.border : look.middle, context, 0.6);
    MakeLegible(look, look.grounds());
    return look;
}

int RibbonTheme::cornerRadius() const
{
    return m_family == Family::Office2013 ? 0 : 3;
}

const char* RibbonTheme::name(Element element)
{
    return RelationOf(element).name;
}

Element RibbonTheme::groundOf(Element element)
{
    return RelationOf(element).ground;
}

QPalette RibbonTheme::palette() const
{
    const auto look = [this](Element element) -> const ThemeLook& { return (*this)[element]; };
    const ThemeLook& window = look(Element::Window);
    const ThemeLook& view = look(Element::View);
    const ThemeLook& edit = look(Element::Edit);
    const ThemeLook& button = look(Element::PushButton);
    const ThemeLook& selected = look(Element::ItemSelected);
    const ThemeLook& tip = look(Element::ToolTip);
    const bool dark = isDark();

    // Selected text in an edit: the strong accent where there is one, the list's colour elsewhere.
    const bool flat = m_family == Family::Office2013;
    const QColor highlight = flat ? m_accent : selected.middle;
    const QColor highlighted = flat ? DrawHelpers::textOn(m_accent) : selected.text;
    const QColor ground = window.middle;
    const QColor link = DrawHelpers::legible(flat ? m_accent : QColor(0x1F, 0x5F, 0xBF),
                                             {view.middle, ground}, TextContrast);

    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const QColor& color, const QColor& disabled) {
        palette.setColor(QPalette::Active, role, color);
        palette.setColor(QPalette::Inactive, role, color);
        palette.setColor(QPalette::Disabled, role, disabled);
    };
    const QColor disabled_base = look(Element::EditDisabled).middle;
    set(QPalette::Window, ground, ground);
    // Labels stand on bars as well as on windows.
    QVector<QColor> label_grounds{ground};
    for (const Element bar : {Element::StatusBar, Element::ToolBar, Element::DockFrame, Element::TabPane})
        label_grounds += look(bar).grounds();
    set(QPalette::WindowText, DrawHelpers::legible(window.text, label_grounds, TextContrast),
        DisabledText(window.text, label_grounds));
    set(QPalette::Base, view.middle, disabled_base);
    set(QPalette::AlternateBase, look(Element::ViewAlternate).middle, disabled_base);
    // One colour serves text on a base and on a disabled base, so it must show on both.
    set(QPalette::Text, edit.text, DisabledText(edit.text, {view.middle, disabled_base}));
    set(QPalette::Button, button.middle, button.middle);
    set(QPalette::ButtonText, DrawHelpers::legible(button.text, {ground, button.middle}, TextContrast),
        DisabledText(button.text, {ground, button.middle}));
    set(QPalette::BrightText, DrawHelpers::textOn(DrawHelpers::mix(ground, Qt::black, dark ? 0 : 0.7)),
        window.disabled);
    set(QPalette::Highlight, highlight, DrawHelpers::mix(ground, window.text, 0.2));
    set(QPalette::HighlightedText, highlighted, window.text);
    set(QPalette::ToolTipBase, tip.middle, tip.middle);
    set(QPalette::ToolTipText, tip.text, tip.disabled);
    set(QPalette::Link, link, window.disabled);
    set(QPalette::LinkVisited,
        DrawHelpers::legible(DrawHelpers::mix(link, QColor(0x80, 0x30, 0x90), 0.5),
                             {view.middle, ground}, TextContrast),
        window.disabled);
    set(QPalette::PlaceholderText, DisabledText(edit.text, {edit.middle}),
        DisabledText(edit.text, {disabled_base}));
    const QColor light = DrawHelpers::mix(ground, Qt::white, dark ? 0.18 : 0.7);
    const QColor shade = dark ? QColor(Qt::black) : window.text;
    set(QPalette::Light, light, light);
    set(QPalette::Midlight, DrawHelpers::mix(ground, light, 0.5), DrawHelpers::mix(ground, light, 0.5));
    // Views write their disabled rows in it, so it must read on their grounds.
    const QColor mid = DisabledText(edit.text, {view.middle, disabled_base, look(Element::ViewAlternate).middle});
    set(QPalette::Mid, mid, mid);
    set(QPalette::Dark, DrawHelpers::mix(ground, shade, 0.38), DrawHelpers::mix(ground, shade, 0.38));
    set(QPalette::Shadow, DrawHelpers::mix(ground, shade, 0.7), DrawHelpers::mix(ground, shade, 0.7));
    return palette;
}

} // namespace Qtitan
