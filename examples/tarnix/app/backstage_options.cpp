#include "app/backstage.h"
#include "app/backstage_base.h"
#include "app/host.h"
#include "app/number_dialog.h"
#include "app/settings.h"

#include <ovk/core/icons_controller.h>
#include <qtitan/style.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>

namespace tarnix {
namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("tarnix::Options", text);
}

constexpr const char* k_themes[] = {"Office 2007 Blue", "Office 2007 Black", "Office 2007 Silver",
                                    "Office 2007 Aqua", "Windows 7 Scenic",  "Office 2010 Silver",
                                    "Office 2010 Blue", "Office 2010 Black", "Office 2013 White",
                                    "Office 2013 Gray", "Office 2013 Dark"};
constexpr const char* k_accents[] = {
    QT_TRANSLATE_NOOP("tarnix::Options", "Blue"),    QT_TRANSLATE_NOOP("tarnix::Options", "Brown"),
    QT_TRANSLATE_NOOP("tarnix::Options", "Green"),   QT_TRANSLATE_NOOP("tarnix::Options", "Lime"),
    QT_TRANSLATE_NOOP("tarnix::Options", "Magenta"), QT_TRANSLATE_NOOP("tarnix::Options", "Orange"),
    QT_TRANSLATE_NOOP("tarnix::Options", "Pink"),    QT_TRANSLATE_NOOP("tarnix::Options", "Purple"),
    QT_TRANSLATE_NOOP("tarnix::Options", "Red"),     QT_TRANSLATE_NOOP("tarnix::Options", "Teal")};

