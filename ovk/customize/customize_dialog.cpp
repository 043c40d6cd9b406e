#include "ovk/customize/customize_dialog_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/core/icons_controller.h"
#include "ovk/core/observer.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/docking/dock_settings.h"
#include "ovk/main_window/ribbon_window_p.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/storable_ui.h"
#include "ovk/ui_state/ui_profile.h"
#include "ovk/ui_state/ui_profile_controller.h"

#include <QButtonGroup>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace ovk {

namespace {

std::unique_ptr<UiCustomizeDialog>& Holder()
{
    static std::unique_ptr<UiCustomizeDialog> holder;
    return holder;
}

enum StackPage
{
    spSites = 0,
    spToolpages = 1,
    spStyle = 2
};

UiCommand* FindStyleCommand()
{
    UiFeaturesController* features = UiFeaturesController::GetInstance();
    return features ? features->GetLayoutCommandFromActiveLayout(
                          QStringLiteral("Edit.CustomizeUI.Style"), 0)
                    : nullptr;
}

constexpr int c_width = 140;
constexpr int c_height = 42;

/// A button's text comes from the platform's theme, which often has no translation of it.
void TranslateButton(QAbstractButton* button)
{
    if (!button)
        return;
    const QString text = button->text();
    const QByteArray source = text.toUtf8();
    if (QCoreApplication::translate("QPlatformTheme", source.constData()) == text)
        button->setText(QCoreApplication::translate("QDialogButtonBox", source.constData()));
}

void Notify()
{
    if (RibbonWindow* window = LiveRibbonWindow())
        window->UiCustomizedSignal()->Emit();
}

void Block(bool block)
{
    if (RibbonWindow* window = LiveRibbonWindow())
        window->DoBlockFunc(block);
}

} // namespace

class UiCustomizeDialog::Impl : public PimplBasics<UiCustomizeDialog>, public QDialog
{
public:
    explicit Impl(UiCustomizeDialog& owner);
    ~Impl() override;

    void Open();
    /// Deletes the native window: what is left of the dialog is deleted by its holder.
    void DestroyWindow() { destroy(true, true); }

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* CreatePageButton(const char* name);
    void CreatePages();
    void CreateButtons();
    void Arrange();
    void OrderTabs();
    void Connect();
    void Retranslate();
    void TranslateButtons();
    void UpdateDiscard();
    void ShowPage(int index);
    void BeginEdit();
    void OnControllerChanged();
    void OnHostChanged();

    void OnAccepted();
    void OnRejected();
    void OnDiscard();
    void OnRestoreDefaults();

    StorableUI m_geometry;
    UiCustomizeSitesWidget* mp_sites = nullptr;
    UiCustomizeStyleWidget* mp_style = nullptr;
    UiCustomizeToolpagesWidget* mp_toolpages = nullptr;
    QDialogButtonBox* mp_box = nullptr;
    QStackedWidget* mp_stack = nullptr;
    QToolBar* mp_tool_bar = nullptr;
    QToolButton* mp_btn_style = nullptr;
    QToolButton* mp_btn_sites = nullptr;
    QToolButton* mp_btn_toolpages = nullptr;
    QButtonGroup* mp_group = nullptr;
    std::vector<std::unique_ptr<Observer>> m_observers;
    bool m_changing = false; // the profile is changed from here
};

UiCustomizeDialog::Impl::Impl(UiCustomizeDialog& owner)
    : PimplBasics<UiCustomizeDialog>(owner),
      QDialog(LiveRibbonWindow(),
              Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("UiCustomizeDialog"));
    m_geometry.SetPrefName(QStringLiteral("UiCustomizeDialog"));
    m_geometry.SetWidget(this);
    CreatePages();
    setWindowIcon(IconsController::Load(QStringLiteral("customizeUi")));
    CreateButtons();
    Arrange();
    Retranslate();
    UpdateDiscard();
    Connect();
    mp_btn_sites->click();
}

UiCustomizeDialog::Impl::~Impl()
{
    // The stack turns to another page as each goes, and nobody is left to ask for changes.
    mp_stack->disconnect(this);
    m_observers.clear();
    delete mp_sites;
    delete mp_style;
    delete mp_toolpages;
}

void UiCustomizeDialog::Impl::CreatePages()
{
    const auto observe = [this](Observable& page) {
        m_observers.push_back(
            std::make_unique<ObserverFunctor>([this] { UpdateDiscard(); }, false));
        page.Attach(*m_observers.back());
    };
    mp_sites = UiCustomizeSitesWidget::GetInstance();
    observe(*mp_sites);
    if (FindStyleCommand()) {
        mp_style = UiCustomizeStyleWidget::GetInstance();
        observe(*mp_style);
    }
    mp_toolpages = UiCustomizeToolpagesWidget::GetInstance();
    observe(*mp_toolpages);
    if (UiController* controller = UiController::GetInstance()) {
        m_observers.push_back(
            std::make_unique<ObserverFunctor>([this] { OnControllerChanged(); }, false));
        controller->Attach(*m_observers.back());
    }
}

