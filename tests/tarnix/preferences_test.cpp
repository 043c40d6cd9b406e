#include "../support/test_main.h"

#include "host_fixture.h"
#include "preferences/preferences_page.h"

#include <ovk/commands/ui_command.h>
#include <ovk/preferences/preferences_controller.h>
#include <ovk/widgets/tree_edit/tree_edit.h>
#include <ovk/widgets/tree_edit/tree_edit_item.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

using namespace tarnix;
using tarnix_test::HostFixture;

/// The preferences of the program, and the page on which the user changes them.
class PreferencesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_host = std::make_unique<HostFixture>("Tarnix"); }
    void cleanupTestCase() { m_host.reset(); }
    void init()
    {
        m_host->CloseDialogs();
        S().RestoreDefaults();
        Apply();
    }

    void thereAreManyInManyChapters()
    {
        int preferences = 0;
        int chapters = 0;
        Count(ovk::PreferencesController::GetInstance()->GetRootChapter(), preferences, chapters);
        QVERIFY2(preferences >= 60, qPrintable(QString::number(preferences)));
        QVERIFY2(chapters >= 12, qPrintable(QString::number(chapters)));
    }

    void theProgramReadsWhatItWrites();
    void restoringBringsEverythingBack();
    void commandsAreNotUndoneByOtherChanges();

    void thePageShowsOneOfItsPages();
    void aSearchFindsRowsOfAllPages();
    void lengthsFollowTheUnit();
    void aChangeIsSeenAtOnce();
    void whatIsShownIsRestored();
    void materialsComeAndGo();
    void anInvertedRowIsShownInverted();
    void thePageComesBackAsItWas();
    void oldFilesAreTakenOverOnThePage();

private:
    Settings& S() { return m_host->GetHost().settings; }
    void Apply() { m_host->GetHost().ApplySettings(); }
    static void Count(const ovk::PreferenceChapter& chapter, int& preferences, int& chapters)
    {
        for (const ovk::PreferenceBasics* item : chapter.Items()) {
            if (auto* const child = dynamic_cast<const ovk::PreferenceChapter*>(item)) {
                ++chapters;
                Count(*child, preferences, chapters);
            } else {
                ++preferences;
            }
        }
    }
    PreferencesPage* OpenPage(int page)
    {
        m_host->Window().ShowOptions();
        QCoreApplication::processEvents();
        auto* const options = m_host->Window().findChild<PreferencesPage*>("options");
        options->findChild<QLineEdit*>("optionsSearch")->clear();
        options->findChild<QListWidget*>("optionsPages")->setCurrentRow(page);
        QCoreApplication::processEvents();
        return options;
    }
    static ovk::TreeEdit* Tree(PreferencesPage* page)
    {
        return page->findChild<ovk::TreeEdit*>("optionsTree");
    }
    static QStringList Sections(PreferencesPage* page)
    {
        QStringList titles;
        const QAbstractItemModel* const model = Tree(page)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            titles << model->index(row, 0).data().toString();
        return titles;
    }
    /// The editor of the first row that is seen of that title.
    template <class Editor> static Editor* EditorOf(PreferencesPage* page, const QString& title)
    {
        const QAbstractItemModel* const model = Tree(page)->model();
        for (int section = 0; section < model->rowCount(); ++section) {
            const QModelIndex parent = model->index(section, 0);
            for (int row = 0; row < model->rowCount(parent); ++row) {
                if (model->index(row, 0, parent).data().toString() == title)
                    return qobject_cast<Editor*>(
                        ovk::TreeEdit::GetItem(model->index(row, 0, parent))->GetEditor());
            }
        }
        return nullptr;
    }

    std::unique_ptr<HostFixture> m_host;
};

void PreferencesPageTest::theProgramReadsWhatItWrites()
{
    Settings& s = S();
    s.background_top.SetData(QColor(1, 2, 3));
    s.move_step.SetData(12.3456);
    s.scene_font.SetData(QFont("Monospace", 17));
    s.start_view.Set(-20.5, 33.25);
    s.recent_files.SetData({"a", "b \r\n c"});
    s.options_state.SetData(QByteArray("\0\1\2\xff", 4));
    s.materials.Remove(0);
    s.materials.At(0)->name.SetData("New & old");
    s.materials.At(0)->layer_thickness.SetData(0.3);
    ovk::PreferencesController& controller = *ovk::PreferencesController::GetInstance();
    controller.Save();
    const int count = s.materials.Count();
    s.background_top.SetData(QColor());
    s.move_step.SetData(1.0);
    s.scene_font.SetData(QFont());
    s.start_view.RestoreDefault();
    s.recent_files.SetData({});
    s.options_state.SetData({});
    s.materials.Clear();
    controller.Reload();
    QCOMPARE(s.background_top.GetData(), QColor(1, 2, 3));
    QCOMPARE(s.move_step.GetData(), 12.3456);
    QCOMPARE(s.scene_font.GetData(), QFont("Monospace", 17));
    QCOMPARE(s.start_view.Azimuth(), -20.5);
    QCOMPARE(s.start_view.Elevation(), 33.25);
    QCOMPARE(s.recent_files.GetData(), (QStringList{"a", "b \r\n c"}));
    QCOMPARE(s.options_state.GetData(), QByteArray("\0\1\2\xff", 4));
    QCOMPARE(s.materials.Count(), count);
    QCOMPARE(s.materials.At(0)->name.GetData(), QString("New & old"));
    QCOMPARE(s.materials.At(0)->layer_thickness.GetData(), 0.3);
}

