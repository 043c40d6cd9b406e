#include "platform/qtitan/ribbon_backstage_p.h"
#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_gallery_p.h"
#include "platform/qtitan/ribbon_page_area_p.h"
#include "platform/qtitan/ribbon_quick_access_bar_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QTranslator>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

/// A language in which every text of the ribbon stands in brackets.
class Brackets : public QTranslator
{
public:
    Brackets() { QCoreApplication::installTranslator(this); }
    ~Brackets() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QByteArray(context).startsWith("Qtitan::")
                   ? QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']')
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// The few texts that are the ribbon's own follow the language at once.
class RibbonLanguageTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyTextFollowsAChangeOfLanguage()
    {
        Window w(12, 9, QSize(260, 400));
        w.bar->setFrameThemeEnabled(true);
        w.bar->showQuickAccess(true);
        auto* view = new RibbonBackstageView(w.bar);
        auto* gallery = new RibbonGallery;
        w.Group()->addGallery(gallery);
        Window::Settle();
        const auto names = [&] {
            QStringList list;
            for (const auto* button : w.window.findChildren<RibbonScrollButton*>())
                list.append(button->accessibleName());
            for (const auto* button : w.window.findChildren<RibbonCaptionWidget*>())
                list << button->accessibleName() << button->toolTip();
            for (const auto* button : w.window.findChildren<RibbonOverflowButton*>())
                list << button->accessibleName() << button->toolTip();
            for (const auto* button : view->findChildren<RibbonBackstageBack*>())
                list << button->text() << button->toolTip();
            for (const auto* button : gallery->findChildren<RibbonGalleryButton*>())
                list.append(button->accessibleName());
            list.append(w.bar->quickAccessBar()->windowTitle());
            return list;
        };
        const QStringList before = names();
        QVERIFY2(before.size() > 14, qPrintable(before.join(QLatin1Char(' '))));
        {
            const Brackets language;
            Window::Settle();
            const QStringList translated = names();
            QCOMPARE(translated.size(), before.size());
            for (int i = 0; i < before.size(); ++i)
                QCOMPARE(translated.at(i), QLatin1Char('[') + before.at(i) + QLatin1Char(']'));
        }
        Window::Settle();
        QCOMPARE(names(), before);
    }
};

OVK_TEST_CLASS(RibbonLanguageTest)

#include "ribbon_language_test.moc"
