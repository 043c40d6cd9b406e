#include "app/host.h"
#include "app/pages.h"
#include "view/color_scale.h"

#include <ovk/widgets/color_legend.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStandardItemModel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarnix {
namespace {

QIcon Swatch(const QColor& from, const QColor& to)
{
    QPixmap pixmap(32, 32);
    pixmap.setDevicePixelRatio(2.0);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(0, 14, 0, 2);
    gradient.setColorAt(0, from);
    gradient.setColorAt(1, to);
    painter.setBrush(gradient);
    painter.setPen(QPen(from.darker(140), 1));
    painter.drawRoundedRect(QRectF(2.5, 2.5, 11, 11), 2, 2);
    return QIcon(pixmap);
}

/// Says what the colours of the parts mean, and how much of the surface has which.
class LegendPage : public HostPage
{
public:
    explicit LegendPage(Host& host)
        : HostPage(QStringLiteral("Page.Legend"),
                   Phrase("toolpages", QT_TRANSLATE_NOOP("toolpages", "Colours"))),
          m_host(host)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(6, 6, 6, 0);
        mp_quantity = new QComboBox(this);
        mp_quantity->setObjectName(QStringLiteral("colorBy"));
        layout->addWidget(mp_quantity);
        mp_title = new QLabel(this);
        layout->addWidget(mp_title);
        mp_legend = new ovk::ColorLegend(this);
        mp_legend->setObjectName(QStringLiteral("colorLegend"));
        mp_legend->setProperty("colorSize", 18);
        mp_legend->setProperty("offset", 3);
        layout->addWidget(mp_legend);
        mp_table = new QTreeWidget(this);
        mp_table->setObjectName(QStringLiteral("colorAreas"));
        mp_table->setColumnCount(2);
        mp_table->setRootIsDecorated(false);
        mp_table->setFrameShape(QFrame::NoFrame);
        mp_table->setSelectionMode(QAbstractItemView::NoSelection);
        mp_table->setFocusPolicy(Qt::NoFocus);
        mp_table->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
        layout->addWidget(mp_table, 1);
        connect(mp_quantity, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this](int index) {
                    if (!m_following)
                        m_host.workspace.ChangeView([index](ViewState& state) {
                            state.color_by = static_cast<ColorBy>(index);
                        });
                });
        const auto follow = [this] { Follow(); };
        connect(&host.workspace, &Workspace::ViewChanged, this, follow);
        connect(&host.workspace, &Workspace::FormatChanged, this, follow);
        connect(&host.GetScene(), &Scene::PartsChanged, this, follow);
        Say([this] {
            m_following = true;
            const int index = std::max(0, mp_quantity->currentIndex());
            mp_quantity->clear();
            mp_quantity->addItems(
                {tr("Colours of the parts"), tr("Height over the plate"), tr("Overhang")});
            mp_quantity->setCurrentIndex(index);
            mp_quantity->setAccessibleName(tr("What the colours tell"));
            mp_legend->setAccessibleName(tr("Scale of colours"));
            m_following = false;
            Follow();
        });
    }

private:
    Q_DECLARE_TR_FUNCTIONS(tarnix::LegendPage)

    void showEvent(QShowEvent* event) override
    {
        HostPage::showEvent(event);
        Follow();
    }

    void Follow()
    {
        // While hidden it costs nothing; it catches up when shown.
        if (!isVisible() && mp_table->topLevelItemCount() > 0)
            return;
        const ViewState& state = m_host.workspace.GetViewState();
        const PartList& parts = m_host.GetScene().Parts();
        m_following = true;
        mp_quantity->setCurrentIndex(static_cast<int>(state.color_by));
        // A layer has no slope.
        auto* items = qobject_cast<QStandardItemModel*>(mp_quantity->model());
        items->item(static_cast<int>(ColorBy::Overhang))->setEnabled(!state.layers.shown);
        m_following = false;
        mp_table->clear();
        mp_legend->setVisible(state.color_by != ColorBy::Part);
        if (state.color_by == ColorBy::Part)
            ShowParts(parts);
        else
            ShowScale(state.color_by, parts);
    }

    void ShowParts(const PartList& parts)
    {
        mp_title->setText(tr("Each part has a colour of its own."));
        mp_title->setWordWrap(true);
        mp_table->setHeaderLabels({tr("Part"), tr("Surface")});
        for (const Part& part : parts) {
            const QColor color = QColor::fromRgb(part.color);
            auto* item = new QTreeWidgetItem(
                mp_table, {part.name, m_host.workspace.Format().Area(part.Area())});
            item->setIcon(0, Swatch(color, color));
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        }
    }

    void ShowScale(ColorBy quantity, const PartList& parts)
    {
        const Formatter& format = m_host.workspace.Format();
        const ColorScale scale = ScaleOf(quantity, parts);
        const bool height = quantity == ColorBy::Height;
        std::map<double, QColor> stops;
        for (size_t i = 0; i < scale.colors.size(); ++i)
            stops[height ? format.ToUnit(scale.ValueOf(i)) : scale.ValueOf(i)] = scale.colors[i];
        mp_legend->SetColorsAndLabels(stops);
        mp_title->setText(height ? tr("Height in %1").arg(format.Suffix())
                                 : tr("Degrees that a surface leans over"));
        mp_table->setHeaderLabels({height ? tr("Height") : tr("Angle"), tr("Surface")});
        const std::vector<double> areas = AreasOf(quantity, scale, parts);
        for (size_t i = areas.size(); i-- > 0;) {
            const double from = scale.ValueOf(i), to = scale.ValueOf(i + 1);
            const QString range =
                height ? format.LengthNumber(from) + QStringLiteral(" \u2013 ") +
                             format.LengthNumber(to)
                       : QStringLiteral("%1 \u2013 %2").arg(format.Angle(from), format.Angle(to));
            auto* item = new QTreeWidgetItem(mp_table, {range, format.Area(areas[i])});
            item->setIcon(0, Swatch(scale.colors[i], scale.colors[i + 1]));
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        }
    }

    Host& m_host;
    QComboBox* mp_quantity;
    QLabel* mp_title;
    ovk::ColorLegend* mp_legend;
    QTreeWidget* mp_table;
    bool m_following = false;
};

} // namespace

HostPage* MakeLegendPage(Host& host)
{
    return new LegendPage(host);
}

} // namespace tarnix
