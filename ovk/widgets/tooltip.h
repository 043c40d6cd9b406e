#pragma once

#include <ovk/core/export.h>

#include <QByteArray>
#include <QLabel>
#include <QPixmap>
#include <QString>

namespace ovk {

/// A label, commonly a small picture, which tells a picture and a text in a tool tip while the
/// pointer is over it.
class OVK_EXPORT Tooltip : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString tooltip READ getMessage WRITE setMessage)
    Q_PROPERTY(QPixmap image READ getImage WRITE setImage)
    Q_PROPERTY(QPixmap icon READ getIcon WRITE setIcon)

public:
    explicit Tooltip(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~Tooltip() override;

    /// The text of the tool tip; may hold HTML.
    QString getMessage() const;
    /// Changes the text of the tool tip.
    void setMessage(const QString& message);
    /// The picture of the tool tip.
    QPixmap getImage() const;
    /// Changes the picture of the tool tip; a null one takes it away.
    void setImage(const QPixmap& image);
    /// The label's own picture.
    QPixmap getIcon() const;
    /// Changes the label's own picture, which is no part of the tool tip.
    void setIcon(const QPixmap& icon);

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    /// The tool tip: a table of the picture and the text, as far as there are any.
    QString _FormHtmlTooltipString() const;

private:
    QByteArray m_image;
    QString m_message;
};

} // namespace ovk
