#include "ovk/customize/style_page_p.h"

#include "ovk/core/pimpl_basics.h"
#include "ovk/main_window/ribbon_window_settings.h"

#include "ui_customize_style_layout.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace ovk {

namespace {

UiCustomizeStyleWidget* g_style_page = nullptr;

/// Only the 2013 themes have an accent.
constexpr int c_first_accented_theme = 8;

constexpr const char* c_skins[] = {
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2007 Blue"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2007 Black"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2007 Silver"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2007 Aqua"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Windows 7 Scenic"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2010 Silver"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2010 Blue"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2010 Black"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2013 White"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2013 Gray"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Office 2013 Dark"),
};

constexpr const char* c_accents[] = {
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Blue"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Brown"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Green"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Lime"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Magenta"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Orange"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Pink"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Purple"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Red"),
    QT_TRANSLATE_NOOP("ovk::UiCustomizeStyleWidget::Impl", "Teal"),
};

} // namespace

class UiCustomizeStyleWidget::Impl : public PimplBasics<UiCustomizeStyleWidget>,
                                     public QWidget,
                                     public Ui_UiCustomizeStyleLayout
{
public:
    explicit Impl(UiCustomizeStyleWidget& owner) : PimplBasics<UiCustomizeStyleWidget>(owner)
    {
        setupUi(this);
        FillCombos();
        connect(mp_cb_skin, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this](int index) { OnSkin(index); });
        connect(mp_cb_color_accent, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this](int index) { OnAccent(index); });
    }

    static int Theme() { return static_cast<int>(RibbonWindowSettings::OfficeTheme().GetData()); }
    static int Accent() { return static_cast<int>(RibbonWindowSettings::AccentColor().GetData()); }

    void ShowSettings()
    {
        mp_cb_skin->setCurrentIndex(Theme());
        mp_cb_color_accent->setCurrentIndex(Accent());
        EnableAccent();
    }

    int theme_at_open = 0;
    int accent_at_open = 0;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            retranslateUi(this);
            FillCombos();
        }
        QWidget::changeEvent(event);
    }

private:
    static QString Translate(const char* text)
    {
        return QCoreApplication::translate("ovk::UiCustomizeStyleWidget::Impl", text);
    }

    void FillCombos()
    {
        const QSignalBlocker no_skin(mp_cb_skin);
        const QSignalBlocker no_accent(mp_cb_color_accent);
        const int skin = mp_cb_skin->currentIndex();
        const int accent = mp_cb_color_accent->currentIndex();
        mp_cb_skin->clear();
        for (const char* text : c_skins)
            mp_cb_skin->addItem(Translate(text));
        mp_cb_color_accent->clear();
        for (const char* text : c_accents)
            mp_cb_color_accent->addItem(Translate(text));
        // A name, which no language changes. Its row is the value 10: a packed colour.
        mp_cb_color_accent->addItem(QStringLiteral("Corvantique (c)"));
        mp_cb_skin->setCurrentIndex(skin);
        mp_cb_color_accent->setCurrentIndex(accent);
    }

    void EnableAccent()
    {
        mp_cb_color_accent->setEnabled(mp_cb_skin->currentIndex() >= c_first_accented_theme);
    }

    void OnSkin(int index)
    {
        // A theme that has no row, such as one a later version stored, is not chosen here.
        if (index >= 0)
            RibbonWindowSettings::OfficeTheme().SetData(
                static_cast<Qtitan::OfficeStyle::Theme>(index));
        EnableAccent();
        _pr()._Notify();
    }

    void OnAccent(int index)
    {
        if (index >= 0)
            RibbonWindowSettings::AccentColor().SetData(
                static_cast<Qtitan::OfficeStyle::AccentColor>(index));
        _pr()._Notify();
    }
};

UiCustomizeStyleWidget::UiCustomizeStyleWidget() : mp_impl(new Impl(*this))
{
    g_style_page = this;
}

UiCustomizeStyleWidget::~UiCustomizeStyleWidget()
{
    g_style_page = nullptr;
    delete mp_impl;
}

UiCustomizeStyleWidget* UiCustomizeStyleWidget::GetInstance()
{
    if (!g_style_page)
        new UiCustomizeStyleWidget; // kept in the static pointer, deleted by the dialog
    return g_style_page;
}

UiCustomizeStyleWidget* UiCustomizeStyleWidget::Existing()
{
    return g_style_page;
}

void UiCustomizeStyleWidget::BeginEdit()
{
    mp_impl->theme_at_open = Impl::Theme();
    mp_impl->accent_at_open = Impl::Accent();
    mp_impl->ShowSettings();
}

void UiCustomizeStyleWidget::Accept() {}

void UiCustomizeStyleWidget::Restore()
{
    RibbonWindowSettings::OfficeTheme().SetData(
        static_cast<Qtitan::OfficeStyle::Theme>(mp_impl->theme_at_open));
    RibbonWindowSettings::AccentColor().SetData(
        static_cast<Qtitan::OfficeStyle::AccentColor>(mp_impl->accent_at_open));
    mp_impl->ShowSettings();
    _Notify();
}

bool UiCustomizeStyleWidget::HasChanges() const
{
    return mp_impl->theme_at_open != Impl::Theme() || mp_impl->accent_at_open != Impl::Accent();
}

QWidget* UiCustomizeStyleWidget::GetWidget() const
{
    return mp_impl;
}

} // namespace ovk
