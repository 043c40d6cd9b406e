#include "ovk/widgets/tooltip.h"

#include "widget_accessibility_p.h"

#include <QBuffer>
#include <QCursor>
#include <QEvent>
#include <QToolTip>

namespace ovk {

namespace {

constexpr int g_cell_spacing = 16;
constexpr int g_quality = 100;

} // namespace

Tooltip::Tooltip(QWidget* parent, Qt::WindowFlags flags) : QLabel(parent, flags)
{
    InstallWidgetAccessibility();
    installEventFilter(this);
}

Tooltip::~Tooltip() = default;

QString Tooltip::getMessage() const
{
    return m_message;
}

void Tooltip::setMessage(const QString& message)
{
    m_message = message;
}

QPixmap Tooltip::getImage() const
{
    QPixmap image;
    image.loadFromData(m_image, "PNG");
    return image;
}

void Tooltip::setImage(const QPixmap& image)
{
    QBuffer buffer(&m_image);
    buffer.open(QIODevice::WriteOnly | QIODevice::Truncate);
    image.save(&buffer, "PNG", g_quality);
}

QPixmap Tooltip::getIcon() const
{
    return pixmap(Qt::ReturnByValue);
}

void Tooltip::setIcon(const QPixmap& icon)
{
    setPixmap(icon);
}

bool Tooltip::eventFilter(QObject*, QEvent* event)
{
    if (m_image.isEmpty() && m_message.isEmpty())
        return false;
    if (event->type() == QEvent::Enter)
        QToolTip::showText(QCursor::pos(), _FormHtmlTooltipString());
    else if (event->type() == QEvent::Leave)
        QToolTip::hideText();
    return false;
}

QString Tooltip::_FormHtmlTooltipString() const
{
    QString imageCell;
    if (!m_image.isEmpty()) {
        const QString image = QStringLiteral("<img src='data:/image/png;base64, %0'></img>")
                                  .arg(QString::fromLatin1(m_image.toBase64()));
        imageCell = QStringLiteral("<td valign=\"middle\">%0</td>").arg(image);
    }
    QString textCell;
    if (!m_message.isEmpty())
        textCell = QStringLiteral("<td align=\"left\" valign=\"top\">%0</td>").arg(m_message);
    // All at once: marks in the message stay as they are.
    return QStringLiteral("<table cellspacing=%0><tr>%1%2</tr></table>")
        .arg(QString::number(g_cell_spacing), imageCell, textCell);
}

} // namespace ovk

#include "moc_tooltip.cpp"
