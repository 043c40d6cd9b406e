#include "tests/support/test_main.h"

#include <ovk/units.h>

using namespace ovk;

namespace {

class Binding : public DataBinding
{
public:
    Binding(QStringList& log, const QString& name) : m_log(log), m_name(name) {}
    ~Binding() override { m_log << "delete " + m_name; }

    using DataBinding::_NotifyOnValidityChanged;
    using DataBinding::_NotifyOnValueChanged;
    void Set(bool valid, bool modified)
    {
        m_valid = valid;
        m_modified = modified;
    }
    void SetModifier(Modifier modifier) { m_modifier = modifier; }

protected:
    void _LoadFromSource() override { m_log << "load " + m_name; }
    void _ReloadFromSource() override { m_log << "reload " + m_name; }
    void _CommitToSource() override { m_log << "commit " + m_name; }

private:
    QStringList& m_log;
    QString m_name;
};

class Controller : public DataBindingController
{
public:
    Controller(QStringList& log, const QString& name) : m_log(log), m_name(name) {}

    Binding* Add(const QString& name)
    {
        auto* const binding = new Binding(m_log, name); // owned by the controller
        binding->SetController(*this);
        return binding;
    }
    DataBinding* last = nullptr;

protected:
    void _OnValueChanged(DataBinding* binding) override
    {
        last = binding;
        m_log << "value in " + m_name;
    }
    void _OnValidityChanged(DataBinding* binding) override
    {
        last = binding;
        m_log << "validity in " + m_name;
    }
    void _OnCommit() override { m_log << "committed " + m_name; }
    void _OnLoad() override { m_log << "loaded " + m_name; }

private:
    QStringList& m_log;
    QString m_name;
};

/// A dialog with a page that has a page.
struct Dialog
{
    explicit Dialog(QStringList& log) : top(log, "top"), page(log, "page"), inner(log, "inner")
    {
        top.AddSubController(&page);
        page.AddSubController(&inner);
    }
    Controller top;
    Controller page;
    Controller inner;
};

} // namespace

class DataBindingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewBindingIsValidAndUnmodified();
    void aControllerWithNothingInItIsValid();
    void oneInvalidBindingStopsTheCommitOfAll();
    void pagesComeFirstThenBindingsThenTheHook();
    void loadingAndReloadingShareTheHook();
    void aModifiedBindingBelowModifiesTheDialog();
    void aValueChangeClimbsToTheTop();
    void aValidityChangeReachesControllersOnly();
    void addingAPageTwiceLeavesOne();
    void movingAPageTakesItOutOfItsOldPlace();
    void addingAPageElsewhereDoesNotTellItsOldPlace();
    void removingAPageOfAnotherDoesNothing();
    void aCircleIsRefused();
    void theControllerDeletesItsBindings();
};

void DataBindingTest::aNewBindingIsValidAndUnmodified()
{
    QStringList log;
    Binding binding(log, "a");
    QVERIFY(binding.IsValid());
    QVERIFY(!binding.IsModified());
    QCOMPARE(int(binding.GetModifier()), 0);
    binding.SetModifier(DataBinding::mdUser);
    QCOMPARE(int(binding.GetModifier()), 1);
    QCOMPARE(int(DataBinding::mdProgram), 2);
    binding._NotifyOnValueChanged(); // without a controller
    binding._NotifyOnValidityChanged();
}

void DataBindingTest::aControllerWithNothingInItIsValid()
{
    DataBindingController controller;
    QVERIFY(controller.IsValid());
    QVERIFY(!controller.IsModified());
    QVERIFY(controller.CommitToSources());
}

void DataBindingTest::oneInvalidBindingStopsTheCommitOfAll()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.Add("a");
    dialog.page.Add("b");
    dialog.inner.Add("c")->Set(false, false);
    QVERIFY(!dialog.top.IsValid());
    QVERIFY(!dialog.top.CommitToSources());
    QVERIFY(log.isEmpty());
}

