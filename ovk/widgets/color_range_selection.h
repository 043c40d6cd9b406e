#pragma once

#include <ovk/core/export.h>

#include <QWidget>

namespace ovk {

class ColorEdit;

/// Two colour buttons beside a sweep of hues: the end at its top, the start at its bottom.
class OVK_EXPORT ColorRangeSelection : public QWidget
{
    Q_OBJECT

public:
    explicit ColorRangeSelection(QWidget* parent = nullptr);
    ~ColorRangeSelection() override;

    /// The button of the start, at the bottom.
    ColorEdit* getStartColorEdit() const;
    /// The button of the end, at the top.
    ColorEdit* getEndColorEdit() const;

private:
    ColorEdit* mp_start_edit;
    ColorEdit* mp_end_edit;
};

} // namespace ovk
