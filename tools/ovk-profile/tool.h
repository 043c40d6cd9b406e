#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

namespace ovk_profile {

/// What the process answers.
enum ExitCode
{
    Fine = 0,
    Found = 1,   ///< Problems (check), differences (diff), or unused commands (catalogue --unused).
    Unusable = 2 ///< A file or the command line cannot be used.
};

/// Runs one command line, without the name of the program.
int Run(const QStringList& arguments, QTextStream& out, QTextStream& errors);

/// Options of the commands. Each that reports can do so for a machine: as one JSON document.
struct CheckOptions
{
    QString catalogue;   ///< Path of the catalogue whose commands the spots are looked up in.
    QString product;     ///< The product of the catalogue; by default that of the profile.
    bool strict = false; ///< Warnings count.
    bool json = false;
};

struct ShowOptions
{
    QString layout; ///< Only this one.
    bool base = false;
    bool json = false;
};

struct MergeOptions
{
    QString user;
    QString fresh;
    QString base;   ///< By default the one in the user's file.
    QString output; ///< By default the standard output.
    QString catalogue;
    QString product;
};

struct CatalogueOptions
{
    QString product;     ///< Only this one.
    bool unused = false; ///< Only the commands that nobody uses.
    bool json = false;
};

int Check(const QStringList& paths, const CheckOptions& options, QTextStream& out);
int Show(const QString& path, const ShowOptions& options, QTextStream& out);
int Diff(const QString& first, const QString& second, bool json, QTextStream& out);
int Merge(const MergeOptions& options, QTextStream& out);
int Catalogue(const QString& path, const QStringList& profiles, const CatalogueOptions& options,
              QTextStream& out);

} // namespace ovk_profile
