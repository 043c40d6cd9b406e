#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <qtitan/draw_helpers.h>
#include <qtitan/ribbon_painter_p.h>

using namespace Qtitan;

namespace {

/// One painted thing with a text in it.
struct Painted
{
    const char* name;
    Element ground; ///< what is painted below first
    std::function<void(QPainter&, RibbonPaintOption)> draw;
    RibbonStates states; ///< those that it knows
};

RibbonButtonOption AsButton(const RibbonPaintOption& option, RibbonGround ground, RibbonMenuKind menu, bool large)
{
    RibbonButtonOption button;
    static_cast<RibbonPaintOption&>(button) = option;
    button.ground = ground;
    button.menu = menu;
    button.large = large;
    button.style = Qt::ToolButtonTextOnly;
    return button;
}

const QVector<Painted>& PaintedThings()
{
    using S = RibbonState;
    const RibbonStates press = S::Hover | S::Pressed | S::Disabled;
    const RibbonStates check = press | S::Checked;
    static const QVector<Painted> things{
        {"caption", Element::Caption, &RibbonPainter::drawCaption, S::Inactive},
        {"tab", Element::TabStrip, &RibbonPainter::drawTab, S::Hover | S::Checked | S::Disabled},
        {"contextual tab", Element::TabStrip,
         [](QPainter& painter, RibbonPaintOption option) {
             option.contextColor = QColor(0xD8, 0x60, 0x00);
             RibbonPainter::drawTab(painter, option);
         },
         S::Hover | S::Checked},
        {"context title", Element::Caption,
         [](QPainter& painter, RibbonPaintOption option) {
             option.contextColor = QColor(0x20, 0x80, 0x40);
             RibbonPainter::drawContextTitle(painter, option);
         },
         S::Normal},
        {"system button", Element::TabStrip, &RibbonPainter::drawSystemButton, press},
        {"group title", Element::Page, &RibbonPainter::drawGroupTitle, S::Hover},
        {"collapsed group", Element::Page, &RibbonPainter::drawCollapsedGroup, press},
        {"button on the page", Element::Page,
         [](QPainter& painter, RibbonPaintOption option) {
             RibbonPainter::drawButton(painter, AsButton(option, RibbonGround::Page, RibbonMenuKind::None, false));
         },
         check},
        {"large split button", Element::Page,
         [](QPainter& painter, RibbonPaintOption option) {
             RibbonPainter::drawButton(painter, AsButton(option, RibbonGround::Page, RibbonMenuKind::Split, true));
         },
         check},
        {"button on the tab row", Element::TabStrip,
         [](QPainter& painter, RibbonPaintOption option) {
             RibbonPainter::drawButton(painter, AsButton(option, RibbonGround::Strip, RibbonMenuKind::None, false));
         },
         check},
        {"button in the caption", Element::Caption,
         [](QPainter& painter, RibbonPaintOption option) {
             RibbonPainter::drawButton(painter, AsButton(option, RibbonGround::Caption, RibbonMenuKind::None, false));
         },
         check},
        {"button in a popup", Element::Menu,
         [](QPainter& painter, RibbonPaintOption option) {
             RibbonPainter::drawButton(painter, AsButton(option, RibbonGround::Popup, RibbonMenuKind::None, false));
         },
         check},
        {"backstage row", Element::BackstageColumn, &RibbonPainter::drawBackstageRow, check},
        {"key tip", Element::Page, &RibbonPainter::drawKeyTip, S::Disabled},
        {"gallery heading", Element::Gallery, &RibbonPainter::drawGalleryHeading, S::Disabled},
    };
    return things;
}

QVector<RibbonStates> StatesOf(const RibbonStates& known)
{
    using S = RibbonState;
    QVector<RibbonStates> states{S::Normal};
    for (const RibbonStates& state :
         {RibbonStates(S::Hover), S::Hover | S::Pressed, RibbonStates(S::Checked), S::Checked | S::Hover,
          RibbonStates(S::Disabled), S::Disabled | S::Checked, RibbonStates(S::Inactive)}) {
        if ((state & known) == state)
            states.append(state);
    }
    return states;
}

/// The best contrast of a text's pixels with what lies below them: that of the inside of a stroke.
qreal PaintedContrast(const Painted& thing, RibbonPaintOption option)
{
    const ThemeLook& ground = RibbonTheme::current()[thing.ground];
    const auto picture = [&](const QString& text) {
        option.text = text;
        return style_test::Picture(option.rect.size(), 1.0, ground.middle, [&](QPainter& painter) {
            // The ground is as it is where the thing stands, gradient and all.
            QLinearGradient gradient(0, 0, 0, option.rect.height());
            gradient.setColorAt(0, ground.top);
            gradient.setColorAt(0.5, ground.middle);
            gradient.setColorAt(1, ground.bottom);
            painter.fillRect(option.rect, gradient);
            thing.draw(painter, option);
        });
    };
    // A space has the width of a text and no ink.
    const QImage with = picture(QStringLiteral("\u2588"));
    const QImage without = picture(QStringLiteral("\u00A0"));
    qreal least = 21.0;
    int inked = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            // Only where the block is solid all around: its rim is smoothed.
            bool solid = x > 0 && y > 0 && x + 1 < with.width() && y + 1 < with.height();
            for (int dy = -1; solid && dy <= 1; ++dy)
                for (int dx = -1; solid && dx <= 1; ++dx)
                    solid = with.pixel(x + dx, y + dy) != without.pixel(x + dx, y + dy);
            if (!solid)
                continue;
            ++inked;
            least = std::min(least, DrawHelpers::contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
        }
    }
    return inked > 20 ? least : 0.0;
}

} // namespace

class PaintedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintedTextsRead_data();
    void paintedTextsRead();
};

void PaintedTextTest::paintedTextsRead_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < style_test::ThemeCount; ++i)
        QTest::addRow("theme %d", i) << i;
}

void PaintedTextTest::paintedTextsRead()
{
    QFETCH(int, number);
    style_test::ApplicationStyle style;
    style->setTheme(static_cast<OfficeStyle::Theme>(number));
    const bool accented = number >= 8;
    for (const QColor& accent : accented ? style_test::Accents() : QVector<QColor>{style->accentColor()}) {
        style->setAccentColor(accent);
        for (const Painted& thing : PaintedThings()) {
            for (const RibbonStates& state : StatesOf(thing.states)) {
                RibbonPaintOption option;
                option.rect = QRect(0, 0, 90, qstrcmp(thing.name, "collapsed group") == 0 ? 87
                                              : qstrcmp(thing.name, "large split button") == 0 ? 66
                                                                                               : 24);
                option.font = style_test::TestFont();
                option.state = state;
                const qreal contrast = PaintedContrast(thing, option);
                const qreal wanted = state.testFlag(RibbonState::Disabled) ? 2.0 : 4.5;
                QVERIFY2(contrast >= wanted,
                         qPrintable(QStringLiteral("%1 in state %2 with accent %3: %4")
                                        .arg(QLatin1String(thing.name))
                                        .arg(int(state))
                                        .arg(accent.name())
                                        .arg(contrast)));
            }
        }
    }
}

OVK_TEST_CLASS(PaintedTextTest)

#include "painted_text_test.moc"
