#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QStyleOption>
#include <QTimer>
#include <QWidgetAction>

Q_DECLARE_METATYPE(QMargins)

using namespace ovk;
using ovk_test::Picture;

namespace {

/// Runs \a function as soon as a modal dialog or a popup waits for the user.
void WhenOpen(QObject& context, const std::function<void(QWidget*)>& function)
{
    QTimer::singleShot(0, &context, [&context, function] {
        QWidget* const popup = QApplication::activePopupWidget();
        QWidget* const open = popup ? popup : QApplication::activeModalWidget();
        if (open)
            function(open);
        else
            WhenOpen(context, function);
    });
}

Qtitan::RibbonGallery* GalleryOf(const ColorEdit& edit)
{
    return edit.menu()->findChild<Qtitan::RibbonGallery*>();
}

} // namespace

class ColorEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aNewEditHasNoColour();
    void theColourIsToldOnce();
    void noColourIsToldAsInvalid();
    void theChoiceOfNoColour();
    void withdrawingTheChoiceIsTold_data();
    void withdrawingTheChoiceIsTold();
    void thePaletteRunsDownTheColumns();
    void thePopupHasItsParts();
    void aPickedCellIsTheColour();
    void thePopupsNoColourClearsTheColour();
    void aClickOpensThePopupWithTheHostsColours();
    void theArrowOpensThePopupWithTheHostsColours();
    void thePopupMarksTheColour();
    void theColourKeepsClearOfTheArrowFromRightToLeft();
    void moreColoursOpensTheDialog();
    void theDialogGivesTheColour_data();
    void theDialogGivesTheColour();
    void theHooksOfTheDialog();
    void theColourFillsTheMargins_data();
    void theColourFillsTheMargins();
    void theArrowIsLeftFree();
    void aDisabledEditIsPaler();
    void theNoColourIconIsShown();
    void theSizeHintHasALeast();
    void theRangeIsLaidOut();
    void theRangeFollowsItsEdits();
};

void ColorEditTest::cleanup()
{
    DlgSelectColor::SetDialogUpdater({});
    DlgSelectColor::SetNativeDialogUpdater({});
}

void ColorEditTest::aNewEditHasNoColour()
{
    ColorEdit edit;
    QVERIFY(!edit.color().isValid());
    QVERIFY(edit.property("isNoColor").toBool());
    QVERIFY(!edit.property("defaultEnabled").toBool());
    QCOMPARE(edit.text(), QString("No color"));
    QCOMPARE(edit.property("defaultText").toString(), QString("No color"));
    const int margin = edit.style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, &edit) / 2;
    for (const char* const name : {"leftMargin", "rightMargin", "topMargin", "bottomMargin"})
        QCOMPARE(edit.property(name).toInt(), margin);
    QVERIFY(edit.setProperty("rightMargin", 7));
    QVERIFY(edit.setProperty("leftMargin", 6));
    QVERIFY(edit.setProperty("topMargin", 5));
    QVERIFY(edit.setProperty("bottomMargin", 4));
    QCOMPARE(edit.margins(), QMargins(6, 5, 7, 4));
    edit.setProperty("defaultText", "Nothing");
    QCOMPARE(edit.text(), QString("Nothing"));
}

void ColorEditTest::theColourIsToldOnce()
{
    ColorEdit edit;
    QSignalSpy spy(&edit, &ColorEdit::colorChanged);
    edit.setColor(Qt::red);
    edit.setColor(Qt::red);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<QColor>(), QColor(Qt::red));
    QCOMPARE(edit.property("color").value<QColor>(), QColor(Qt::red));
    QVERIFY(!edit.isNoColor());
}

void ColorEditTest::noColourIsToldAsInvalid()
{
    ColorEdit edit;
    edit.setColor(Qt::red);
    QSignalSpy spy(&edit, &ColorEdit::colorChanged);
    edit.setColor(QColor());
    QCOMPARE(spy.size(), 1);
    QVERIFY(!spy.at(0).at(0).value<QColor>().isValid());
    edit.setColor(QColor());
    QCOMPARE(spy.size(), 1);
}

