#pragma once

#include <ovk/core/export.h>

#include <QLabel>

#include <memory>

namespace ovk {

template <class T>
class ObserverProxy;

/// A label beside a numeric editor, which is seen exactly while the suffix is not shown inside
/// editors. Showing the label never overrules that.
class OVK_EXPORT SuffixLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool dynamicVisibility READ dynamicVisibility WRITE setDynamicVisibility)

public:
    explicit SuffixLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~SuffixLabel() override;

    /// True if the label is hidden while the suffix is inside editors.
    bool dynamicVisibility() const;
    /// Changes whether the label is hidden while the suffix is inside editors.
    void setDynamicVisibility(bool dynamic);

    void setVisible(bool visible) override;

private:
    void _OnVisibilityChanged();
    void _UpdateVisibility();

    bool m_wanted_visible = true;
    bool m_dynamic_visibility = true;
    std::unique_ptr<ObserverProxy<SuffixLabel>> mp_suffix_observer;
};

} // namespace ovk
