#include "tool.h"

#include "file.h"

#include <QCommandLineParser>

#include <functional>
#include <vector>

namespace ovk_profile {
namespace {

const char* const OVERVIEW = R"(Usage: ovk-profile COMMAND [OPTION...] FILE...

Reads profiles of the user interface and feature catalogues, as text or binary JSON.

Commands:
  validate FILE...        say what is wrong with profiles or catalogues
  convert FILE OUT        write a file in the other form
  merge USER NEW OUT      bring a user's profile onto a new default
  diff FILE FILE          compare two files node by node
  list FILE               print a file as a tree

"-" stands for the standard input or output. A file that is written has the form of its name:
binary for the extension "bin", else text.

"ovk-profile COMMAND --help" tells of the options of a command.

Exit status: 0 fine, 1 problems or differences found, 2 a file or the command line cannot be used.
)";

struct Option
{
    const char* name;
    const char* value; ///< Null for a switch.
    const char* help;
};

struct Call
{
    const QCommandLineParser& parser;
    QStringList files;
    QTextStream& out;
};

struct Command
{
    const char* name;
    const char* usage;
    const char* help;
    int least_files;
    int most_files; ///< -1 for any number.
    std::vector<Option> options;
    std::function<int(const Call&)> run;
};

const Option CATALOGUE{"catalogue", "file", "look commands up in this catalogue"};
const Option PRODUCT{"product", "name",
                     "the product of the catalogue; by default that of the profile"};

QString Value(const Call& call, const char* option)
{
    return call.parser.value(QLatin1String(option));
}

bool IsSet(const Call& call, const char* option)
{
    return call.parser.isSet(QLatin1String(option));
}

int RunConvert(const Call& call)
{
    const QString format = Value(call, "format");
    if (!format.isEmpty() && format != QLatin1String("json") && format != QLatin1String("bin"))
        throw FileError{
            QStringLiteral("the format is \"json\" or \"bin\", not \"%1\"").arg(format)};
    const File file = ReadFile(call.files.at(0));
    Format to = FormatOfName(call.files.at(1));
    if (!format.isEmpty())
        to = format == QLatin1String("bin") ? Format::Binary : Format::Text;
    WriteFile(call.files.at(1), file.root, to);
    return Fine;
}

int RunMerge(const Call& call)
{
    MergeOptions options;
    options.user = call.files.at(0);
    options.fresh = call.files.at(1);
    options.output = call.files.at(2);
    options.base = Value(call, "base");
    options.catalogue = Value(call, "catalogue");
    options.product = Value(call, "product");
    return Merge(options);
}

int RunValidate(const Call& call)
{
    ValidateOptions options;
    options.catalogue = Value(call, "catalogue");
    options.product = Value(call, "product");
    options.strict = IsSet(call, "strict");
    return Validate(call.files, options, call.out);
}

int RunList(const Call& call)
{
    ListOptions options;
    options.layout = Value(call, "layout");
    options.base = IsSet(call, "base");
    return List(call.files.at(0), options, call.out);
}

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands{
        {"validate",
         "validate [--catalogue FILE [--product NAME]] [--strict] FILE...",
         "Says what is wrong with profiles or catalogues, one line for each problem.",
         1,
         -1,
         {CATALOGUE, PRODUCT, {"strict", nullptr, "count warnings as errors"}},
         RunValidate},
        {"convert",
         "convert [--format json|bin] FILE OUT",
         "Writes a file in the other form, with nothing else changed.",
         2,
         2,
         {{"format", "json|bin", "the form to write; by default that of the name"}},
         RunConvert},
        {"merge",
         "merge [--base FILE] [--catalogue FILE [--product NAME]] USER NEW OUT",
         "Brings a user's profile onto a new default: what the user changed stays, what only the\n"
         "default changed follows it. The old default is the base in the user's profile. Without "
         "a\n"
         "catalogue all shortcuts of the user are kept.",
         3,
         3,
         {{"base", "file", "the old default, in place of the base in the user's profile"},
          CATALOGUE,
          PRODUCT},
         RunMerge},
        {"diff",
         "diff FILE FILE",
         "Compares two files node by node: \"-\" is in the first only, \"+\" in the second only,\n"
         "\"~\" has another field, \">\" stands at another place.",
         2,
         2,
         {},
         [](const Call& call) { return Diff(call.files.at(0), call.files.at(1), call.out); }},
        {"list",
         "list [--layout NAME] [--base] FILE",
         "Prints a file as a tree.",
         1,
         1,
         {{"layout", "name", "only this layout, or this half of a catalogue"},
          {"base", nullptr, "the base in place of the profile"}},
         RunList},
    };
    return commands;
}

int RunCommand(const Command& command, const QStringList& arguments, QTextStream& out,
               QTextStream& errors)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("this text"));
    parser.addOption(help);
    for (const Option& option : command.options) {
        parser.addOption(QCommandLineOption(QLatin1String(option.name), QLatin1String(option.help),
                                            QLatin1String(option.value)));
    }
    // The parser takes its first argument for the name of the program.
    const bool parsed = parser.parse(arguments);
    if (parser.isSet(help)) {
        out << "Usage: ovk-profile " << command.usage << "\n\n" << command.help << "\n";
        for (const Option& option : command.options) {
            QString name = QStringLiteral("--") + QLatin1String(option.name);
            if (option.value)
                name += QStringLiteral(" <%1>").arg(QLatin1String(option.value));
            out << "  " << name.leftJustified(20) << "  " << option.help << '\n';
        }
        return Fine;
    }
    const QStringList files = parser.positionalArguments();
    const bool counted = files.size() >= command.least_files &&
                         (command.most_files < 0 || files.size() <= command.most_files);
    if (!parsed || !counted) {
        errors << "ovk-profile: "
               << (parsed ? QStringLiteral("wrong number of files") : parser.errorText())
               << "\nUsage: ovk-profile " << command.usage << '\n';
        return Unusable;
    }
    try {
        return command.run({parser, files, out});
    } catch (const FileError& error) {
        errors << "ovk-profile: " << error.message << '\n';
        return Unusable;
    }
}

} // namespace

int Run(const QStringList& arguments, QTextStream& out, QTextStream& errors)
{
    const QString name = arguments.value(0);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        out << OVERVIEW;
        return Fine;
    }
    for (const Command& command : Commands()) {
        if (name == QLatin1String(command.name))
            return RunCommand(command, arguments, out, errors);
    }
    if (!name.isEmpty())
        errors << "ovk-profile: no command \"" << name << "\"\n\n";
    errors << OVERVIEW;
    return Unusable;
}

} // namespace ovk_profile