void ColorEditTest::theChoiceOfNoColour()
{
    ColorEdit edit;
    const QAction* const none = edit.menu()->actions().first();
    QCOMPARE(none->text(), QString("No color"));
    QVERIFY(!none->isVisible());
    edit.setDefaultEnabled(true);
    QVERIFY(none->isVisible());
    QCOMPARE(edit.toolButtonStyle(), Qt::ToolButtonTextOnly);
    edit.setDefaultEnabled(false);
    QVERIFY(!none->isVisible());
    QCOMPARE(edit.toolButtonStyle(), Qt::ToolButtonIconOnly);
}

void ColorEditTest::withdrawingTheChoiceIsTold_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("count");
    QTest::newRow("no colour") << QColor() << 1;
    QTest::newRow("a colour") << QColor(Qt::green) << 0;
}

void ColorEditTest::withdrawingTheChoiceIsTold()
{
    QFETCH(QColor, color);
    QFETCH(int, count);
    ColorEdit edit;
    edit.setColor(color);
    QSignalSpy spy(&edit, &ColorEdit::defaultChanged);
    edit.setDefaultEnabled(false);
    QCOMPARE(spy.size(), 0);
    edit.setDefaultEnabled(true);
    QCOMPARE(spy.size(), 0);
    edit.setDefaultEnabled(false);
    QCOMPARE(spy.size(), count);
    if (count)
        QCOMPARE(spy.at(0).at(0).toBool(), false);
    QCOMPARE(edit.color(), color);
}

void ColorEditTest::thePaletteRunsDownTheColumns()
{
    ColorEdit edit;
    const Qtitan::RibbonGallery* const gallery = GalleryOf(edit);
    QVERIFY(gallery);
    const Qtitan::RibbonGalleryGroup* const group = gallery->galleryGroup();
    QCOMPARE(group->size(), QSize(17, 17));
    QCOMPARE(group->itemCount(), 2 + 48 + 16);
    QVERIFY(group->item(0)->isSeparator());
    QCOMPARE(group->item(0)->caption(), QString("Standard Colors"));
    QVERIFY(group->item(49)->isSeparator());
    QCOMPARE(group->item(49)->caption(), QString("Custom Colors"));
    for (int i = 0; i < 16; ++i)
        QColorDialog::setCustomColor(i, QColor(i, 2 * i, 100));
    const auto color = [group](int index) {
        const auto* const item = qobject_cast<GalleryItemColor*>(group->item(index));
        return item && item->sizeHint() == QSize(17, 17) ? item->GetColor() : QColor();
    };
    for (int r = 0; r < 6; ++r) {
        for (int c = 0; c < 8; ++c) {
            QVERIFY(qobject_cast<GalleryItemStandardColor*>(group->item(1 + 8 * r + c)));
            QCOMPARE(color(1 + 8 * r + c), QColorDialog::standardColor(r + 6 * c));
        }
    }
    for (int r = 0; r < 2; ++r) {
        for (int c = 0; c < 8; ++c) {
            QVERIFY(qobject_cast<GalleryItemCustomColor*>(group->item(50 + 8 * r + c)));
            QCOMPARE(color(50 + 8 * r + c), QColorDialog::customColor(r + 2 * c));
        }
    }
}

void ColorEditTest::thePopupHasItsParts()
{
    ColorEdit edit;
    const QList<QAction*> actions = edit.menu()->actions();
    QCOMPARE(actions.size(), 4);
    QCOMPARE(actions[0]->text(), QString("No color"));
    QVERIFY(qobject_cast<QWidgetAction*>(actions[1]));
    QVERIFY(actions[2]->isSeparator());
    QCOMPARE(actions[3]->text(), QString("More Colors..."));
    const Qtitan::RibbonGallery* const gallery = GalleryOf(edit);
    QVERIFY(gallery);
    QCOMPARE(gallery->minimumItemCount(), 2);
    QCOMPARE(gallery->maximumItemCount(), 8);
    QVERIFY(gallery->isLabelsVisible());
    QCOMPARE(int(gallery->scrollBarPolicy()), 1);
}

