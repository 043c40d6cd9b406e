#pragma once

#include <ovk/core/observer.h>
#include <ovk/core/pimpl_basics.h>
#include <ovk/units/edit_dbl_suffix.h>

#include <QObject>

namespace ovk {

class EditDblSuffixPrivate : public PimplBasics<EditDblSuffix>, public QObject
{
public:
    explicit EditDblSuffixPrivate(EditDblSuffix& owner) : PimplBasics<EditDblSuffix>(owner) {}
    ~EditDblSuffixPrivate() override = default;

    QString m_suffix;
    QString m_suffix_format;
    bool m_show_validation_error = true;
    bool m_validation_smart_mode = false;
    EditDblSuffix::SuffixVisibility m_suffix_visible = EditDblSuffix::spAuto;
    std::unique_ptr<ObserverProxy<EditDblSuffix>> mp_mode_observer;
};

} // namespace ovk