void DataBindingTest::pagesComeFirstThenBindingsThenTheHook()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.Add("a");
    dialog.top.Add("b");
    dialog.page.Add("c");
    dialog.inner.Add("d");
    QVERIFY(dialog.top.CommitToSources());
    QCOMPARE(log, (QStringList{"commit d", "committed inner", "commit c", "committed page", "commit a",
                               "commit b", "committed top"}));
}

void DataBindingTest::loadingAndReloadingShareTheHook()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.Add("a");
    dialog.page.Add("b");
    dialog.top.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded inner", "load b", "loaded page", "load a", "loaded top"}));
    log.clear();
    dialog.top.ReloadFromSources();
    QCOMPARE(log, (QStringList{"loaded inner", "reload b", "loaded page", "reload a", "loaded top"}));
}

void DataBindingTest::aModifiedBindingBelowModifiesTheDialog()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.Add("a");
    Binding* const deep = dialog.inner.Add("b");
    QVERIFY(!dialog.top.IsModified());
    deep->Set(true, true);
    QVERIFY(dialog.top.IsModified());
    QVERIFY(dialog.top.IsValid());
}

void DataBindingTest::aValueChangeClimbsToTheTop()
{
    QStringList log;
    Dialog dialog(log);
    Binding* const deep = dialog.inner.Add("a");
    deep->Attach([&log] { log << "observer"; });
    deep->_NotifyOnValueChanged();
    QCOMPARE(log, (QStringList{"observer", "value in inner", "value in page", "value in top"}));
    QVERIFY(dialog.top.last == deep);
}

void DataBindingTest::aValidityChangeReachesControllersOnly()
{
    QStringList log;
    Dialog dialog(log);
    Binding* const deep = dialog.inner.Add("a");
    deep->Attach([&log] { log << "observer"; });
    deep->_NotifyOnValidityChanged();
    QCOMPARE(log, (QStringList{"validity in inner", "validity in page", "validity in top"}));
    QVERIFY(dialog.top.last == deep);
}

void DataBindingTest::addingAPageTwiceLeavesOne()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.AddSubController(&dialog.page);
    dialog.top.AddSubController(nullptr);
    dialog.top.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded inner", "loaded page", "loaded top"}));
}

void DataBindingTest::movingAPageTakesItOutOfItsOldPlace()
{
    QStringList log;
    Dialog dialog(log);
    dialog.inner.SetTopController(&dialog.top);
    dialog.inner.SetTopController(&dialog.top);
    dialog.top.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded page", "loaded inner", "loaded top"}));
    log.clear();
    dialog.inner.SetTopController(nullptr);
    dialog.top.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded page", "loaded top"}));
}

void DataBindingTest::addingAPageElsewhereDoesNotTellItsOldPlace()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.AddSubController(&dialog.inner);
    dialog.page.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded inner", "loaded page"}));
    log.clear();
    dialog.page.RemoveSubController(&dialog.inner); // no longer its top
    dialog.page.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded inner", "loaded page"}));
}

void DataBindingTest::removingAPageOfAnotherDoesNothing()
{
    QStringList log;
    Dialog dialog(log);
    dialog.top.RemoveSubController(&dialog.inner);
    dialog.top.RemoveSubController(nullptr);
    dialog.top.LoadFromSources();
    QCOMPARE(log, (QStringList{"loaded inner", "loaded page", "loaded top"}));
}

void DataBindingTest::aCircleIsRefused()
{
    QStringList log;
    Dialog dialog(log);
    dialog.inner.AddSubController(&dialog.top);
    dialog.top.AddSubController(&dialog.top);
    dialog.inner.Add("a")->_NotifyOnValueChanged();
    QCOMPARE(log, (QStringList{"value in inner", "value in page", "value in top"}));
    log.clear();
    QVERIFY(dialog.top.IsValid());
}

void DataBindingTest::theControllerDeletesItsBindings()
{
    QStringList log;
    {
        Controller controller(log, "dialog");
        controller.Add("a");
        controller.Add("b")->SetController(controller); // twice in the list
    }
    QCOMPARE(log, (QStringList{"delete a", "delete b"}));
}

OVK_TEST_CLASS(DataBindingTest)

#include "data_binding_test.moc"