void ColorEditTest::aPickedCellIsTheColour()
{
    ColorEdit edit;
    edit.show();
    WhenOpen(edit, [&edit](QWidget*) {
        auto* const gallery = GalleryOf(edit);
        const QRect cell = gallery->itemRect(gallery->galleryGroup()->item(1 + 8 + 3));
        QTest::mouseClick(gallery, Qt::LeftButton, Qt::NoModifier, cell.center());
    });
    edit.invokePopup();
    QCOMPARE(edit.color(), QColorDialog::standardColor(1 + 6 * 3));
    QVERIFY(!edit.menu()->isVisible());
}

void ColorEditTest::thePopupsNoColourClearsTheColour()
{
    ColorEdit edit;
    edit.setColor(Qt::red);
    edit.menu()->actions().first()->trigger();
    QVERIFY(edit.isNoColor());
}

void ColorEditTest::aClickOpensThePopupWithTheHostsColours()
{
    int loads = 0;
    DlgSelectColor::SetDialogUpdater([&loads] { ++loads; });
    ColorEdit edit;
    edit.show();
    QCOMPARE(loads, 0);
    QWidget* opened = nullptr;
    WhenOpen(edit, [&](QWidget* open) {
        opened = open;
        open->close();
    });
    edit.click();
    QCOMPARE(opened, static_cast<QWidget*>(edit.menu()));
    QCOMPARE(loads, 1);
    opened = nullptr;
    WhenOpen(edit, [&](QWidget* open) {
        opened = open;
        open->close();
    });
    edit.invokePopup();
    QCOMPARE(opened, static_cast<QWidget*>(edit.menu()));
    QCOMPARE(loads, 2);
}

void ColorEditTest::theArrowOpensThePopupWithTheHostsColours()
{
    int loads = 0;
    DlgSelectColor::SetDialogUpdater([&loads] { ++loads; });
    ColorEdit edit;
    edit.setPopupMode(QToolButton::MenuButtonPopup);
    edit.show();
    edit.menu()->popup(edit.mapToGlobal(QPoint(0, 30)));
    QCOMPARE(loads, 1);
    edit.menu()->close();
}

void ColorEditTest::thePopupMarksTheColour()
{
    ColorEdit edit;
    edit.show();
    const Qtitan::RibbonGallery* const gallery = GalleryOf(edit);
    const auto open = [&edit] {
        edit.menu()->popup(QPoint(0, 0));
        edit.menu()->close();
    };
    open();
    QVERIFY(!gallery->checkedItem());
    edit.setColor(QColorDialog::standardColor(7));
    open();
    const auto* const cell = qobject_cast<GalleryItemColor*>(gallery->checkedItem());
    QVERIFY(cell);
    QCOMPARE(cell->GetColor(), QColorDialog::standardColor(7));
    QVERIFY(cell->toolTip().endsWith(QColorDialog::standardColor(7).name().toUpper()));
    edit.setColor(QColor(1, 2, 3));
    open();
    QVERIFY(!gallery->checkedItem());
}

void ColorEditTest::theColourKeepsClearOfTheArrowFromRightToLeft()
{
    ColorEdit edit;
    edit.setLayoutDirection(Qt::RightToLeft);
    edit.setPopupMode(QToolButton::MenuButtonPopup);
    edit.setMargins(0, 0, 0, 0);
    edit.setColor(Qt::blue);
    edit.resize(80, 30);
    const QImage picture = Picture(edit);
    QCOMPARE(picture.pixelColor(79, 15), QColor(Qt::blue));
    QVERIFY(picture.pixelColor(0, 15) != QColor(Qt::blue));
}

