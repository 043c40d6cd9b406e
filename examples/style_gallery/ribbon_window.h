#pragma once

#include <qtitan/ribbon.h>

/// A small editor's main window: a ribbon of three pages and a contextual one, a quick access bar, a
/// backstage, a gallery of colours.
class RibbonGalleryWindow : public Qtitan::RibbonMainWindow
{
    Q_OBJECT

public:
    RibbonGalleryWindow();

    Qtitan::RibbonBackstageView* backstage() const { return m_backstage; }
    Qtitan::OfficePopupMenu* colorMenu() const { return m_colors; }

private:
    void AddHome();
    void AddView();
    void AddContextual();
    void AddCorner();
    void AddBackstage();

    Qtitan::RibbonBackstageView* m_backstage = nullptr;
    Qtitan::OfficePopupMenu* m_colors = nullptr;
};
