#include "tests/support/test_main.h"

#include <ovk/widgets.h>

#include <QCheckBox>
#include <QDoubleSpinBox>

namespace {

struct Part
{
    QString name = "Gear";
    bool locked = false;
    double scale = 1.0;
    int material = 0;
};

template <class T> class Field : public ovk::IItemDataProvider
{
public:
    Field(T& value, std::function<bool(const T&)> accept = {}) : m_value(value), m_accept(accept) {}

    QVariant GetData() override { return QVariant::fromValue(m_value); }
    bool SetData(const QVariant& value) override
    {
        const T next = value.value<T>();
        if (m_accept && !m_accept(next))
            return false; // the editor goes back to what GetData answers
        m_value = next;
        return true;
    }

private:
    T& m_value;
    std::function<bool(const T&)> m_accept;
};

class MaterialDelegate : public ovk::ComboBoxDelegate
{
public:
    MaterialDelegate() : ComboBoxDelegate({"Resin", "Nylon", "Steel"}) {}

protected:
    QVariant _ItemIndexToData(int index) const override { return index; }
    int _DataToItemIndex(const QVariant& data) const override { return data.toInt(); }
};

} // namespace

/// The code of docs/property_forms.md.
class PropertyFormsGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFormEditsAPart()
    {
        Part part;

        // Before the tree, so that they outlive its rows.
        Field<bool> locked(part.locked);
        Field<double> scale(part.scale, [](double value) { return value > 0.0; });
        Field<int> material(part.material);

        ovk::TreeEdit form;
        ovk::TreeEditSectionItem* shape = form.AddSection("Shape", "What the part looks like");
        ovk::TreeEditItem* scale_row = shape->AddItem("Scale", new ovk::DoubleSpinBoxDelegate(0.0, 100.0));
        scale_row->SetDataProvider(&scale);
        ovk::TreeEditItem* locked_row = shape->AddItem("Locked", new ovk::CheckBoxDelegate);
        locked_row->SetDataProvider(&locked);
        ovk::TreeEditItem* material_row = form.AddItem("Material", new MaterialDelegate);
        material_row->SetDataProvider(&material);
        form.CreateEditors();
        form.show();

        part.scale = 2.0;
        scale_row->Updated(); // whoever else changes the part tells the row
        QVERIFY(scale_row->GetEditor());
        QTRY_COMPARE(scale_row->GetEditor()->findChild<QDoubleSpinBox*>() ||
                         qobject_cast<QDoubleSpinBox*>(scale_row->GetEditor()),
                     true);

        scale_row->SetEnabled(!part.locked);
        material_row->SetVisible(false);
        QVERIFY(!material_row->IsVisible());
        QVERIFY(!scale_row->SetData(-1.0));
        QVERIFY(scale_row->SetData(3.0));
        QCOMPARE(part.scale, 3.0);
        QVERIFY(material_row->SetData(2));
        QCOMPARE(part.material, 2);
    }
};

OVK_TEST_CLASS(PropertyFormsGuideTest)

#include "property_forms_guide.moc"
