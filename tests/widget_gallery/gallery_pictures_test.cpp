#include "tests/support/test_main.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

/// The gallery of the widgets as a program: what its pictures are for is seen by people, that there
/// are some is seen here.
class GalleryPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void thePageShowsEveryPicture();
    void noPictureIsBlank_data();
    void noPictureIsBlank();
    void thePicturesDiffer();
    void twiceTheDensityHasTwiceThePixels();

private:
    QImage Load(const QString& name) const { return QImage(m_folder.filePath(name)); }
    QStringList Names() const { return QDir(m_folder.path()).entryList({"*.png"}); }

    QTemporaryDir m_folder;
};

void GalleryPicturesTest::initTestCase()
{
    QProcess gallery;
    gallery.setProcessChannelMode(QProcess::MergedChannels);
    gallery.start(OVK_WIDGET_GALLERY, {"--pictures", m_folder.path()});
    QVERIFY(gallery.waitForFinished(240000));
    QVERIFY2(gallery.exitStatus() == QProcess::NormalExit && gallery.exitCode() == 0,
             gallery.readAll().constData());
    QVERIFY(Names().size() >= 10);
}

void GalleryPicturesTest::thePageShowsEveryPicture()
{
    QFile page(m_folder.filePath("index.html"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    static const QRegularExpression image("<img src=\"([^\"]+)\" alt=\"[^\"]+\">");
    QStringList shown;
    auto matches = image.globalMatch(text);
    while (matches.hasNext())
        shown << matches.next().captured(1);
    shown.sort();
    QCOMPARE(shown, Names());
}

void GalleryPicturesTest::noPictureIsBlank_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : Names())
        QTest::newRow(qPrintable(name)) << name;
}

void GalleryPicturesTest::noPictureIsBlank()
{
    QFETCH(QString, name);
    const QImage picture = Load(name);
    QVERIFY(picture.width() >= 1000 && picture.height() >= 700);
    // Each quarter holds something: many colours in the one with the scales, several in any other.
    for (int quarter = 0; quarter < 4; ++quarter) {
        const QSize half = picture.size() / 2;
        QSet<QRgb> colors;
        for (int y = 0; y < half.height(); y += 3) {
            for (int x = 0; x < half.width(); x += 3)
                colors << picture.pixel(x + (quarter % 2) * half.width(),
                                        y + (quarter / 2) * half.height());
        }
        QVERIFY2(colors.size() > 8,
                 qPrintable(QString("quarter %1: %2").arg(quarter).arg(colors.size())));
    }
}

void GalleryPicturesTest::thePicturesDiffer()
{
    QVector<QImage> seen;
    for (const QString& name : Names()) {
        const QImage picture = Load(name);
        QVERIFY2(!seen.contains(picture), qPrintable(name));
        seen << picture;
    }
}

void GalleryPicturesTest::twiceTheDensityHasTwiceThePixels()
{
    QCOMPARE(Load("light-200.png").size(), Load("light.png").size() * 2);
}

OVK_TEST_CLASS(GalleryPicturesTest)

#include "gallery_pictures_test.moc"
