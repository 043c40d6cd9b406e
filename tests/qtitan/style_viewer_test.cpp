#include "tests/support/test_main.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

/// The viewer of the themes, run as a program.
class StyleViewerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListNamesEveryThemeAndEveryScale();
    void allPicturesOfAThemeAreWrittenAndShowSomething();
    void aWrongThemeOrSetIsRefused();
};

namespace {

struct Run
{
    int code = -1;
    QString output;
};

Run RunViewer(const QStringList& arguments)
{
    QProcess viewer;
    viewer.start(QStringLiteral(STYLE_GALLERY_PROGRAM), arguments);
    Run run;
    if (!viewer.waitForFinished(240000) || viewer.exitStatus() != QProcess::NormalExit)
        return run;
    run.code = viewer.exitCode();
    run.output = QString::fromUtf8(viewer.readAllStandardOutput());
    return run;
}

QStringList Names(const QStringList& arguments)
{
    return RunViewer(QStringList(arguments) << QStringLiteral("--list"))
        .output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/// How many colours there are on a grid of points, and whether no half of the picture is empty.
int ColorsOf(const QImage& picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); y += 3)
        for (int x = 0; x < picture.width(); x += 3)
            colors.insert(picture.pixel(x, y));
    return colors.size();
}

} // namespace

void StyleViewerTest::theListNamesEveryThemeAndEveryScale()
{
    const QStringList names = Names({});
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
    const char* scenes[] = {
        "home",      "ribbon-1600", "ribbon-1000", "ribbon-800", "collapsed-group",
        "minimised", "peek",        "key-tips",    "tool-tip",   "gallery",
        "backstage", "panels",      "customize"};
    for (int theme = 0; theme < 11; ++theme) {
        for (const char* scene : scenes) {
            const QString name = QStringLiteral("100/%1-%2.png")
                                     .arg(theme, 2, 10, QLatin1Char('0'))
                                     .arg(QLatin1String(scene));
            QVERIFY2(names.contains(name), qPrintable(name));
        }
        QVERIFY(
            names.contains(QStringLiteral("200/%1-home.png").arg(theme, 2, 10, QLatin1Char('0'))));
    }
    QVERIFY(names.contains(QStringLiteral("120dpi/00-home.png")));
    QVERIFY(names.contains(QStringLiteral("144dpi/08-home.png")));
    QVERIFY(names.contains(QStringLiteral("100/black-states.png")));
    QVERIFY(names.contains(QStringLiteral("100/white-states.png")));
}

void StyleViewerTest::allPicturesOfAThemeAreWrittenAndShowSomething()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QStringList arguments{QStringLiteral("--themes=10"), QStringLiteral("--set=100")};
    const QStringList names = Names(arguments);
    QVERIFY(names.size() >= 18);
    const Run run =
        RunViewer(QStringList(arguments) << QStringLiteral("--pictures=") + folder.path());
    QCOMPARE(run.code, 0);
    QSet<QByteArray> different;
    for (const QString& name : names) {
        const QImage picture(folder.filePath(name));
        QVERIFY2(picture.width() >= 400 && picture.height() >= 400, qPrintable(name));
        QVERIFY2(ColorsOf(picture) > 40, qPrintable(name));
        // One half of a picture may be quiet, not empty.
        for (const bool right : {false, true})
            QVERIFY2(ColorsOf(picture.copy(right ? picture.width() / 2 : 0, 0, picture.width() / 2,
                                           picture.height())) > 8,
                     qPrintable(name));
        different.insert(QByteArray(reinterpret_cast<const char*>(picture.constBits()),
                                    int(picture.sizeInBytes())));
    }
    QCOMPARE(different.size(), names.size());
}

void StyleViewerTest::aWrongThemeOrSetIsRefused()
{
    const QTemporaryDir folder;
    const Run run =
        RunViewer({QStringLiteral("--set=300"), QStringLiteral("--pictures=") + folder.path()});
    QCOMPARE(run.code, 1);
    QVERIFY(QDir(folder.path()).entryList(QDir::Files).isEmpty());
    // Numbers that are no theme are left out; all are taken when none is left.
    QVERIFY(
        Names({QStringLiteral("--themes=-1,11,x")}).contains(QStringLiteral("100/00-home.png")));
    QVERIFY(!Names({QStringLiteral("--themes=10")}).contains(QStringLiteral("100/00-home.png")));
}

OVK_TEST_CLASS(StyleViewerTest)

#include "style_viewer_test.moc"
