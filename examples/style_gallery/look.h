#pragma once

#include <QColor>
#include <QStringList>

class QCommandLineParser;

/// Everything that the viewer can be told about how it looks.
struct Look
{
    enum Contrast
    {
        Ordinary,
        HighBlack,
        HighWhite
    };

    int theme = 8;
    QColor accent;   ///< invalid for the first of the named ones
    int scale = 100; ///< percent, of this process from its start on
    bool rightToLeft = false;
    bool framed = true; ///< the window draws its own caption
    Contrast contrast = Ordinary;

    /// The scales that are offered.
    static const QVector<int>& Scales();

    /// Adds the options that Read() understands.
    static void AddOptions(QCommandLineParser& parser);
    /// The look that the command line asks for; what it says wrongly stays as it is by default.
    static Look Read(const QCommandLineParser& parser);
    /// The command line that gives this look to another process.
    QStringList Arguments() const;

    /// Makes the application look like this, except for the scale and the frame.
    void Apply() const;
};

/// "2007 Blue" and so on, in the order of the numbers.
QStringList ThemeNames();
/// The names of the ten accents in the order of their numbers.
QStringList AccentNames();
