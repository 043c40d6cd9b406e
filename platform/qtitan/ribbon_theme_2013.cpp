#include "ribbon_theme_data_p.h"

namespace Qtitan {
namespace theme_data {
namespace {

using E = Element;
constexpr Tone None = Tone::None;
constexpr Tone Ink = Tone::Ink;
constexpr Tone Contrast = Tone::Contrast;

/// The accent at some percent over a ground.
constexpr Tone Accent(quint8 percent, quint32 over)
{
    return {over, percent};
}

constexpr Tone FullAccent = Accent(100, 0xFFFFFF);
// Marks of a pressed accent: the accent with a fifth of black.
constexpr Tone DeepAccent = Accent(80, 0x000000);
constexpr Tone SoftAccent = Accent(80, 0xFFFFFF);

// Flat grounds, the accent where something is going on.
constexpr LookRow SharedRows[] = {
    Flat(E::SystemButton, FullAccent, None, Contrast),
    Flat(E::SystemButtonHover, SoftAccent, None, Contrast),
    Flat(E::SystemButtonPressed, DeepAccent, None, Contrast),
    Flat(E::BackstageColumn, FullAccent, None, Contrast),
    Flat(E::BackstageHover, SoftAccent, None, Contrast),
    Flat(E::BackstagePressed, DeepAccent, None, Contrast),
    Flat(E::BackstageSelected, DeepAccent, None, Contrast),
    Flat(E::CaptionCloseHover, 0xE81123, None, 0xFFFFFF),
    Flat(E::CaptionClosePressed, 0xB80E1C, None, 0xFFFFFF),
    Flat(E::KeyTip, 0x3F3F3F, 0x3F3F3F, 0xFFFFFF),
    Flat(E::ProgressChunk, FullAccent, None, Contrast),
};

constexpr quint32 WhitePage = 0xFFFFFF;
constexpr LookRow WhiteRows[] = {
    Flat(E::Caption, 0xFFFFFF, 0xD4D4D4, 0x5E5E5E),
    Flat(E::CaptionInactive, 0xFFFFFF, 0xE1E1E1, 0x8E8E8E),
    Flat(E::CaptionButtonHover, 0xE5E5E5, None, 0x444444),
    Flat(E::CaptionButtonPressed, 0xCACACA, None, 0x262626),
    Flat(E::TabStrip, 0xFFFFFF, 0xD4D4D4, 0x666666),
    Flat(E::TabHover, None, None, FullAccent),
    Flat(E::TabSelected, 0xFFFFFF, 0xD4D4D4, FullAccent),
    Flat(E::Page, WhitePage, 0xD4D4D4, 0x444444),
    Flat(E::GroupTitle, None, None, 0x666666),
    Flat(E::GroupSeparator, 0xE1E1E1, None, Ink),
    Flat(E::ButtonHover, Accent(20, WhitePage), None, Ink),
    Flat(E::ButtonPressed, Accent(40, WhitePage), None, Ink),
    Flat(E::ButtonChecked, Accent(60, WhitePage), None, Ink),
    Flat(E::ButtonCheckedHover, Accent(80, WhitePage), None, Ink),
    Flat(E::ButtonSplitHover, Accent(10, WhitePage), Accent(30, WhitePage), Ink),
    Flat(E::CollapsedGroup, 0xFDFDFD, 0xD4D4D4, Ink),
    Flat(E::ScrollButton, 0xFFFFFF, 0xD4D4D4, 0x444444),
    Flat(E::BackstagePage, 0xFFFFFF, None, 0x262626),
    Flat(E::ToolTip, 0xFFFFFF, 0xBEBEBE, 0x444444),
    Flat(E::Menu, 0xFFFFFF, 0xC6C6C6, 0x262626),
    Flat(E::MenuColumn, 0xFFFFFF, 0xE1E1E1, 0x262626),
    Flat(E::MenuHeading, 0xF3F3F3, None, 0x444444),
    Flat(E::GalleryHeading, 0xF3F3F3, None, 0x444444),
    Flat(E::Gallery, 0xFFFFFF, 0xC6C6C6, 0x262626),
    Flat(E::Window, 0xF8F8F8, 0xD4D4D4, 0x262626),
    Flat(E::PushButton, 0xFDFDFD, 0xABABAB, 0x262626),
    Flat(E::PushButtonHover, Accent(12, WhitePage), FullAccent, 0x262626),
    Flat(E::PushButtonPressed, Accent(40, WhitePage), FullAccent, 0x262626),
    Flat(E::PushButtonDefault, 0xFDFDFD, FullAccent, 0x262626),
    Flat(E::Edit, 0xFFFFFF, 0xABABAB, 0x262626),
    Flat(E::EditHover, 0xFFFFFF, Accent(60, 0xABABAB), 0x262626),
    Flat(E::EditFocus, 0xFFFFFF, FullAccent, 0x262626),
    Flat(E::View, 0xFFFFFF, 0xC6C6C6, 0x262626),
    Flat(E::ViewAlternate, 0xF7F7F7, None, 0x262626),
    Flat(E::ItemHover, Accent(14, WhitePage), None, 0x262626),
    Flat(E::ItemSelected, Accent(40, WhitePage), None, 0x1A1A1A),
    Flat(E::ItemSelectedInactive, 0xE1E1E1, None, 0x262626),
    Flat(E::Header, 0xFFFFFF, 0xD4D4D4, 0x444444),
    Flat(E::ScrollGroove, 0xF3F3F3, None, 0x666666),
    Flat(E::ScrollHandle, 0xC6C6C6, 0xC6C6C6, 0x444444),
    Flat(E::ScrollHandleHover, 0xA6A6A6, 0xA6A6A6, 0x262626),
    Flat(E::ScrollHandlePressed, 0x7A7A7A, 0x7A7A7A, 0x000000),
    Flat(E::DocumentTab, 0xF3F3F3, 0xD4D4D4, 0x5A5A5A),
    Flat(E::DocumentTabSelected, 0xFFFFFF, 0xD4D4D4, FullAccent),
    Flat(E::TabPane, 0xFFFFFF, 0xD4D4D4, 0x262626),
    Flat(E::ProgressGroove, 0xEDEDED, 0xD4D4D4, 0x262626),
    Flat(E::GroupBox, None, 0xD4D4D4, 0x444444),
    Flat(E::DockTitle, 0xFFFFFF, 0xD4D4D4, 0x444444),
    Flat(E::DockFrame, 0xFFFFFF, 0xD4D4D4, 0x262626),
    Flat(E::ToolBar, 0xFFFFFF, 0xE1E1E1, 0x444444),
    Flat(E::StatusBar, 0xF1F1F1, 0xD4D4D4, 0x444444),
    Flat(E::Splitter, 0xF1F1F1, 0xD4D4D4, 0x8A8A8A),
};

constexpr quint32 GrayPage = 0xF3F3F3;
constexpr LookRow GrayRows[] = {
    Flat(E::Caption, 0xE6E6E6, 0xC8C8C8, 0x444444),
    Flat(E::CaptionInactive, 0xEDEDED, 0xD6D6D6, 0x808080),
    Flat(E::CaptionButtonHover, 0xD0D0D0, None, 0x333333),
    Flat(E::CaptionButtonPressed, 0xB8B8B8, None, 0x1A1A1A),
    Flat(E::TabStrip, 0xE6E6E6, 0xC8C8C8, 0x444444),
    Flat(E::TabHover, None, None, FullAccent),
    Flat(E::TabSelected, 0xF3F3F3, 0xC8C8C8, FullAccent),
    Flat(E::Page, GrayPage, 0xC8C8C8, 0x333333),
    Flat(E::GroupTitle, None, None, 0x5E5E5E),
    Flat(E::GroupSeparator, 0xD2D2D2, None, Ink),
    Flat(E::ButtonHover, Accent(20, GrayPage), None, Ink),
    Flat(E::ButtonPressed, Accent(40, GrayPage), None, Ink),
    Flat(E::ButtonChecked, Accent(60, GrayPage), None, Ink),
    Flat(E::ButtonCheckedHover, Accent(80, GrayPage), None, Ink),
    Flat(E::ButtonSplitHover, Accent(10, GrayPage), Accent(30, GrayPage), Ink),
    Flat(E::CollapsedGroup, 0xF9F9F9, 0xC8C8C8, Ink),
    Flat(E::ScrollButton, 0xF3F3F3, 0xC8C8C8, 0x333333),
    Flat(E::BackstagePage, 0xF8F8F8, None, 0x262626),
    Flat(E::ToolTip, 0xFFFFFF, 0xB4B4B4, 0x444444),
    Flat(E::Menu, 0xFBFBFB, 0xB4B4B4, 0x262626),
    Flat(E::MenuColumn, 0xFBFBFB, 0xDADADA, 0x262626),
    Flat(E::MenuHeading, 0xEBEBEB, None, 0x333333),
    Flat(E::GalleryHeading, 0xEBEBEB, None, 0x333333),
    Flat(E::Gallery, 0xFBFBFB, 0xB4B4B4, 0x262626),
    Flat(E::Window, 0xEBEBEB, 0xC8C8C8, 0x262626),
    Flat(E::PushButton, 0xF8F8F8, 0x9E9E9E, 0x262626),
    Flat(E::PushButtonHover, Accent(12, 0xFBFBFB), FullAccent, 0x262626),
    Flat(E::PushButtonPressed, Accent(40, GrayPage), FullAccent, 0x262626),
    Flat(E::PushButtonDefault, 0xF8F8F8, FullAccent, 0x262626),
    Flat(E::Edit, 0xFFFFFF, 0x9E9E9E, 0x262626),
    Flat(E::EditHover, 0xFFFFFF, Accent(60, 0x9E9E9E), 0x262626),
    Flat(E::EditFocus, 0xFFFFFF, FullAccent, 0x262626),
    Flat(E::View, 0xFDFDFD, 0xB4B4B4, 0x262626),
    Flat(E::ViewAlternate, 0xF4F4F4, None, 0x262626),
    Flat(E::ItemHover, Accent(14, 0xFDFDFD), None, 0x262626),
    Flat(E::ItemSelected, Accent(40, 0xFDFDFD), None, 0x1A1A1A),
    Flat(E::ItemSelectedInactive, 0xDADADA, None, 0x262626),
    Flat(E::Header, 0xF3F3F3, 0xC8C8C8, 0x333333),
    Flat(E::ScrollGroove, 0xE2E2E2, None, 0x5A5A5A),
    Flat(E::ScrollHandle, 0xB6B6B6, 0xB6B6B6, 0x333333),
    Flat(E::ScrollHandleHover, 0x969696, 0x969696, 0x1A1A1A),
    Flat(E::ScrollHandlePressed, 0x707070, 0x707070, 0xFFFFFF),
    Flat(E::DocumentTab, 0xE0E0E0, 0xC8C8C8, 0x4A4A4A),
    Flat(E::DocumentTabSelected, 0xFBFBFB, 0xC8C8C8, FullAccent),
    Flat(E::TabPane, 0xFBFBFB, 0xC8C8C8, 0x262626),
    Flat(E::ProgressGroove, 0xDEDEDE, 0xC8C8C8, 0x262626),
    Flat(E::GroupBox, None, 0xC8C8C8, 0x333333),
    Flat(E::DockTitle, 0xE6E6E6, 0xC8C8C8, 0x333333),
    Flat(E::DockFrame, 0xF3F3F3, 0xC0C0C0, 0x262626),
    Flat(E::ToolBar, 0xF3F3F3, 0xD2D2D2, 0x333333),
    Flat(E::StatusBar, 0xE1E1E1, 0xC8C8C8, 0x333333),
    Flat(E::Splitter, 0xE1E1E1, 0xC8C8C8, 0x7A7A7A),
};

constexpr quint32 DarkPage = 0x464646;
constexpr LookRow DarkRows[] = {
    Flat(E::Caption, 0x262626, 0x161616, 0xDADADA),
    Flat(E::CaptionInactive, 0x2B2B2B, 0x202020, 0x969696),
    Flat(E::CaptionButtonHover, 0x454545, None, 0xFFFFFF),
    Flat(E::CaptionButtonPressed, 0x606060, None, 0xFFFFFF),
    Flat(E::TabStrip, 0x333333, 0x666666, 0xFFFFFF),
    Flat(E::TabHover, 0x4F4F4F, None, 0xFFFFFF),
    Flat(E::TabSelected, 0x464646, 0x666666, 0xFFFFFF),
    Flat(E::Page, DarkPage, 0x666666, 0xFFFFFF),
    Flat(E::GroupTitle, None, None, 0xC6C6C6),
    Flat(E::GroupSeparator, 0x666666, None, Ink),
    Flat(E::ButtonHover, Accent(20, DarkPage), None, Ink),
    Flat(E::ButtonPressed, Accent(40, DarkPage), None, Ink),
    Flat(E::ButtonChecked, Accent(60, DarkPage), None, Ink),
    Flat(E::ButtonCheckedHover, Accent(80, DarkPage), None, Ink),
    Flat(E::ButtonSplitHover, Accent(10, DarkPage), Accent(30, DarkPage), Ink),
    Flat(E::CollapsedGroup, 0x505050, 0x6E6E6E, Ink),
    Flat(E::ScrollButton, 0x464646, 0x6E6E6E, 0xFFFFFF),
    Flat(E::BackstagePage, 0x2B2B2B, None, 0xF0F0F0),
    Flat(E::KeyTip, 0xF0F0F0, 0xF0F0F0, 0x262626),
    Flat(E::ToolTip, 0x2B2B2B, 0x767676, 0xF0F0F0),
    Flat(E::Menu, 0x363636, 0x666666, 0xF0F0F0),
    Flat(E::MenuColumn, 0x363636, 0x555555, 0xF0F0F0),
    Flat(E::MenuHeading, 0x444444, None, 0xF0F0F0),
    Flat(E::GalleryHeading, 0x444444, None, 0xF0F0F0),
    Flat(E::Gallery, 0x363636, 0x666666, 0xF0F0F0),
    Flat(E::Window, 0x383838, 0x5A5A5A, 0xF0F0F0),
    Flat(E::PushButton, 0x505050, 0x767676, 0xF5F5F5),
    Flat(E::PushButtonHover, Accent(20, 0x505050), Accent(80, 0x505050), 0xFFFFFF),
    Flat(E::PushButtonPressed, Accent(40, DarkPage), FullAccent, 0xFFFFFF),
    Flat(E::PushButtonDefault, 0x505050, FullAccent, 0xFFFFFF),
    Flat(E::Edit, 0x2B2B2B, 0x6E6E6E, 0xF0F0F0),
    Flat(E::EditHover, 0x2B2B2B, Accent(60, 0x6E6E6E), 0xF0F0F0),
    Flat(E::EditFocus, 0x2B2B2B, FullAccent, 0xFFFFFF),
    Flat(E::View, 0x2B2B2B, 0x5A5A5A, 0xF0F0F0),
    Flat(E::ViewAlternate, 0x313131, None, 0xF0F0F0),
    Flat(E::ItemHover, Accent(16, 0x333333), None, 0xF0F0F0),
    Flat(E::ItemSelected, Accent(45, 0x2B2B2B), None, 0xFFFFFF),
    Flat(E::ItemSelectedInactive, 0x4A4A4A, None, 0xF0F0F0),
    Flat(E::Header, 0x3C3C3C, 0x5A5A5A, 0xE6E6E6),
    Flat(E::ScrollGroove, 0x303030, None, 0xB4B4B4),
    Flat(E::ScrollHandle, 0x686868, 0x686868, 0xF0F0F0),
    Flat(E::ScrollHandleHover, 0x848484, 0x848484, 0xFFFFFF),
    Flat(E::ScrollHandlePressed, 0xA6A6A6, 0xA6A6A6, 0x000000),
    Flat(E::DocumentTab, 0x303030, 0x5A5A5A, 0xC8C8C8),
    Flat(E::DocumentTabSelected, 0x464646, 0x5A5A5A, 0xFFFFFF),
    Flat(E::TabPane, 0x3C3C3C, 0x5A5A5A, 0xF0F0F0),
    Flat(E::ProgressGroove, 0x2B2B2B, 0x5A5A5A, 0xF0F0F0),
    Flat(E::GroupBox, None, 0x5E5E5E, 0xF0F0F0),
    Flat(E::DockTitle, 0x333333, 0x5A5A5A, 0xF0F0F0),
    Flat(E::DockFrame, 0x383838, 0x5E5E5E, 0xF0F0F0),
    Flat(E::ToolBar, 0x3E3E3E, 0x5A5A5A, 0xF0F0F0),
    Flat(E::StatusBar, 0x2B2B2B, 0x5A5A5A, 0xE6E6E6),
    Flat(E::Splitter, 0x2B2B2B, 0x5A5A5A, 0x9A9A9A),
};

} // namespace

ThemeRows Rows2013(OfficeStyle::Theme theme)
{
    constexpr Rows own[] = {All(WhiteRows), All(GrayRows), All(DarkRows)};
    return {RibbonTheme::Family::Office2013, own[theme - OfficeStyle::Office2013White],
            All(SharedRows)};
}

} // namespace theme_data
} // namespace Qtitan