void ColorEditTest::moreColoursOpensTheDialog()
{
    ColorEdit edit;
    edit.setColor(QColor(10, 20, 30));
    QColor shown;
    WhenOpen(edit, [&](QWidget* open) {
        auto* const dialog = qobject_cast<DlgSelectColor*>(open);
        shown = dialog ? dialog->currentColor() : QColor();
        open->close();
    });
    edit.menu()->actions().last()->trigger();
    QCOMPARE(shown.rgb(), QColor(10, 20, 30).rgb());
    QCOMPARE(edit.color(), QColor(10, 20, 30));
}

void ColorEditTest::theDialogGivesTheColour_data()
{
    QTest::addColumn<bool>("accept");
    QTest::newRow("accepted") << true;
    QTest::newRow("cancelled") << false;
}

void ColorEditTest::theDialogGivesTheColour()
{
    QFETCH(bool, accept);
    ColorEdit edit;
    edit.setColor(Qt::red);
    QSignalSpy spy(&edit, &ColorEdit::colorChanged);
    WhenOpen(edit, [accept](QWidget* open) {
        auto* const dialog = qobject_cast<QColorDialog*>(open);
        dialog->setCurrentColor(QColor(1, 2, 3));
        accept ? dialog->accept() : dialog->reject();
    });
    edit.invokeDialog();
    QCOMPARE(spy.size(), accept ? 1 : 0);
    QCOMPARE(edit.color().rgb(), accept ? QColor(1, 2, 3).rgb() : QColor(Qt::red).rgb());
}

void ColorEditTest::theHooksOfTheDialog()
{
    QStringList log;
    DlgSelectColor::SetDialogUpdater([&log] { log << "load"; });
    DlgSelectColor::SetNativeDialogUpdater([&log] { log << "save"; });
    {
        DlgSelectColor dialog;
        QCOMPARE(log, QStringList{"load"});
        dialog.reject();
        QCOMPARE(log, QStringList{"load"});
        dialog.accept();
        QCOMPARE(log, (QStringList{"load", "save"}));
    }
    DlgSelectColor::UpdateCustomColors();
    QCOMPARE(log, (QStringList{"load", "save", "load"}));
    cleanup();
    DlgSelectColor dialog;
    dialog.accept();
    QCOMPARE(log.size(), 3);
}

void ColorEditTest::theColourFillsTheMargins_data()
{
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("none") << QMargins(0, 0, 0, 0);
    QTest::newRow("as a cell") << QMargins(0, 0, 1, 0);
    QTest::newRow("all different") << QMargins(3, 4, 5, 6);
}

void ColorEditTest::theColourFillsTheMargins()
{
    QFETCH(QMargins, margins);
    ColorEdit edit;
    edit.resize(60, 30);
    edit.setMargins(margins);
    const QImage bare = Picture(edit);
    edit.setColor(QColor(200, 30, 90));
    const QImage picture = Picture(edit);
    const QRect inner = edit.rect().marginsRemoved(margins);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 60; ++x) {
            const QRgb expected =
                inner.contains(x, y) ? QColor(200, 30, 90).toHsv().rgb() : bare.pixel(x, y);
            QCOMPARE(picture.pixel(x, y), expected);
        }
    }
}

void ColorEditTest::theArrowIsLeftFree()
{
    ColorEdit edit;
    edit.setPopupMode(QToolButton::MenuButtonPopup);
    edit.setMargins(0, 0, 0, 0);
    edit.setColor(Qt::blue);
    edit.resize(80, 30);
    QStyleOptionToolButton option;
    option.initFrom(&edit);
    option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
    option.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    const int arrow =
        edit.style()
            ->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, &edit)
            .width();
    QVERIFY(arrow > 0);
    const QImage picture = Picture(edit);
    QCOMPARE(picture.pixelColor(79 - arrow, 15), QColor(Qt::blue));
    QVERIFY(picture.pixelColor(80 - arrow, 15) != QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::blue));
}