void PreferencesPageTest::restoringBringsEverythingBack()
{
    Settings& s = S();
    s.recent_files.SetData({"kept"});
    s.geometry.SetData("kept");
    s.layout.SetData("Inspect");
    s.grid_step.SetData(3.0);
    s.materials.Clear();
    s.start_view.Set(1.0, 2.0);
    s.RestoreDefaults();
    QCOMPARE(s.grid_step.GetData(), 0.0);
    QVERIFY(s.materials.Find("PETG"));
    QCOMPARE(s.start_view.Azimuth(), 32.0);
    QCOMPARE(s.recent_files.GetData(), QStringList("kept"));
    QCOMPARE(s.geometry.GetData(), QByteArray("kept"));
    QCOMPARE(s.layout.GetData(), QString("Inspect"));
}

void PreferencesPageTest::commandsAreNotUndoneByOtherChanges()
{
    QVERIFY(m_host->GetWorkspace().GetViewState().grid);
    QVERIFY(m_host->Run("Show.Grid"));
    QVERIFY(!m_host->GetWorkspace().GetViewState().grid);
    PreferencesPage* const page = OpenPage(0);
    auto* const editor = EditorOf<QDoubleSpinBox>(page, "Step of moving");
    QVERIFY(editor);
    editor->setValue(8.0);
    QTRY_COMPARE(m_host->GetWorkspace().move_step, 8.0);
    QVERIFY(!m_host->GetWorkspace().GetViewState().grid);
}

void PreferencesPageTest::thePageShowsOneOfItsPages()
{
    PreferencesPage* page = OpenPage(0);
    QVERIFY(page->RowCount() >= 60);
    auto* const list = page->findChild<QListWidget*>("optionsPages");
    QVERIFY(list->count() >= 10);
    QStringList seen;
    for (int i = 0; i < list->count(); ++i) {
        page = OpenPage(i);
        QVERIFY(!Sections(page).isEmpty());
        for (const QString& section : Sections(page)) {
            QVERIFY2(!seen.contains(section), qPrintable(section));
            seen << section;
        }
    }
}

void PreferencesPageTest::aSearchFindsRowsOfAllPages()
{
    PreferencesPage* const page = OpenPage(0);
    auto* const search = page->findChild<QLineEdit*>("optionsSearch");
    search->setText("grid");
    QVERIFY(Sections(page).join('\n').contains("Colours"));
    QVERIFY(Sections(page).join('\n').contains("View"));
    QVERIFY(EditorOf<QCheckBox>(page, "Grid"));
    QCOMPARE(page->findChild<QListWidget*>("optionsPages")->currentRow(), -1);
    search->setText("lines STRONG");
    QVERIFY(EditorOf<QWidget>(page, "Strong lines"));
    QVERIFY(!EditorOf<QWidget>(page, "Density"));
    search->setText("of no row");
    QVERIFY(Tree(page)->isHidden());
    QVERIFY(!page->findChild<QLabel*>("optionsNothing")->isHidden());
    QVERIFY(!page->findChild<QPushButton*>("restorePage")->isEnabled());
    search->clear();
    QVERIFY(!Tree(page)->isHidden());
    QCOMPARE(page->findChild<QListWidget*>("optionsPages")->currentRow(), 0);
    QCOMPARE(Sections(page).first(), QString("Numbers"));
}

void PreferencesPageTest::lengthsFollowTheUnit()
{
    PreferencesPage* const page = OpenPage(0);
    S().move_step.SetData(25.4);
    auto* const editor = EditorOf<QDoubleSpinBox>(page, "Step of moving");
    QCOMPARE(editor->value(), 25.4);
    auto* const unit = page->findChild<QComboBox*>("optionsUnit");
    unit->setCurrentIndex(1);
    Q_EMIT unit->activated(1);
    QTRY_COMPARE(editor->value(), 1.0);
    QVERIFY(editor->text().endsWith("inch"));
    QCOMPARE(editor->decimals(), 4);
    QCOMPARE(S().move_step.GetData(), 25.4);
    editor->setValue(2.0);
    QCOMPARE(S().move_step.GetData(), 50.8);
    unit->setCurrentIndex(0);
    Q_EMIT unit->activated(0);
    QTRY_COMPARE(editor->value(), 50.8);
}

