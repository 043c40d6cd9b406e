#pragma once

#include <QString>
#include <QTextStream>

#include <functional>

class QStringList;

namespace ovk_profile {

/// What the process answers.
enum ExitCode
{
    Fine = 0,
    Found = 1,   ///< Problems (validate) or differences (diff).
    Unusable = 2 ///< A file or the command line cannot be used.
};

/// Runs one command line, without the name of the program.
int Run(const QStringList& arguments, QTextStream& out, QTextStream& errors);

/// Options of the commands.
struct ValidateOptions
{
    QString catalogue;   ///< Path of the catalogue whose commands the spots are looked up in.
    QString product;     ///< The product of the catalogue; by default that of the profile.
    bool strict = false; ///< Warnings count.
};

struct ListOptions
{
    QString layout; ///< Only this one.
    bool base = false;
};

struct MergeOptions
{
    QString user;
    QString fresh;
    QString base; ///< By default the one in the user's file.
    QString output;
    QString catalogue;
    QString product;
};

int Validate(const QStringList& paths, const ValidateOptions& options, QTextStream& out);
int List(const QString& path, const ListOptions& options, QTextStream& out);
int Diff(const QString& first, const QString& second, QTextStream& out);
int Merge(const MergeOptions& options);

} // namespace ovk_profile
