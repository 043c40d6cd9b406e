// A property tree with open editors, beside its floor: the same editors put into a plain tree view
// as index widgets. The goals: at most 1.5 times the floor at 1,000 rows, linear in the number of
// rows; and the repaint of a large legend beside a plain drawing of its image.
//
// The contenders of a row are run in turn, so that a disturbance of the machine hits both, and the
// medians are compared. Runs without a display: QT_QPA_PLATFORM=offscreen.

#include <ovk/units/edit_dbl_suffix.h>
#include <ovk/widgets/color_edit.h>
#include <ovk/widgets/color_legend.h>
#include <ovk/widgets/tree_edit/check_box_delegate.h>
#include <ovk/widgets/tree_edit/color_edit_delegate.h>
#include <ovk/widgets/tree_edit/combo_box_delegate.h>
#include <ovk/widgets/tree_edit/item_data_provider.h>
#include <ovk/widgets/tree_edit/spin_box_delegate.h>
#include <ovk/widgets/tree_edit/tree_edit.h>
#include <ovk/widgets/tree_edit/tree_edit_item.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPainter>
#include <QStandardItemModel>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

using namespace ovk;

namespace {

constexpr double g_goal = 1.5;
constexpr int g_goal_rows = 1000;
constexpr int g_sizes[] = {250, 1000, 4000};
/// The kinds of editors in a mixed form; the first of them, a check box, is the cheapest.
constexpr int g_kinds = 5;
constexpr QSize g_view_size(400, 800);

const QStringList& Texts()
{
    static const QStringList texts = {"Draft", "Standard", "Fine"};
    return texts;
}

class Value : public IItemDataProvider
{
public:
    explicit Value(const QVariant& value) : m_value(value) {}
    QVariant GetData() override { return m_value; }
    bool SetData(const QVariant& value) override
    {
        m_value = value;
        return true;
    }

private:
    QVariant m_value;
};

QVariant InitialValue(int kind)
{
    switch (kind) {
    case 0:
        return true;
    case 1:
        return 1;
    case 2:
        return QColor(Qt::darkCyan);
    case 3:
        return 20;
    default:
        return 42.125;
    }
}

EditDblSuffix* SpinBox(double max, int decimals, double value)
{
    auto box = std::make_unique<EditDblSuffix>();
    box->setMinimum(0.0);
    box->setMaximum(max);
    box->setSuffix(QStringLiteral(" mm"));
    box->setSuffixVisible(EditDblSuffix::spVisible);
    box->setDecimals(decimals);
    box->setFrame(false);
    box->setValue(value);
    return box.release();
}

/// The editor that the property tree makes for a row, made by hand.
QWidget* BareEditor(int kind)
{
    switch (kind) {
    case 0: {
        auto* const box = new QCheckBox;
        box->setChecked(true);
        return box;
    }
    case 1: {
        auto* const box = new QComboBox;
        box->addItems(Texts());
        box->setFrame(false);
        box->setCurrentIndex(1);
        return box;
    }
    case 2: {
        auto* const edit = new ColorEdit;
        edit->setAutoFillBackground(true);
        edit->setMargins(0, 0, 1, 0);
        edit->setColor(Qt::darkCyan);
        return edit;
    }
    case 3:
        return SpinBox(100.0, 0, 20.0);
    default:
        return SpinBox(400.0, 3, 42.125);
    }
}

TreeItemDelegateWrapper Delegate(int kind)
{
    switch (kind) {
    case 0:
        return CheckBoxDelegate::GetInstance();
    case 1:
        return new ComboBoxDelegate(Texts());
    case 2:
        return ColorEditDelegate::GetInstance();
    case 3:
        return new SpinBoxDelegate(QStringLiteral(" mm"), 0, 100);
    default:
        return new DoubleSpinBoxDelegate(QStringLiteral(" mm"), 0.0, 400.0);
    }
}

void Settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Show(QWidget& view)
{
    view.resize(g_view_size);
    view.show();
    Settle();
}

struct BareTree
{
    BareTree(int rows, int kinds) : model(rows, 2)
    {
        for (int row = 0; row < rows; ++row)
            model.setData(model.index(row, 0), QStringLiteral("Property %1").arg(row));
        view.setModel(&model);
        for (int row = 0; row < rows; ++row)
            view.setIndexWidget(model.index(row, 1), BareEditor(row % kinds));
        Show(view);
    }

    QStandardItemModel model;
    QTreeView view;
};

struct PropertyTree
{
    PropertyTree(int rows, int kinds)
    {
        for (int row = 0; row < rows; ++row) {
            items.push_back(
                view.AddItem(QStringLiteral("Property %1").arg(row), Delegate(row % kinds)));
            values.push_back(std::make_unique<Value>(InitialValue(row % kinds)));
            items.back()->SetDataProvider(values.back().get());
        }
        view.CreateEditors();
        Show(view);
    }

