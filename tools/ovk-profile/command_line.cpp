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
  show FILE                     print a file as a tree
  check FILE...                 say what is wrong with profiles or catalogues
  diff FILE FILE                compare two files node by node
  convert FILE                  write a file in the other form
  merge USER NEW                bring a user's profile onto a new default
  catalogue FILE [PROFILE...]   list the commands, who offers them and who uses them

What is written goes to the standard output unless --output names a file: no file is ever written
over without that. A file that is written has the form of its name: binary for the extension "bin",
else text. "-" stands for the standard input.

"ovk-profile COMMAND --help" tells of the options of a command and gives examples.

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
    const char* examples;
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
    const QString output = Value(call, "output");
    Format to = FormatOfName(output);
    if (!format.isEmpty())
        to = format == QLatin1String("bin") ? Format::Binary : Format::Text;
    WriteFile(output, file.root, to, call.out);
    return Fine;
}

int RunMerge(const Call& call)
{
    MergeOptions options;
    options.user = call.files.at(0);
    options.fresh = call.files.at(1);
    options.output = Value(call, "output");
    options.base = Value(call, "base");
    options.catalogue = Value(call, "catalogue");
    options.product = Value(call, "product");
    return Merge(options, call.out);
}

int RunCheck(const Call& call)
{
    CheckOptions options;
    options.catalogue = Value(call, "catalogue");
    options.product = Value(call, "product");
    options.strict = IsSet(call, "strict");
    options.json = IsSet(call, "json");
    return Check(call.files, options, call.out);
}

int RunShow(const Call& call)
{
    ShowOptions options;
    options.layout = Value(call, "layout");
    options.base = IsSet(call, "base");
    options.json = IsSet(call, "json");
    return Show(call.files.at(0), options, call.out);
}

int RunDiff(const Call& call)
{
    return Diff(call.files.at(0), call.files.at(1), IsSet(call, "json"), call.out);
}

int RunCatalogue(const Call& call)
{
    CatalogueOptions options;
    options.product = Value(call, "product");
    options.unused = IsSet(call, "unused");
    options.json = IsSet(call, "json");
    return Catalogue(call.files.at(0), call.files.mid(1), options, call.out);
}

const Option JSON{"json", nullptr, "one JSON document for a machine, in place of lines"};
const Option OUTPUT{"output", "file", "where to write; by default the standard output"};

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands{
        {"show",
         "show [--layout NAME] [--base] [--json] FILE",
         "Prints a file as a tree.",
         "  ovk-profile show uiprofile.tarnix.bin\n"
         "  ovk-profile show --layout Prepare --json uiprofile.tarnix.json",
         1,
         1,
         {{"layout", "name", "only this layout, or this half of a catalogue"},
          {"base", nullptr, "the base in place of the profile"},
          JSON},
         RunShow},
        {"check",
         "check [--catalogue FILE [--product NAME]] [--strict] [--json] FILE...",
         "Says what is wrong with profiles or catalogues, one line for each problem: identifiers "
         "and\n"
         "keys that occur twice, suites, types and fields that nobody knows, more commands than a "
         "site\n"
         "takes, composites that are never shown; with a catalogue also commands that the product "
         "does\n"
         "not offer.",
         "  ovk-profile check --catalogue features.definition.default.json uiprofile.tarnix.json\n"
         "  ovk-profile check --strict --json *.json",
         1,
         -1,
         {CATALOGUE, PRODUCT, {"strict", nullptr, "count warnings as errors"}, JSON},
         RunCheck},
        {"diff",
         "diff [--json] FILE FILE",
         "Compares two files node by node: \"-\" is in the first only, \"+\" in the second only,\n"
         "\"~\" has another field, \">\" stands at another place.",
         "  ovk-profile diff uiprofile.tarnix.json mine/uiprofile.tarnix.bin",
         2,
         2,
         {JSON},
         RunDiff},
        {"convert",
         "convert [--format json|bin] [--output FILE] FILE",
         "Writes a file in the other form, with nothing else changed.",
         "  ovk-profile convert uiprofile.tarnix.bin\n"
         "  ovk-profile convert --output uiprofile.tarnix.bin uiprofile.tarnix.json",
         1,
         1,
         {{"format", "json|bin", "the form to write; by default that of the output's name"},
          OUTPUT},
         RunConvert},
        {"merge",
         "merge [--base FILE] [--catalogue FILE [--product NAME]] [--output FILE] USER NEW",
         "Brings a user's profile onto a new default: what the user changed stays, what only the\n"
         "default changed follows it. The old default is the base in the user's profile. Without "
         "a\n"
         "catalogue all shortcuts of the user are kept.",
         "  ovk-profile merge --output merged.json 1.0/uiprofile.tarnix.bin new-default.json\n"
         "  ovk-profile merge --base old-default.json user.json new-default.json",
         2,
         2,
         {{"base", "file", "the old default, in place of the base in the user's profile"},
          CATALOGUE,
          PRODUCT,
          OUTPUT},
         RunMerge},
        {"catalogue",
         "catalogue [--product NAME] [--unused] [--json] FILE [PROFILE...]",
         "Lists the commands of a catalogue and which layouts offer them. A command is unused if "
         "no\n"
         "layout offers it or, with profiles, if none of them names it.",
         "  ovk-profile catalogue features.definition.default.json\n"
         "  ovk-profile catalogue --unused features.definition.default.json uiprofile.tarnix.json",
         1,
         -1,
         {{"product", "name", "only what this product offers"},
          {"unused", nullptr, "only unused commands; the exit status is 1 if there are any"},
          JSON},
         RunCatalogue},
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
        out << "\nExamples:\n" << command.examples << '\n';
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
