#pragma once

#include <QtCore/QPointer>
#include <QtGui/QIcon>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

namespace Qtitan {

/// The tool tip of the ribbon: a bold title, a wrapped body and an icon beside it.
class OVK_EXPORT RibbonToolTip : public QWidget
{
    Q_OBJECT
public:
    /// How wide the text of a tool tip may become.
    enum WrapMode
    {
        NativeWrap = 0, ///< Wrapped at the usual width, 205 pixels at 96 dpi.
        WideWrap = 1,   ///< Wrapped at half the width of the screen.
        NoWrap = 2      ///< Not wrapped; only the line breaks of the text count.
    };

    /// Sets the wrap mode of all tool tips from now on. Values out of range count as NativeWrap.
    static void setWrapMode(WrapMode mode);
    static WrapMode wrapMode();

    /// Shows a tool tip at a global position, moved where it would leave the screen. With no title,
    /// no body and no icon the current one is hidden. The tip goes when the pointer leaves
    /// `widget`, which may be null, or when it was read; a disabled widget's tip says so by its look.
    static void showToolTip(const QPoint& position, const QString& title, const QString& body,
                            const QIcon& icon, QWidget* widget);
    static void hideToolTip();
    /// The tool tip on the screen, null when there is none.
    static RibbonToolTip* current();

    QString title() const;
    QString body() const;
    QIcon icon() const;

    QSize sizeHint() const override;
    ~RibbonToolTip() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit RibbonToolTip(QWidget* parent);
    void setContents(const QString& title, const QString& body, const QIcon& icon, QWidget* widget);
    void placeAt(const QPoint& position);

    struct Layout;
    Layout layoutContents() const;

    QString m_title;
    QString m_body;
    QIcon m_icon;
    QPointer<QWidget> m_widget;
    int m_hideTimer = 0;
};

} // namespace Qtitan
