#pragma once

#include <ovk/core/export.h>

#include <QColor>
#include <QIcon>
#include <QMargins>
#include <QToolButton>

#include <memory>

namespace Qtitan {
class RibbonGallery;
class RibbonGalleryGroup;
class RibbonGalleryItem;
} // namespace Qtitan

namespace ovk {

/// A button that shows a colour. A click opens a popup with the standard and the custom colours,
/// from which the full dialog is reached. With "defaultEnabled" the popup offers no colour as well.
class OVK_EXPORT ColorEdit : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(bool isNoColor READ isNoColor)
    Q_PROPERTY(bool defaultEnabled READ defaultEnabled WRITE setDefaultEnabled)
    Q_PROPERTY(QString defaultText READ defaultText WRITE setDefaultText)
    Q_PROPERTY(int leftMargin READ leftMargin WRITE setLeftMargin)
    Q_PROPERTY(int rightMargin READ rightMargin WRITE setRightMargin)
    Q_PROPERTY(int topMargin READ topMargin WRITE setTopMargin)
    Q_PROPERTY(int bottomMargin READ bottomMargin WRITE setBottomMargin)

public:
    /// Has no colour.
    explicit ColorEdit(QWidget* parent = nullptr);
    ~ColorEdit() override;

    /// The colour; an invalid one for no colour.
    QColor color() const;
    /// True if there is no colour.
    bool isNoColor() const;
    /// True if the user may choose no colour.
    bool defaultEnabled() const;
    /// Changes whether the user may choose no colour; the text of the button is shown then.
    void setDefaultEnabled(bool enabled);
    /// The text of the button, which is seen while there is no colour and no colour is allowed.
    QString defaultText() const;
    /// Changes the text of the button.
    void setDefaultText(const QString& text);

    /// The distances between the edges of the button and the colour, in pixels.
    QMargins margins() const;
    /// Changes the distances between the edges of the button and the colour.
    void setMargins(const QMargins& margins);
    /// The same, one by one.
    void setMargins(int left, int top, int right, int bottom);
    int leftMargin() const;
    int rightMargin() const;
    int topMargin() const;
    int bottomMargin() const;
    void setLeftMargin(int margin);
    void setRightMargin(int margin);
    void setTopMargin(int margin);
    void setBottomMargin(int margin);

    /// The picture that stands for no colour; null if there is none.
    QIcon noColorIcon() const;
    /// Changes the picture that stands for no colour; a null icon takes it away.
    void setNoColorIcon(const QIcon& icon);

    /// Opens the popup and returns when it is closed.
    void invokePopup();
    /// Opens the full dialog and returns when it is closed.
    void invokeDialog();

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Changes the colour; an invalid one is no colour.
    void setColor(const QColor& color);

Q_SIGNALS:
    /// The colour changed, by the user or by the program.
    void colorChanged(const QColor& color);
    /// The choice of no colour was withdrawn while there was no colour; \a isDefault is false.
    void defaultChanged(bool isDefault);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void _createPopup();
    void _fillGallery();
    void _onColorPicked(Qtitan::RibbonGalleryItem* item);
    void _onDefaultPressed();
    void _showDialog();
    void _showPopup();
    void _updateGallery();

    QColor m_color;
    bool m_default_enabled = false;
    QAction* mp_default_action = nullptr;
    QMargins m_margins;
    QIcon m_no_color_icon;
    bool m_has_no_color_icon = false;
    std::unique_ptr<Qtitan::RibbonGalleryGroup> mp_gallery_group;
    std::unique_ptr<Qtitan::RibbonGallery> mp_gallery;
    bool m_colors_loaded = false;
};

} // namespace ovk
