#include "tests/support/fake_application.h"

#include <ovk/core/icons_controller.h>

#include <QCoreApplication>
#include <QIcon>
#include <QImage>

#include <cmath>

using namespace ovk;
using namespace ovk_test;

namespace {

QByteArray Png(QRgb color)
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

double Luminance(const QColor& color)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF());
}

/// How many pixels of an image stand out from a ground at 3 to 1 or better.
int SeenOn(const QImage& image, const QColor& ground)
{
    int seen = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() < 200)
                continue;
            const double a = Luminance(color) + 0.05;
            const double b = Luminance(ground) + 0.05;
            seen += std::max(a, b) / std::min(a, b) >= 3.0;
        }
    }
    return seen;
}

QRgb Color(const QIcon& icon)
{
    return icon.pixmap(4, 4).toImage().pixel(1, 1);
}

} // namespace

class IconsControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theLibrarysImagesAreThere_data();
    void theLibrarysImagesAreThere();
    void noOtherImageIsInTheLibrary();
    void aFirstSearchMindsTheCaseAndLaterOnesDoNot();
    void anUnknownIconIsEmptyAndLookedForAgain();
    void vectorsComeBeforeImagesAndPathsInTheirOrder();
    void thePathIsPutInFrontWithoutASeparator();
    void filesBesideTheExecutableWinForIconsNotSeenYet();

private:
    QString m_folder;
    QString m_external;
};

void IconsControllerTest::initTestCase()
{
    m_folder = DataHome() + "/search/";
    m_external = QCoreApplication::applicationDirPath() + "/icons/";
}

void IconsControllerTest::cleanupTestCase()
{
    QFile::remove(m_external + "ovkIconsTestNew.png");
    QFile::remove(m_external + "ovkIconsTestSeen.png");
    QDir().rmdir(m_external);
}

void IconsControllerTest::theLibrarysImagesAreThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    for (const char* name : {"dockIn", "dockInActive", "dockBottom", "dockBottomActive", "dockLeft",
                             "dockLeftActive", "dockRight", "dockRightActive", "dockTop",
                             "dockTopActive", "customizeUi", "toolbars", "toolpages"})
        QTest::newRow(name) << QString(name) << QSize(32, 32);
    for (const char* name : {"dockPin", "dockUnpin", "dockFold", "dockUnfold", "dockMinimize",
                             "dockRestore", "ribbonMinimize", "ribbonMaximize"})
        QTest::newRow(name) << QString(name) << QSize(16, 16);
    // As large as the buttons of the handles that bear them.
    for (const char* name : {"DockCollapseLeft", "DockCollapseRight"})
        QTest::newRow(name) << QString(name) << QSize(5, 17);
    for (const char* name : {"DockCollapseUp", "DockCollapseDown"})
        QTest::newRow(name) << QString(name) << QSize(17, 5);
}

void IconsControllerTest::theLibrarysImagesAreThere()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage plain(":/icons/" + name + ".png");
    const QImage fine(":/icons/" + name + "@2x.png");
    QCOMPARE(plain.size(), size);
    QCOMPARE(fine.size(), size * 2);
    const QIcon& icon = IconsController::Load(name);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixmap(size).toImage().size(), size);
    for (const QImage& image : {plain, fine}) {
        for (const QColor& ground : {QColor(Qt::white), QColor(0x2b, 0x2b, 0x2b)})
            QVERIFY2(SeenOn(image, ground) * 40 >= image.width() * image.height(),
                     qPrintable(ground.name()));
    }
}

void IconsControllerTest::noOtherImageIsInTheLibrary()
{
    // Fifty of the list above; what else lies there belongs to a test or to a host.
    QStringList images = QDir(":/icons").entryList({"dock*", "Dock*", "ribbon*", "customize*", "tool*"});
    QCOMPARE(images.size(), 50);
}

void IconsControllerTest::aFirstSearchMindsTheCaseAndLaterOnesDoNot()
{
    QVERIFY(WriteFile(m_folder + "CasedIcon.png", Png(0xff102030)));
    IconsController::AddResourcesPath(m_folder);
    QVERIFY(IconsController::Load("casedicon").isNull());
    const QIcon& icon = IconsController::Load("CasedIcon");
    QVERIFY(!icon.isNull());
    QCOMPARE(IconsController::Load("casedicon").cacheKey(), icon.cacheKey());
    QCOMPARE(IconsController::Load("CASEDICON").cacheKey(), icon.cacheKey());
}

void IconsControllerTest::anUnknownIconIsEmptyAndLookedForAgain()
{
    IconsController::AddResourcesPath(m_folder);
    const QIcon& none = IconsController::Load("comesLater");
    QVERIFY(none.isNull());
    QVERIFY(&none == &IconsController::Load("neverComes"));
    QVERIFY(WriteFile(m_folder + "comesLater.png", Png(0xff102030)));
    QVERIFY(!IconsController::Load("comesLater").isNull());
    QVERIFY(IconsController::Load("").isNull());
}

void IconsControllerTest::vectorsComeBeforeImagesAndPathsInTheirOrder()
{
    const QString second = DataHome() + "/second/";
    IconsController::AddResourcesPath(m_folder);
    IconsController::AddResourcesPath(second);
    IconsController::AddResourcesPath(m_folder); // stays where it is
    QVERIFY(WriteFile(m_folder + "inBoth.png", Png(0xff0000ff)));
    QVERIFY(WriteFile(second + "inBoth.png", Png(0xffff0000)));
    QCOMPARE(Color(IconsController::Load("inBoth")), 0xff0000ffu);

    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'>"
                           "<rect width='4' height='4' fill='#00ff00'/></svg>";
    QVERIFY(WriteFile(m_folder + "bothForms.svg", svg));
    QVERIFY(WriteFile(m_folder + "bothForms.png", Png(0xff0000ff)));
    QCOMPARE(Color(IconsController::Load("bothForms")), 0xff00ff00u);
}

void IconsControllerTest::thePathIsPutInFrontWithoutASeparator()
{
    IconsController::AddResourcesPath(DataHome() + "/prefix-");
    QVERIFY(WriteFile(DataHome() + "/prefix-joined.png", Png(0xff0000ff)));
    QVERIFY(!IconsController::Load("joined").isNull());
}

void IconsControllerTest::filesBesideTheExecutableWinForIconsNotSeenYet()
{
    IconsController::AddResourcesPath(m_folder);
    for (const char* name : {"ovkIconsTestSeen.png", "ovkIconsTestNew.png"}) {
        QVERIFY(WriteFile(m_folder + name, Png(0xff0000ff)));
        QVERIFY(WriteFile(m_external + name, Png(0xffff0000)));
    }
    QCOMPARE(Color(IconsController::Load("ovkIconsTestSeen")), 0xff0000ffu);
    IconsController::UseExternalIcons();
    IconsController::UseExternalIcons();
    QCOMPARE(Color(IconsController::Load("ovkIconsTestSeen")), 0xff0000ffu);
    QCOMPARE(Color(IconsController::Load("ovkIconsTestNew")), 0xffff0000u);
}

OVK_TEST_CLASS(IconsControllerTest)

#include "icons_controller_test.moc"
