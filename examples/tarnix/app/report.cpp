#include "app/report.h"

#include "app/host.h"
#include "model/checks.h"
#include "view/scene_view.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Report)
};

QString Html(const Host& host)
{
    const Formatter& format = host.workspace.Format();
    const Plate& plate = host.GetScene().GetPlate();
    QString html =
        QStringLiteral("<h1>%1</h1><p>%2<br>%3</p><p><img src=\"view\" width=\"520\"></p>")
            .arg(host.workspace.BuildName().toHtmlEscaped(),
                 QLocale().toString(QDateTime::currentDateTime(), QLocale::LongFormat),
                 Texts::tr("Build volume: %1").arg(format.Size({plate.width, plate.depth, plate.height})));
    html += QStringLiteral("<h2>%1</h2><ul>").arg(Texts::tr("Findings"));
    for (const Finding& finding :
         CheckBuild(host.GetScene(), host.workspace.GetViewState().overhang_degrees, format)) {
        const QString subject =
            finding.subject.isEmpty()
                ? QString()
                : QStringLiteral("<b>%1:</b> ").arg(finding.subject.toHtmlEscaped());
        html += QStringLiteral("<li>%1%2</li>").arg(subject, finding.text.toHtmlEscaped());
    }
    html += QStringLiteral("</ul><h2>%1</h2>").arg(Texts::tr("Parts"));
    for (const Part& part : host.GetScene().Parts()) {
        html += QStringLiteral("<h3>%1</h3><table cellspacing=\"0\" cellpadding=\"2\">")
                    .arg(part.name.toHtmlEscaped());
        for (const auto& [title, value] : PartFigures(part, host.workspace.density, format))
            html += QStringLiteral("<tr><td width=\"120\">%1</td><td>%2</td></tr>")
                        .arg(title.toHtmlEscaped(), value.toHtmlEscaped());
        html += QStringLiteral("</table>");
    }
    return html;
}

} // namespace

QByteArray ReportPdf(Host& host)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle(host.workspace.BuildName());
    writer.setCreator(QCoreApplication::applicationName());
    writer.setResolution(96);
    QTextDocument document;
    document.setPageSize(QSizeF(writer.width(), writer.height()));
    document.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("view")),
                         host.view->Picture({1040, 640}));
    document.setHtml(Html(host));
    QPainter painter(&writer);
    const QSizeF page = document.pageSize();
    for (int i = 0; i < document.pageCount(); ++i) {
        if (i > 0)
            writer.newPage();
        painter.save();
        painter.translate(0.0, -i * page.height());
        document.drawContents(&painter,
                              QRectF(0.0, i * page.height(), page.width(), page.height()));
        painter.restore();
    }
    painter.end();
    return bytes;
}

} // namespace tarnix
