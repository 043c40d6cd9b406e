#pragma once

#include "app/backstage_base.h"
#include "preferences/preference_form.h"

#include <ovk/core/observer.h>

#include <QPointer>
#include <QTimer>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace ovk {
class TreeEdit;
}

namespace tarnix {

/// The options of the program: pages of rows, a search over all of them, the unit, defaults and
/// the options of former versions. Every change takes effect at once.
class PreferencesPage : public HostBackstagePage
{
    Q_OBJECT

public:
    PreferencesPage(Host& host, QWidget* parent);
    ~PreferencesPage() override;

    /// The rows of all pages.
    int RowCount() const;

protected:
    void Refresh() override;

private:
    void Build();
    void Changed();
    void ShowRows();
    /// The page and the search that are seen come back with the next start.
    void StoreState();
    void RestoreState();
    void AskImport();
    void Import(const QString& path);
    void UpdateUnit();

    QLineEdit* mp_search;
    QComboBox* mp_unit;
    QListWidget* mp_pages;
    QLabel* mp_nothing;
    QPushButton* mp_restore_page;
    QPushButton* mp_restore_all;
    QPushButton* mp_import;
    QHBoxLayout* mp_body;
    QPointer<ovk::TreeEdit> mp_tree;
    std::unique_ptr<PreferenceForm> mp_form;
    int m_page = 0;
    QTimer m_apply;
    QTimer m_rebuild;
    /// Materials come and go.
    std::unique_ptr<ovk::ObserverFunctor> mp_materials_observer;
};

/// Fills the form with all preferences that the user may change. `rebuild` asks for the form to be
/// made anew, as its rows have changed.
void FillPreferenceForm(PreferenceForm& form, Host& host, const std::function<void()>& rebuild);

} // namespace tarnix
