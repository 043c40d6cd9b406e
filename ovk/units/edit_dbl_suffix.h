#pragma once

#include <ovk/core/export.h>

#include <QDoubleSpinBox>
#include <QString>

#include <memory>

namespace ovk {

class EditDblSuffixPrivate;

/// A spin box that shows a suffix according to a mode of the whole application, takes either
/// decimal separator, cuts surplus digits instead of refusing them, and tells the allowed range in
/// a tool tip while the input is outside it.
class OVK_EXPORT EditDblSuffix : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString suffixFormat READ suffixFormat WRITE setSuffixFormat)
    Q_PROPERTY(SuffixVisibility suffixVisible READ suffixVisible WRITE setSuffixVisible)
    Q_PROPERTY(bool showValidationError READ showValidationError WRITE setShowValidationError)

public:
    /// Where the suffix is shown: as SuffixController says, never, always.
    enum SuffixVisibility {
        spAuto = 0,
        spHidden = 1,
        spVisible = 2
    };
    Q_ENUM(SuffixVisibility)

    explicit EditDblSuffix(QWidget* parent = nullptr);
    ~EditDblSuffix() override;

    /// The widget as its base.
    QDoubleSpinBox* spinBox();

    /// The suffix itself, without the format and whether it is shown or not.
    QString suffix() const;
    /// The form in which the suffix is shown: every "%" stands for it. Empty for the suffix alone.
    QString suffixFormat() const;
    /// Where the suffix is shown.
    SuffixVisibility suffixVisible() const;
    /// True if the allowed range is told in a tool tip while the input is outside it.
    bool showValidationError() const;

    QValidator::State validate(QString& input, int& pos) const override;
    /// The number in \a text, whichever form of the suffix it bears.
    double valueFromText(const QString& text) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

public Q_SLOTS:
    /// Changes where the suffix is shown.
    void setSuffixVisible(SuffixVisibility visible);
    /// Changes the suffix.
    void setSuffix(const QString& suffix);
    /// Changes the form in which the suffix is shown.
    void setSuffixFormat(const QString& format);
    /// Changes whether the allowed range is told.
    void setShowValidationError(bool show);
    /// With it, an integer below the minimum is multiplied by 10 until it fits: typing 5 where the
    /// minimum is 100 gives 500.
    void setValidationSmartMode(bool smart);

Q_SIGNALS:
    /// The input changed between valid, incomplete and invalid. False only for invalid input.
    void validityChanged(bool valid);

protected:
    /// Takes over a private part that a subclass made.
    EditDblSuffix(EditDblSuffixPrivate* impl, QWidget* parent);

    /// The private part.
    EditDblSuffixPrivate* _pp();
    /// The private part.
    const EditDblSuffixPrivate* _pp() const;
    /// The private part.
    EditDblSuffixPrivate& _pr();
    /// The private part.
    const EditDblSuffixPrivate& _pr() const;

private:
    void _Init();
    void _ModeChanged();
    void _UpdateSuffix();

    std::unique_ptr<EditDblSuffixPrivate> mp_impl;
    mutable QValidator::State m_validation_state = QValidator::Acceptable;
};

} // namespace ovk
