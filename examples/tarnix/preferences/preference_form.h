#pragma once

#include "preferences/preference_types.h"

#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

namespace ovk {
class TreeEdit;
class TreeEditSectionItem;
} // namespace ovk

namespace tarnix {

/// Shows preferences as the rows of a TreeEdit. Rows stand in sections, and sections on pages, of
/// which one is shown; a search shows what fits from all of them.
///
/// A row follows its preference, whoever changes it.
class PreferenceForm
{
public:
    /// What a row is about, for the user.
    struct Title
    {
        QString text;
        QString hint;
    };

    /// `changed` runs after every change by the user. The tree must outlive the form.
    PreferenceForm(ovk::TreeEdit& tree, const std::function<void()>& changed);
    ~PreferenceForm();
    PreferenceForm(const PreferenceForm&) = delete;
    PreferenceForm& operator=(const PreferenceForm&) = delete;

    /// All that follows belongs to this page, and then to this section.
    void AddPage(const QString& title);
    void AddSection(const QString& title);

    void AddSwitch(const Title& title, ovk::Preference<bool>& preference);
    /// Checked while the preference is false.
    void AddInvertedSwitch(const Title& title, ovk::Preference<bool>& preference);
    void AddNumber(const Title& title, DoublePreference& preference, const QString& suffix,
                   int decimals, double step);
    void AddLength(const Title& title, DoublePreference& preference);
    void AddWhole(const Title& title, IntPreference& preference, const QString& suffix = QString());
    void AddChoice(const Title& title, IntPreference& preference, const QStringList& texts);
    /// `without` is what takes the place of a colour that is not chosen.
    void AddColor(const Title& title, ColorPreference& preference, const QString& without);
    void AddFont(const Title& title, FontPreference& preference);
    /// A row with a value of its own.
    void AddRow(const Title& title, ovk::TreeItemDelegateWrapper delegate,
                const std::function<QVariant()>& get,
                const std::function<void(const QVariant&)>& set,
                ovk::Observable* observed = nullptr, ovk::PreferenceBasics* preference = nullptr);
    void AddAction(const Title& title, const QString& button, const std::function<void()>& run);

    /// Shows a page and opens the editors of its rows; called once after the last row. Those of
    /// other rows follow when they come into view.
    void Finish(int page);

    QStringList Pages() const;
    void ShowPage(int page);
    /// Shows the rows of all pages that hold every word of `text`; answers how many there are.
    int Search(const QString& text);
    /// Restores the defaults of all that is seen now.
    void RestoreShown();
    /// Reads all rows again; for what they follow without being told.
    void Update();
    /// Lets no row read or write any more: what some of them stand for is gone, and the form is to be
    /// made anew.
    void Invalidate();
    int RowCount() const;

private:
    struct Row;
    struct Section;
    class Provider;

    /// Among sections of several pages each says to which it belongs.
    void _NameSections(bool with_page);
    void _Show(const std::function<bool(const Section&, const Row&)>& wanted);
    template <class Preference, class Value>
    void _Add(const Title& title, Preference& preference, ovk::TreeItemDelegateWrapper delegate);

    ovk::TreeEdit& m_tree;
    std::function<void()> m_changed;
    QStringList m_pages;
    bool m_valid = true;
    std::vector<std::unique_ptr<Section>> m_sections;
};

} // namespace tarnix