void ColorEditTest::aDisabledEditIsPaler()
{
    ColorEdit edit;
    edit.resize(60, 30);
    const QColor color = QColor::fromHsv(120, 200, 180, 90);
    edit.setColor(color);
    edit.setEnabled(false);
    QCOMPARE(Picture(edit).pixelColor(30, 15).rgb(), QColor::fromHsv(120, 100, 180).rgb());
    QCOMPARE(edit.color(), color);
}

void ColorEditTest::theNoColourIconIsShown()
{
    ColorEdit edit;
    edit.resize(60, 30);
    const QImage bare = Picture(edit);
    QPixmap pixmap(200, 200);
    pixmap.fill(Qt::green);
    edit.setNoColorIcon(QIcon(pixmap));
    QCOMPARE(Picture(edit).pixelColor(30, 15), QColor(Qt::green));
    edit.setColor(Qt::red);
    QCOMPARE(Picture(edit).pixelColor(30, 15), QColor(Qt::red));
    edit.setColor(QColor());
    QCOMPARE(Picture(edit).pixelColor(30, 15), QColor(Qt::green));
    edit.setNoColorIcon(QIcon());
    QCOMPARE(Picture(edit), bare);
}

void ColorEditTest::theSizeHintHasALeast()
{
    ColorEdit edit;
    QVERIFY(edit.sizeHint().width() >= 59 && edit.sizeHint().height() >= 23);
    edit.setDefaultEnabled(true);
    edit.setDefaultText(QString(60, 'W'));
    QVERIFY(edit.sizeHint().width() > 200);
    edit.setPopupMode(QToolButton::MenuButtonPopup);
    QStyleOptionComboBox option;
    option.initFrom(&edit);
    const QSize contents(59, qMax(edit.fontMetrics().height(), 14) + 2);
    QCOMPARE(edit.sizeHint(),
             edit.style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, &edit));
}

void ColorEditTest::theRangeIsLaidOut()
{
    ColorRangeSelection range;
    QCOMPARE(range.windowTitle(), QString("Color Range"));
    auto* const layout = qobject_cast<QGridLayout*>(range.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->sizeConstraint(), QLayout::SetFixedSize);
    auto* const scale = range.findChild<ColorMapHue*>();
    QCOMPARE(scale->minimumSize(), QSize(20, 100));
    QCOMPARE(scale->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(layout->itemAtPosition(row, 0)->widget(), static_cast<QWidget*>(scale));
    QCOMPARE(layout->itemAtPosition(0, 1)->widget(),
             static_cast<QWidget*>(range.getEndColorEdit()));
    QCOMPARE(layout->itemAtPosition(2, 1)->widget(),
             static_cast<QWidget*>(range.getStartColorEdit()));
    const auto* const end = qobject_cast<QLabel*>(layout->itemAtPosition(0, 2)->widget());
    QCOMPARE(end->text(), QString("End color range"));
    QCOMPARE(end->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QCOMPARE(qobject_cast<QLabel*>(layout->itemAtPosition(2, 2)->widget())->text(),
             QString("Begin color range"));
    QVERIFY(layout->itemAtPosition(1, 1)->spacerItem());
    QCOMPARE(layout->itemAtPosition(1, 1), layout->itemAtPosition(1, 2));
    QCOMPARE(layout->itemAtPosition(1, 1)->sizeHint(), QSize(20, 40));
    QCOMPARE(range.getStartColorEdit()->text(), QString("..."));
    QCOMPARE(range.getEndColorEdit()->text(), QString("..."));
}

void ColorEditTest::theRangeFollowsItsEdits()
{
    ColorRangeSelection range;
    const auto* const scale = range.findChild<ColorMapHue*>();
    range.getStartColorEdit()->setColor(Qt::green);
    QCOMPARE(scale->startColor(), QColor(Qt::green));
    range.getEndColorEdit()->setColor(Qt::blue);
    QCOMPARE(scale->endColor(), QColor(Qt::blue));
    QCOMPARE(scale->startColor(), QColor(Qt::green));
}

OVK_TEST_CLASS(ColorEditTest)

#include "color_edit_test.moc"