void PreferencesPageTest::aChangeIsSeenAtOnce()
{
    PreferencesPage* const page = OpenPage(3);
    auto* const grid = EditorOf<QCheckBox>(page, "Grid");
    QVERIFY(grid && grid->isChecked());
    grid->click();
    QTRY_VERIFY(!m_host->GetWorkspace().GetViewState().grid);
    // The other way round: the row follows the preference.
    S().grid.SetData(true);
    QVERIFY(grid->isChecked());
}

void PreferencesPageTest::whatIsShownIsRestored()
{
    S().move_step.SetData(9.0);
    S().hatch_spacing.SetData(9.0);
    Apply();
    PreferencesPage* const page = OpenPage(0);
    page->findChild<QPushButton*>("restorePage")->click();
    QCOMPARE(S().move_step.GetData(), 5.0);
    QCOMPARE(S().hatch_spacing.GetData(), 9.0);
    QTRY_COMPARE(m_host->GetWorkspace().move_step, 5.0);
    page->findChild<QPushButton*>("restoreDefaults")->click();
    QCOMPARE(S().hatch_spacing.GetData(), 1.2);
    QCoreApplication::processEvents();
}

void PreferencesPageTest::materialsComeAndGo()
{
    PreferencesPage* const page = OpenPage(6);
    const int count = S().materials.Count();
    auto* choice = EditorOf<QComboBox>(page, "Material in use");
    QVERIFY(choice);
    QCOMPARE(choice->count(), count + 1);
    choice->setCurrentIndex(choice->findText("Resin"));
    QCOMPARE(S().material.GetData(), QString("Resin"));
    QCOMPARE(S().density.GetData(), 1.12);
    QTRY_COMPARE(m_host->GetWorkspace().GetViewState().layers.thickness, 0.05);

    EditorOf<QPushButton>(page, "A profile with the figures in use")->click();
    QTRY_COMPARE(S().materials.Count(), count + 1);
    QCOMPARE(S().materials.At(count)->density.GetData(), 1.12);
    QTRY_COMPARE(EditorOf<QComboBox>(page, "Material in use")->count(), count + 2);

    // Of several rows "Name" the first one is that of the first profile.
    auto* const name = EditorOf<QLineEdit>(page, "Name");
    name->setText("Resin");
    name->setModified(true);
    Q_EMIT name->editingFinished();
    QTRY_COMPARE(EditorOf<QLineEdit>(page, "Name")->text(), S().materials.At(0)->name.GetData());
    QVERIFY(S().materials.At(0)->name.GetData() != "Resin");

    EditorOf<QPushButton>(page, "This profile")->click();
    QTRY_COMPARE(S().materials.Count(), count);
    QVERIFY(!S().materials.Find("PLA"));
    QTRY_COMPARE(EditorOf<QComboBox>(page, "Material in use")->count(), count + 1);
    QCOMPARE(S().material.GetData(), QString("Resin"));
}

void PreferencesPageTest::anInvertedRowIsShownInverted()
{
    PreferencesPage* const page = OpenPage(2);
    auto* const ask = EditorOf<QCheckBox>(page, "Ask before unsaved parts are lost");
    QVERIFY(ask && ask->isChecked());
    ask->click();
    QVERIFY(S().dont_ask_unsaved);
    QVERIFY(!ask->isChecked());
}

void PreferencesPageTest::thePageComesBackAsItWas()
{
    PreferencesPage* const page = OpenPage(4);
    page->findChild<QLineEdit*>("optionsSearch")->setText("grid colour");
    for (const bool damaged : {false, true}) {
        if (damaged)
            S().options_state.SetData("no state");
        QScopedPointer<QWidget> parent(new QWidget);
        auto* const next = new PreferencesPage(m_host->GetHost(), parent.data());
        QCOMPARE(next->RowCount(), 0);
        parent->show();
        QCOMPARE(next->findChild<QLineEdit*>("optionsSearch")->text(),
                 QString(damaged ? "" : "grid colour"));
        next->findChild<QLineEdit*>("optionsSearch")->clear();
        QCOMPARE(next->findChild<QListWidget*>("optionsPages")->currentRow(), damaged ? 0 : 4);
    }
}

void PreferencesPageTest::oldFilesAreTakenOverOnThePage()
{
    PreferencesPage* const page = OpenPage(0);
    QTemporaryDir folder;
    const QString path = folder.filePath("old.xml");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<preferences><rotate_part><rotate_step_size>12.5</rotate_step_size></rotate_part></"
               "preferences>");
    file.close();
    page->findChild<QPushButton*>("importOptions")->click();
    auto* const dialog = page->findChild<QFileDialog*>();
    QVERIFY(dialog);
    Q_EMIT dialog->fileSelected(path);
    dialog->reject();
    QTRY_COMPARE(m_host->GetWorkspace().turn_step, 12.5);
    QTRY_COMPARE(EditorOf<QDoubleSpinBox>(page, "Step of turning")->value(), 12.5);
}

OVK_TEST_CLASS(PreferencesPageTest)

#include "preferences_test.moc"
