#include "property_form.h"

#include <ovk/widgets.h>

#include <QColor>

using namespace ovk;

class PropertyForm::Value : public IItemDataProvider
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

PropertyForm::PropertyForm(QWidget* parent) : TreeEdit(parent)
{
    setAccessibleName(tr("Properties"));
    AddGeneral();
    AddNumbers();
    AddLooks();
    AddLocked();
    expandAll();
    CreateEditors();
    setCurrentIndex(model()->index(0, 1, model()->index(0, 0)));
}

PropertyForm::~PropertyForm() = default;

IItemDataProvider* PropertyForm::Keep(const QVariant& value)
{
    m_values.push_back(std::make_unique<Value>(value));
    return m_values.back().get();
}

void PropertyForm::AddGeneral()
{
    TreeEditSectionItem* const section = AddSection(tr("General"), tr("What the part is"));
    section->AddItem(tr("Name"), TreeItemDelegateWrapper())->SetDataProvider(Keep(tr("Bracket")));
    section->AddItem(tr("Visible"), CheckBoxDelegate::GetInstance())->SetDataProvider(Keep(true));
    section->AddItem(tr("Locked"), CheckBoxDelegate::GetInstance())->SetDataProvider(Keep(false));
    TreeEditItem* const skipped =
        section->AddItem(tr("Printed (stored: skipped)"), CheckBoxInvertedDelegate::GetInstance());
    skipped->SetHint(tr("Checked while the stored value is false"));
    skipped->SetDataProvider(Keep(false));
    section->AddItem(tr("Quality"), new ComboBoxDelegate({tr("Draft"), tr("Standard"), tr("Fine")}))
        ->SetDataProvider(Keep(1));
}

void PropertyForm::AddNumbers()
{
    TreeEditSectionItem* const section = AddSection(tr("Numbers"), QString());
    section->AddItem(tr("Copies"), new SpinBoxDelegate(1, 99))->SetDataProvider(Keep(3));
    section->AddItem(tr("Infill"), new SpinBoxDelegate(QStringLiteral(" %"), 0, 100))
        ->SetDataProvider(Keep(20));
    section->AddItem(tr("Height"), new DoubleSpinBoxDelegate(QStringLiteral(" mm"), 0.0, 400.0))
        ->SetDataProvider(Keep(42.125));
    auto degrees = std::make_unique<DoubleSpinBoxDelegate>(QStringLiteral("\u00B0"), 0.0, 90.0);
    degrees->setDecimals(1);
    TreeEditSectionItem* const inner = section->AddSection(tr("Overhang"), QString());
    inner->AddItem(tr("From angle"), degrees.release())->SetDataProvider(Keep(45.0));
    inner->AddItem(tr("Distance"), new DoubleSpinBoxDelegate(-1.0, 1.0))
        ->SetDataProvider(Keep(0.125));
}

void PropertyForm::AddLooks()
{
    TreeEditSectionItem* const section = AddSection(tr("Looks"), QString());
    section->AddItem(tr("Color"), ColorEditDelegate::GetInstance())
        ->SetDataProvider(Keep(QColor(0x2F, 0x7F, 0xD6)));
    section->AddItem(tr("Edges"), ColorEditDelegate::GetInstance())
        ->SetDataProvider(Keep(QColor()));
}

void PropertyForm::AddLocked()
{
    TreeEditItem* const row = AddItem(tr("A row of its own"), new SpinBoxDelegate(0, 9));
    row->SetDataProvider(Keep(5));
    TreeEditItem* const disabled = AddItem(tr("A disabled row"), new SpinBoxDelegate(0, 9));
    disabled->SetDataProvider(Keep(7));
    disabled->SetEnabled(false);
    TreeEditSectionItem* const section = AddSection(tr("A disabled section"), QString());
    TreeEditItem* const below = section->AddItem(tr("Supports"), CheckBoxDelegate::GetInstance());
    below->SetDataProvider(Keep(true));
    below->SetEnabled(false);
    section->SetEnabled(false);
}
