#include "tests/support/fake_application.h"

#include <ovk/core/icons_controller.h>

#include <QCoreApplication>
#include <QIcon>
#include <QImage>

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
    for (const char* name :
         {"dockIn", "dockInActive", "dockBottom", "dockBottomActive", "dockLeft", "dockLeftActive",
          "dockRight", "dockRightActive", "dockTop", "dockTopActive", "dockPin", "dockUnpin",
          "dockFold", "dockUnfold", "dockMinimize", "dockRestore", "DockCollapseLeft",
          "DockCollapseRight", "DockCollapseUp", "DockCollapseDown", "ribbonMinimize",
          "ribbonMaximize", "customizeUi", "toolbars", "toolpages"})
        QTest::newRow(name) << QString(name);
}

void IconsControllerTest::theLibrarysImagesAreThere()
{
    QFETCH(QString, name);
    QVERIFY(QFile::exists(":/icons/" + name + ".png"));
    const QIcon& icon = IconsController::Load(name);
    QVERIFY(!icon.isNull());
    const QImage image = icon.pixmap(16, 16).toImage();
    QCOMPARE(image.size(), QSize(16, 16));
    int drawn = 0;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            drawn += qAlpha(image.pixel(x, y)) > 0;
    }
    QVERIFY2(drawn > 8, "an empty image");
    QVERIFY2(QFile::exists(":/icons/" + name + "@2x.png"), "no image for a screen of high density");
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
