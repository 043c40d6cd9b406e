#pragma once

#include <qtitan/ribbon.h>
#include <qtitan/style.h>

class QComboBox;

/// Every widget of the library beside a property tree, under a ribbon that chooses how they look.
class GalleryWindow : public Qtitan::RibbonMainWindow
{
    Q_OBJECT

public:
    /// \a style is the application's.
    explicit GalleryWindow(Qtitan::OfficeStyle& style, QWidget* parent = nullptr);
    ~GalleryWindow() override;

    /// \name What the ribbon chooses
    /// \{
    void ShowInches(bool inches);
    void ShowSuffixInside(bool inside);
    void ShowRightToLeft(bool right_to_left);
    void ShowEnabled(bool enabled);
    /// \}

private:
    void AddStyleGroups();
    void AddStateGroup();
    void FillCenter();

    Qtitan::OfficeStyle& m_style;
    QWidget* m_content = nullptr;
};