QToolButton* UiCustomizeDialog::Impl::CreatePageButton(const char* name)
{
    auto* button = new QToolButton(mp_tool_bar);
    button->setObjectName(QLatin1String(name));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setCheckable(true);
    button->setAutoRaise(true);
    mp_group->addButton(button);
    return button;
}

void UiCustomizeDialog::Impl::CreateButtons()
{
    mp_box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Discard, Qt::Horizontal,
                                  this);
    mp_stack = new QStackedWidget(this);
    mp_tool_bar = new QToolBar(this);
    mp_tool_bar->setOrientation(Qt::Vertical);
    mp_tool_bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    mp_group = new QButtonGroup(this);
    mp_btn_style = CreatePageButton("mp_btn_style");
    mp_btn_sites = CreatePageButton("mp_btn_sites");
    mp_btn_toolpages = CreatePageButton("mp_btn_toolpages");
    mp_btn_sites->setIcon(IconsController::Load(QStringLiteral("toolbars")));
    mp_btn_toolpages->setIcon(IconsController::Load(QStringLiteral("toolpages")));
    mp_btn_style->setIcon(IconsController::Load(QStringLiteral("customizeUi")));
    mp_box->addButton(QDialogButtonBox::RestoreDefaults);
    TranslateButtons();
    // Return in a search edit must never throw the user's work away.
    mp_box->button(QDialogButtonBox::Discard)->setAutoDefault(false);
    mp_box->button(QDialogButtonBox::RestoreDefaults)->setAutoDefault(false);
    mp_box->button(QDialogButtonBox::Ok)->setDefault(true);
}

void UiCustomizeDialog::Impl::Arrange()
{
    mp_tool_bar->addWidget(mp_btn_sites);
    mp_tool_bar->addSeparator();
    mp_tool_bar->addWidget(mp_btn_toolpages);
    mp_stack->addWidget(mp_sites->GetWidget());
    mp_stack->addWidget(mp_toolpages->GetWidget());
    if (mp_style) {
        mp_tool_bar->addSeparator();
        mp_tool_bar->addWidget(mp_btn_style);
        mp_stack->addWidget(mp_style->GetWidget());
    } else {
        mp_btn_style->hide();
    }
    auto* top = new QHBoxLayout;
    top->addWidget(mp_tool_bar);
    top->addWidget(mp_stack, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top, 1);
    all->addWidget(mp_box);
    OrderTabs();
    // In lines and characters of the font, so that it is right at every scale.
    resize(fontMetrics().averageCharWidth() * c_width, fontMetrics().height() * c_height);
}

void UiCustomizeDialog::Impl::OrderTabs()
{
    // The pages come first, as they were made; behind them the box, as it is seen, and the buttons
    // of the pages.
    QWidget* last = this;
    while (last->nextInFocusChain() != mp_box && last->nextInFocusChain() != this)
        last = last->nextInFocusChain();
    for (QWidget* next : std::initializer_list<QWidget*>{
             mp_box->button(QDialogButtonBox::RestoreDefaults),
             mp_box->button(QDialogButtonBox::Ok), mp_box->button(QDialogButtonBox::Discard),
             mp_btn_sites, mp_btn_toolpages, mp_btn_style}) {
        setTabOrder(last, next);
        last = next;
    }
}

void UiCustomizeDialog::Impl::Retranslate()
{
    const auto say = [](const char* text) {
        return QCoreApplication::translate("ovk::UiCustomizeDialog::Impl", text);
    };
    setWindowTitle(say(QT_TRANSLATE_NOOP("ovk::UiCustomizeDialog::Impl", "Customize UI commands")));
    mp_btn_style->setText(say(QT_TRANSLATE_NOOP("ovk::UiCustomizeDialog::Impl", "Visual\nstyle")));
    mp_btn_sites->setText(
        say(QT_TRANSLATE_NOOP("ovk::UiCustomizeDialog::Impl", "Toolbars\n&&\nShortcuts")));
    mp_btn_toolpages->setText(say(QT_TRANSLATE_NOOP("ovk::UiCustomizeDialog::Impl", "Toolpages")));
}

void UiCustomizeDialog::Impl::TranslateButtons()
{
    for (QDialogButtonBox::StandardButton which :
         {QDialogButtonBox::Ok, QDialogButtonBox::Discard, QDialogButtonBox::RestoreDefaults})
        TranslateButton(mp_box->button(which));
}

void UiCustomizeDialog::Impl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
        // The box hears of it after the dialog, and gives its buttons the theme's texts again.
        QMetaObject::invokeMethod(
            this, [this] { TranslateButtons(); }, Qt::QueuedConnection);
    }
    QDialog::changeEvent(event);
}

