#pragma once

#include <ovk/core/observable_value.h>
#include <ovk/preferences/preference_value_basics.h>

#include <QByteArray>
#include <QStringList>

namespace ovk {

namespace impl {

/// True if a value may stay in the place of another one without anybody being able to tell.
template <class T>
bool IsSameValue(const T&, const T&)
{
    return false;
}
inline bool IsSameValue(const QString& left, const QString& right)
{
    return left == right && left.isNull() == right.isNull();
}

} // namespace impl

/// A preference with a typed, observable value and a default.
///
/// For a type of its own a host derives from it and writes _FromString() and _ToString().
template <class T>
class TPreferenceBasics : public PreferenceValueBasics, public ObservableValue<T>
{
public:
    using ObservableValue<T>::operator=;

    /// Replaces the default only; the value stays and nobody is notified.
    void SetDefault(const T& value) { m_default = value; }

    /// Marks the preference as loaded, stores \a value and notifies, also if it is equal.
    void SetData(const T& value) override
    {
        _SetLoaded();
        this->_DoSetData(value);
    }

protected:
    /// Value and default start as \a defaultValue.
    TPreferenceBasics(PreferenceChapter& parent, const QString& name, const T& defaultValue)
        : PreferenceValueBasics(parent, name), ObservableValue<T>(defaultValue), m_default(defaultValue)
    {
    }

    /// The default.
    const T& _GetDefault() const { return m_default; }

    /// Notifies if the preference kept its default, so that observers see every value once.
    void _AfterLoad() override
    {
        if (!IsLoaded())
            this->_Notify();
    }
    void _DoRestoreDefault() override { SetData(m_default); }
    /// Stores \a data and notifies.
    void _DoSetData(const T& data) override
    {
        // Nearly every text of a file is the one that stands here already: it keeps its memory.
        if (impl::IsSameValue(ObservableValue<T>::GetData(), data))
            this->_Notify();
        else
            ObservableValue<T>::_DoSetData(data);
    }

private:
    T m_default;
};

/// A preference of a type that the library stores.
template <class T>
class Preference;

/// Stored as "true" or "false"; any text but "true" reads as false.
template <>
class OVK_EXPORT Preference<bool> : public TPreferenceBasics<bool>
{
public:
    using TPreferenceBasics<bool>::operator=;

    /// Value and default start as false.
    Preference(PreferenceChapter& parent, const QString& name);
    ~Preference() override;

protected:
    void _DoRestoreDefault() override;
    void _FromString(const QString& text) override;
    QString _ToString() const override;
};

/// Stored as Base64. It is not touched by a restore of the defaults.
template <>
class OVK_EXPORT Preference<QByteArray> : public TPreferenceBasics<QByteArray>
{
public:
    using TPreferenceBasics<QByteArray>::operator=;

    /// Value and default start empty.
    Preference(PreferenceChapter& parent, const QString& name);
    ~Preference() override;

protected:
    void _DoSave(QXmlStreamWriter& writer) override;
    void _DoLoad(QXmlStreamReader& reader) override;
    void _DoRestoreDefault() override;
};

/// Stored as one element "item" a string. It is not touched by a restore of the defaults.
template <>
class OVK_EXPORT Preference<QStringList> : public TPreferenceBasics<QStringList>
{
public:
    using TPreferenceBasics<QStringList>::operator=;

    /// Value and default start empty.
    Preference(PreferenceChapter& parent, const QString& name);
    ~Preference() override;

protected:
    void _DoSave(QXmlStreamWriter& writer) override;
    void _DoLoad(QXmlStreamReader& reader) override;
    void _DoRestoreDefault() override;
};

} // namespace ovk