    // Behind the view: it must not outlive what it reads.
    std::vector<std::unique_ptr<Value>> values;
    std::vector<TreeEditItem*> items;
    TreeEdit view;
};

using Clock = std::chrono::steady_clock;

double Milliseconds(const std::function<void()>& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Pair
{
    double ours;
    double floor;
};

/// Medians of both, run in turn. Each function answers the time that it wants to be counted.
Pair Compare(int rounds, const std::function<double()>& ours, const std::function<double()>& floor)
{
    std::vector<double> our_times, floor_times;
    for (int round = 0; round < rounds; ++round) {
        floor_times.push_back(floor());
        our_times.push_back(ours());
    }
    return {Median(our_times), Median(floor_times)};
}

void Print(const char* what, int size, const Pair& pair)
{
    std::printf("%-34s %6d %12.3f ms %12.3f ms %8.2f\n", what, size, pair.ours, pair.floor,
                pair.ours / pair.floor);
}

/// By which power of the size the time grows, from the first to the last.
double Exponent(const std::vector<double>& times)
{
    return std::log(times.back() / times.front()) /
           std::log(static_cast<double>(g_sizes[times.size() - 1]) / g_sizes[0]);
}

template <class Measure> double Table(const char* what, Measure measure)
{
    std::vector<double> ours, floors;
    double ratio_at_goal = 0.0;
    for (const int rows : g_sizes) {
        const Pair pair = measure(rows);
        Print(what, rows, pair);
        ours.push_back(pair.ours);
        floors.push_back(pair.floor);
        if (rows == g_goal_rows)
            ratio_at_goal = pair.ours / pair.floor;
    }
    std::printf("%-34s grows by the power %.2f (floor %.2f)\n\n", what, Exponent(ours),
                Exponent(floors));
    return ratio_at_goal;
}

Pair BuildAndShow(int rows, int kinds)
{
    return Compare(
        rows > g_goal_rows ? 3 : 7,
        [=] {
            std::unique_ptr<PropertyTree> tree;
            return Milliseconds([&] { tree = std::make_unique<PropertyTree>(rows, kinds); });
        },
        [=] {
            std::unique_ptr<BareTree> tree;
            return Milliseconds([&] { tree = std::make_unique<BareTree>(rows, kinds); });
        });
}

/// A row is hidden and shown again, and the view brought up to date.
Pair HideAndShow(int rows)
{
    PropertyTree ours(rows, g_kinds);
    BareTree floor(rows, g_kinds);
    const int row = rows / 2;
    return Compare(
        9,
        [&] {
            return Milliseconds([&] {
                ours.items[static_cast<std::size_t>(row)]->SetVisible(false);
                Settle();
                ours.items[static_cast<std::size_t>(row)]->SetVisible(true);
                Settle();
            });
        },
        [&] {
            return Milliseconds([&] {
                floor.view.setRowHidden(row, QModelIndex(), true);
                Settle();
                floor.view.setRowHidden(row, QModelIndex(), false);
                Settle();
            });
        });
}

class PlainImage : public QWidget
{
public:
    explicit PlainImage(QSize size) : m_image(size, QImage::Format_RGB32)
    {
        m_image.fill(Qt::darkCyan);
        resize(size);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, m_image); }

private:
    QImage m_image;
};

Pair RepaintLegend(int edge)
{
    ColorLegend legend;
    legend.setProperty("colorSize", edge);
    legend.resize(edge, edge);
    PlainImage plain(QSize(edge, edge));
    QImage canvas(edge, edge, QImage::Format_RGB32);
    const auto paint = [&canvas](QWidget& widget) {
        return Milliseconds(
            [&] { widget.render(&canvas, QPoint(), QRegion(), QWidget::RenderFlags()); });
    };
    return Compare(
        101, [&] { return paint(legend); }, [&] { return paint(plain); });
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::printf("%-34s %6s %15s %15s %8s\n", "", "size", "ours", "floor", "ratio");
    // Code and fonts are loaded by whoever comes first.
    PropertyTree(10, g_kinds);
    BareTree(10, g_kinds);
    const double mixed =
        Table("build and show, mixed rows", [](int rows) { return BuildAndShow(rows, g_kinds); });
    const double cheap =
        Table("build and show, check boxes", [](int rows) { return BuildAndShow(rows, 1); });
    Table("hide and show a row, rows", HideAndShow);
    Table("repaint a legend, edge", RepaintLegend);
    std::printf("goal: at most %.1f at %d rows: %s\n", g_goal, g_goal_rows,
                std::max(mixed, cheap) <= g_goal ? "reached" : "missed");
    return 0;
}