void UiCustomizeDialog::Impl::Connect()
{
    connect(mp_btn_sites, &QToolButton::clicked, this, [this] { ShowPage(spSites); });
    connect(mp_btn_toolpages, &QToolButton::clicked, this, [this] { ShowPage(spToolpages); });
    connect(mp_btn_style, &QToolButton::clicked, this, [this] { ShowPage(spStyle); });
    connect(mp_stack, &QStackedWidget::currentChanged, this, [this] { UpdateDiscard(); });
    connect(mp_box->button(QDialogButtonBox::Ok), &QAbstractButton::clicked, this,
            &QDialog::accept);
    connect(mp_box->button(QDialogButtonBox::Discard), &QAbstractButton::clicked, this,
            [this] { OnDiscard(); });
    connect(mp_box->button(QDialogButtonBox::RestoreDefaults), &QAbstractButton::clicked, this,
            [this] { OnRestoreDefaults(); });
    connect(this, &QDialog::accepted, this, [this] { OnAccepted(); });
    connect(this, &QDialog::rejected, this, [this] { OnRejected(); });
}

void UiCustomizeDialog::Impl::ShowPage(int index)
{
    mp_stack->setCurrentIndex(index);
}

void UiCustomizeDialog::Impl::UpdateDiscard()
{
    if (!mp_box || !mp_stack)
        return;
    const bool changes = mp_sites->HasChanges() || (mp_style && mp_style->HasChanges());
    mp_box->button(QDialogButtonBox::Discard)
        ->setEnabled(mp_stack->currentIndex() != spToolpages && changes);
}

void UiCustomizeDialog::Impl::BeginEdit()
{
    mp_sites->BeginEdit();
    mp_toolpages->BeginEdit();
    if (mp_style)
        mp_style->BeginEdit();
    UpdateDiscard();
}

void UiCustomizeDialog::Impl::OnControllerChanged()
{
    if (m_changing || !isVisible())
        return;
    // The panels that are listed belong to the defaults of the layout that was active.
    mp_toolpages->Clear();
    QMetaObject::invokeMethod(
        this, [this] { OnHostChanged(); }, Qt::QueuedConnection);
}

void UiCustomizeDialog::Impl::OnHostChanged()
{
    if (!isVisible())
        return;
    if (!mp_sites->IsStale()) {
        mp_toolpages->BeginEdit();
        return;
    }
    // Another profile came in the place of the one under edit: there is nothing to go back to.
    mp_sites->Release();
    BeginEdit();
}

void UiCustomizeDialog::Impl::Open()
{
    BeginEdit();
    // Not on the first button of the box, which resets everything.
    mp_sites->FocusSearch();
    show();
    raise();
    activateWindow();
    Block(true);
}

void UiCustomizeDialog::Impl::OnAccepted()
{
    const QScopedValueRollback<bool> changing(m_changing, true);
    mp_sites->Accept();
    mp_toolpages->Clear();
    Block(false);
}

void UiCustomizeDialog::Impl::OnRejected()
{
    const QScopedValueRollback<bool> changing(m_changing, true);
    mp_sites->Reject();
    if (mp_style)
        mp_style->Restore();
    mp_toolpages->Clear();
    Notify();
    Block(false);
}

void UiCustomizeDialog::Impl::OnDiscard()
{
    const QScopedValueRollback<bool> changing(m_changing, true);
    mp_toolpages->Clear();
    mp_sites->Restore();
    if (mp_style)
        mp_style->Restore();
    mp_toolpages->BeginEdit();
    Notify();
}

void UiCustomizeDialog::Impl::OnRestoreDefaults()
{
    const QScopedValueRollback<bool> changing(m_changing, true);
    if (RibbonWindow* window = LiveRibbonWindow())
        window->ribbonBar()->setMaximized(true);
    // The profile under edit is about to be deleted.
    mp_sites->Release();
    mp_toolpages->Clear();
    auto profile = std::make_unique<UiProfile>();
    UiProfileController::GetInstance()->LoadDefault(*profile);
    UiController::GetInstance()->ResetProfile(profile.release());
    DockSettings::Reset();
    Notify();
    Open();
}

UiCustomizeDialog::UiCustomizeDialog() : mp_impl(std::make_unique<Impl>(*this)) {}

UiCustomizeDialog::~UiCustomizeDialog() = default;

UiCustomizeDialog* UiCustomizeDialog::GetInstance()
{
    return Holder().get();
}

void UiCustomizeDialog::Open()
{
    if (!Holder())
        Holder().reset(new UiCustomizeDialog);
    Holder()->mp_impl->Open();
}

void UiCustomizeDialog::Destroy()
{
    if (Holder())
        Holder()->mp_impl->DestroyWindow();
    Holder().reset();
}

QDialog* UiCustomizeDialog::GetDialog() const
{
    return mp_impl.get();
}

} // namespace ovk
