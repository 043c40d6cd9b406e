#pragma once

#include <QCoreApplication>
#include <QString>

namespace tarnix {

/// A text for the user that is kept: it is translated whenever it is shown, so that a change of
/// language reaches it.
class Phrase
{
public:
    /// A text as it stands, in no need of translation.
    Phrase(const QString& text) : m_source(text) {}
    Phrase(const char* text) : m_source(QString::fromUtf8(text)) {}
    /// A text of a translation context; `argument` takes the place of its "%1", if it has one.
    Phrase(const char* context, const char* source, const QString& argument = QString())
        : m_context(context), m_source(QString::fromUtf8(source)), m_argument(argument)
    {
    }

    /// The text in the present language.
    QString Text() const
    {
        if (!m_context)
            return m_source;
        const QString text = QCoreApplication::translate(m_context, m_source.toUtf8().constData());
        return m_argument.isNull() ? text : text.arg(m_argument);
    }

    friend bool operator==(const Phrase& a, const Phrase& b)
    {
        return qstrcmp(a.m_context, b.m_context) == 0 && a.m_source == b.m_source &&
               a.m_argument == b.m_argument;
    }

private:
    const char* m_context = nullptr;
    QString m_source;
    QString m_argument;
};

} // namespace tarnix
