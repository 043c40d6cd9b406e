#include "preferences/preference_form.h"

#include "preferences/preference_delegates.h"

#include <ovk/core/observer.h>
#include <ovk/widgets/tree_edit/check_box_delegate.h>
#include <ovk/widgets/tree_edit/item_data_provider.h>
#include <ovk/widgets/tree_edit/tree_edit.h>
#include <ovk/widgets/tree_edit/tree_edit_item.h>

#include <QCoreApplication>

#include <algorithm>

namespace tarnix {

class PreferenceForm::Provider : public ovk::IItemDataProvider
{
public:
    QVariant GetData() override { return *valid ? get() : QVariant(); }
    bool SetData(const QVariant& value) override
    {
        if (!*valid)
            return false;
        set(value);
        changed();
        return true;
    }

    const bool* valid = nullptr;
    std::function<QVariant()> get;
    std::function<void(const QVariant&)> set;
    std::function<void()> changed;
};

struct PreferenceForm::Row
{
    void Update()
    {
        // To the view a hidden row is not there.
        if (*provider.valid && item->IsVisible() && section->IsVisible())
            item->Updated();
    }

    QString words;
    Provider provider;
    ovk::TreeEditItem* item = nullptr;
    ovk::TreeEditSectionItem* section = nullptr;
    ovk::PreferenceBasics* preference = nullptr;
    std::unique_ptr<ovk::ObserverFunctor> observer;
};

struct PreferenceForm::Section
{
    int page = 0;
    QString title;
    ovk::TreeEditSectionItem* item = nullptr;
    std::vector<std::unique_ptr<Row>> rows;
};

PreferenceForm::PreferenceForm(ovk::TreeEdit& tree, const std::function<void()>& changed)
    : m_tree(tree), m_changed(changed)
{
}

PreferenceForm::~PreferenceForm() = default;

void PreferenceForm::AddPage(const QString& title)
{
    m_pages.append(title);
}

void PreferenceForm::AddSection(const QString& title)
{
    auto section = std::make_unique<Section>();
    section->page = m_pages.size() - 1;
    section->title = title;
    section->item = m_tree.AddSection(title, QString());
    m_sections.push_back(std::move(section));
}

void PreferenceForm::AddRow(const Title& title, ovk::TreeItemDelegateWrapper delegate,
                            const std::function<QVariant()>& get,
                            const std::function<void(const QVariant&)>& set,
                            ovk::Observable* observed, ovk::PreferenceBasics* preference)
{
    Section& section = *m_sections.back();
    auto row = std::make_unique<Row>();
    row->words =
        QStringList{m_pages.last(), section.title, title.text, title.hint}.join(QLatin1Char(' '));
    row->provider.valid = &m_valid;
    row->provider.get = get;
    row->provider.set = set;
    row->provider.changed = m_changed;
    row->section = section.item;
    row->preference = preference;
    row->item = section.item->AddItem(title.text, std::move(delegate));
    row->item->SetHint(title.hint);
    row->item->SetDataProvider(&row->provider);
    if (observed) {
        row->observer =
            std::make_unique<ovk::ObserverFunctor>([row = row.get()] { row->Update(); }, false);
        observed->Attach(*row->observer);
    }
    section.rows.push_back(std::move(row));
}

template <class Preference, class Value>
void PreferenceForm::_Add(const Title& title, Preference& preference,
                          ovk::TreeItemDelegateWrapper delegate)
{
    AddRow(
        title, std::move(delegate),
        [&preference] { return QVariant::fromValue<Value>(preference.GetData()); },
        [&preference](const QVariant& value) { preference.SetData(value.value<Value>()); },
        &preference, &preference);
}

void PreferenceForm::AddSwitch(const Title& title, ovk::Preference<bool>& preference)
{
    _Add<ovk::Preference<bool>, bool>(title, preference, ovk::CheckBoxDelegate::GetInstance());
}

void PreferenceForm::AddInvertedSwitch(const Title& title, ovk::Preference<bool>& preference)
{
    _Add<ovk::Preference<bool>, bool>(title, preference,
                                      ovk::CheckBoxInvertedDelegate::GetInstance());
}

void PreferenceForm::AddNumber(const Title& title, DoublePreference& preference,
                               const QString& suffix, int decimals, double step)
{
    _Add<DoublePreference, double>(
        title, preference,
        new NumberDelegate(suffix, preference.Low(), preference.High(), decimals, step));
}

void PreferenceForm::AddLength(const Title& title, DoublePreference& preference)
{
    _Add<DoublePreference, double>(title, preference,
                                   new LengthDelegate(preference.Low(), preference.High()));
}

void PreferenceForm::AddWhole(const Title& title, IntPreference& preference, const QString& suffix)
{
    _Add<IntPreference, int>(title, preference,
                             new WholeDelegate(suffix, preference.Low(), preference.High()));
}

void PreferenceForm::AddChoice(const Title& title, IntPreference& preference,
                               const QStringList& texts)
{
    _Add<IntPreference, int>(title, preference, new ChoiceDelegate(texts));
}

void PreferenceForm::AddColor(const Title& title, ColorPreference& preference,
                              const QString& without)
{
    _Add<ColorPreference, QColor>(title, preference, new ThemeColorDelegate(without));
}

void PreferenceForm::AddFont(const Title& title, FontPreference& preference)
{
    _Add<FontPreference, QFont>(title, preference, new FontDelegate);
}

void PreferenceForm::AddAction(const Title& title, const QString& button,
                               const std::function<void()>& run)
{
    AddRow(
        title, new ActionDelegate(run), [button] { return button; }, [](const QVariant&) {});
}

void PreferenceForm::Finish(int page)
{
    // Rows that are not seen need no editors yet.
    ShowPage(page);
    m_tree.CreateEditors();
    Update();
}

QStringList PreferenceForm::Pages() const
{
    return m_pages;
}

void PreferenceForm::ShowPage(int page)
{
    _NameSections(false);
    _Show([page](const Section& section, const Row&) { return section.page == page; });
}

int PreferenceForm::Search(const QString& text)
{
    const QStringList words = text.simplified().split(QLatin1Char(' '));
    int found = 0;
    _NameSections(true);
    _Show([&](const Section&, const Row& row) {
        const bool fits = std::all_of(words.begin(), words.end(), [&row](const QString& word) {
            return row.words.contains(word, Qt::CaseInsensitive);
        });
        found += fits;
        return fits;
    });
    return found;
}

void PreferenceForm::_Show(const std::function<bool(const Section&, const Row&)>& wanted)
{
    for (const auto& section : m_sections) {
        std::vector<bool> shown;
        for (const auto& row : section->rows)
            shown.push_back(wanted(*section, *row));
        const bool any = std::find(shown.begin(), shown.end(), true) != shown.end();
        // Rows come and go while their section is away: the view has less to do.
        if (!any)
            section->item->SetVisible(false);
        for (size_t i = 0; i < shown.size() && any; ++i)
            section->rows[i]->item->SetVisible(shown[i]);
        section->item->SetVisible(any);
    }
    m_tree.expandAll();
    m_tree.scrollToTop();
    // The view selects the text of every editor that it opens.
    Update();
}

void PreferenceForm::_NameSections(bool with_page)
{
    const QString pattern = QStringLiteral("%1  \u203a  %2");
    for (const auto& section : m_sections) {
        const QString title =
            with_page ? pattern.arg(m_pages.at(section->page), section->title) : section->title;
        if (title != section->item->GetTitle())
            section->item->SetTitle(title);
    }
}

void PreferenceForm::RestoreShown()
{
    for (const auto& section : m_sections) {
        for (const auto& row : section->rows) {
            if (m_valid && row->preference && section->item->IsVisible() && row->item->IsVisible())
                row->preference->RestoreDefault();
        }
    }
    m_changed();
}

void PreferenceForm::Update()
{
    for (const auto& section : m_sections) {
        for (const auto& row : section->rows)
            row->Update();
    }
}

void PreferenceForm::Invalidate()
{
    m_valid = false;
}

int PreferenceForm::RowCount() const
{
    size_t count = 0;
    for (const auto& section : m_sections)
        count += section->rows.size();
    return static_cast<int>(count);
}

} // namespace tarnix
