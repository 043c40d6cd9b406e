#pragma once

#include <ovk/core/observable.h>

#include <QByteArray>
#include <QMetaType>
#include <QStringList>
#include <QVariant>

#include <type_traits>

namespace ovk {

namespace impl {

/// The way of a value into a QVariant and back; class types that QVariant knows.
template <class T, bool isArithmetic, bool isEnum>
struct ValueTypeHelper
{
    /// The content of \a variant, converted if it is of another type; T() if that fails.
    static T fromVariant(const QVariant& variant) { return qvariant_cast<T>(variant); }
    /// A variant that holds \a value.
    static QVariant toVariant(const T& value) { return QVariant::fromValue(value); }
};

/// Numbers and bool.
template <class T>
struct ValueTypeHelper<T, true, false>
{
    /// The number in \a variant; 0 if it is none.
    static T fromVariant(const QVariant& variant) { return qvariant_cast<T>(variant); }
    /// A variant that holds \a value.
    static QVariant toVariant(const T& value) { return QVariant::fromValue(value); }
};

/// Enumerations travel as int, so that they need not be registered with the meta type system.
template <class T>
struct ValueTypeHelper<T, false, true>
{
    /// The number in \a variant as an enumerator; 0 if it is no number.
    static T fromVariant(const QVariant& variant) { return static_cast<T>(variant.toInt()); }
    /// A variant that holds the number of \a value.
    static QVariant toVariant(const T& value) { return QVariant(static_cast<int>(value)); }
};

} // namespace impl

/// Selects the ValueTypeHelper of a type.
template <class T>
struct TypeHelper : impl::ValueTypeHelper<T, std::is_arithmetic<T>::value, std::is_enum<T>::value>
{
};

/// A value that notifies its observers when it changes.
///
/// Subclasses may override how it is read, compared and stored.
template <class T>
class ObservableValue : public Observable, public TypeHelper<T>
{
public:
    /// What GetData() returns: a reference for class types, the value itself otherwise.
    using DataType = std::conditional_t<std::is_class<T>::value, const T&, T>;

    /// Holds T().
    ObservableValue() : m_data() {}
    /// Holds \a data.
    ObservableValue(const T& data) : m_data(data) {}
    ~ObservableValue() override = default;

    /// Stores \a data and notifies, unless it is equal to the stored value.
    virtual void SetData(const T& data)
    {
        if (!(m_data == data))
            _DoSetData(data);
    }
    /// Stores \a data and notifies in any case.
    virtual void ForceSetData(const T& data) { _DoSetData(data); }
    /// The stored value.
    virtual DataType GetData() const { return m_data; }

    /// SetData().
    const ObservableValue& operator=(const T& data)
    {
        SetData(data);
        return *this;
    }
    /// GetData().
    operator DataType() const { return GetData(); }

    /// SetData() of the content of \a variant; of T() if it cannot be converted.
    void SetAsVariant(const QVariant& variant) { SetData(TypeHelper<T>::fromVariant(variant)); }
    /// GetData() as a variant.
    QVariant GetAsVariant() const { return TypeHelper<T>::toVariant(GetData()); }

protected:
    /// Stores \a data and notifies.
    virtual void _DoSetData(const T& data)
    {
        m_data = data;
        _Notify();
    }

private:
    T m_data;
};

} // namespace ovk