QIcon Swatch(const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

/// Every change takes effect at once.
class OptionsPage : public HostBackstagePage
{
public:
    OptionsPage(Host& host, QWidget* parent) : HostBackstagePage(host, parent, Tr("Options"))
    {
        setWindowIcon(ovk::IconsController::Load(QStringLiteral("Edit.Preferences")));
        auto* scroll = new QScrollArea(this);
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        auto* content = new QWidget(scroll);
        // The page's own ground shows through.
        scroll->viewport()->setAutoFillBackground(false);
        auto* columns = new QHBoxLayout(content);
        columns->setContentsMargins(0, 0, 8, 0);
        columns->setSpacing(20);
        auto* left = new QVBoxLayout;
        auto* right = new QVBoxLayout;
        columns->addLayout(left);
        columns->addLayout(right);
        columns->addStretch(1);
        scroll->setWidget(content);
        content->setAutoFillBackground(false);
        Body()->addWidget(scroll, 1);

        Settings& s = host.settings;
        QFormLayout* look = AddGroup(left, Tr("Look"));
        AddChoice(look, Tr("Theme"), s.theme, [] {
            QList<QPair<QIcon, QString>> items;
            for (const char* name : k_themes)
                items.append({QIcon(), QString::fromLatin1(name)});
            return items;
        }());
        AddChoice(look, Tr("Accent"), s.accent, [] {
            QList<QPair<QIcon, QString>> items;
            for (int i = 0; i < int(std::size(k_accents)); ++i)
                items.append({Swatch(Qtitan::OfficeStyle::accentColor(
                                  static_cast<Qtitan::OfficeStyle::AccentColor>(i))),
                              Tr(k_accents[i])});
            return items;
        }());
        AddSwitch(look, Tr("Show the titles of groups"), s.group_titles);
        AddSwitch(look, Tr("Ribbon in the caption of the window"), s.own_frame);
        AddSwitch(look, Tr("Status bar"), s.status_bar);

        QFormLayout* units = AddGroup(left, Tr("Units and steps"));
        AddSwitch(units, Tr("Lengths in inches"), s.inches);
        AddNumber(units, Tr("Step of moving"), s.move_step, NumberField::Length);
        AddNumber(units, Tr("Step of turning"), s.turn_step, NumberField::Degrees);
        AddNumber(units, Tr("Gap between parts"), s.gap, NumberField::Length);
        AddSwitch(units, Tr("Drag parts in steps"), s.snap_to_grid);

        QFormLayout* machine = AddGroup(right, Tr("Build volume"));
        AddNumber(machine, Tr("Width"), s.plate_width, NumberField::Length);
        AddNumber(machine, Tr("Depth"), s.plate_depth, NumberField::Length);
        AddNumber(machine, Tr("Height"), s.plate_height, NumberField::Length);

        QFormLayout* material = AddGroup(right, Tr("Material"));
        AddNumber(material, Tr("Density"), s.density, NumberField::Density);
        AddNumber(material, Tr("Overhang limit"), s.overhang, NumberField::Degrees);
        AddNumber(material, Tr("Layer thickness"), s.layer_thickness, NumberField::Length);

        auto* restore = new QPushButton(Tr("Restore defaults"), content);
        restore->setObjectName(QStringLiteral("restoreDefaults"));
        connect(restore, &QPushButton::clicked, this, [this] {
            m_host.settings.RestoreDefaults();
            m_host.ApplySettings();
            Refresh();
        });
        right->addWidget(restore, 0, Qt::AlignLeft);
        left->addStretch(1);
        right->addStretch(1);
    }

protected:
    void Refresh() override
    {
        m_following = true;
        for (const auto& follow : m_follow)
            follow();
        m_following = false;
    }

private:
    QFormLayout* AddGroup(QVBoxLayout* column, const QString& title)
    {
        auto* group = new QGroupBox(title, this);
        group->setMinimumWidth(320);
        auto* form = new QFormLayout(group);
        column->addWidget(group);
        return form;
    }

    void Changed()
    {
        if (!m_following)
            m_host.ApplySettings();
    }

    void AddChoice(QFormLayout* form, const QString& title, IntPreference& preference,
                   const QList<QPair<QIcon, QString>>& items)
    {
        auto* box = new QComboBox(this);
        for (const auto& item : items)
            box->addItem(item.first, item.second);
        form->addRow(title, box);
        m_follow.push_back([box, &preference] { box->setCurrentIndex(preference); });
        connect(box, QOverload<int>::of(&QComboBox::activated), this,
                [this, &preference](int index) {
                    preference.SetData(index);
                    Changed();
                });
    }

    void AddSwitch(QFormLayout* form, const QString& title, SwitchPreference& preference)
    {
        auto* box = new QCheckBox(title, this);
        form->addRow(box);
        m_follow.push_back([box, &preference] { box->setChecked(preference); });
        connect(box, &QCheckBox::toggled, this, [this, &preference](bool on) {
            if (m_following)
                return;
            preference.SetData(on);
            Changed();
            // A change of unit changes what the numbers read.
            Refresh();
        });
    }

    void AddNumber(QFormLayout* form, const QString& title, DoublePreference& preference,
                   NumberField::Kind kind)
    {
        QDoubleSpinBox* editor =
            MakeNumberEditor(this, {title, preference, preference.Low(), preference.High(), kind},
                             m_host.workspace.Format());
        editor->setMinimumWidth(130);
        form->addRow(title, editor);
        const auto to_unit = [this, kind](double value) {
            return kind == NumberField::Length ? m_host.workspace.Format().ToUnit(value) : value;
        };
        m_follow.push_back(
            [editor, to_unit, &preference] { editor->setValue(to_unit(preference)); });
        connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this, kind, &preference](double value) {
                    if (m_following)
                        return;
                    preference.SetData(kind == NumberField::Length
                                           ? m_host.workspace.Format().FromUnit(value)
                                           : value);
                    Changed();
                });
    }

    std::vector<std::function<void()>> m_follow;
    bool m_following = false;
};

} // namespace

Qtitan::RibbonBackstagePage* MakeOptionsPage(Host& host, Qtitan::RibbonBackstageView* view)
{
    return new OptionsPage(host, view);
}

} // namespace tarnix
