#include "tool.h"

#include "check_rules.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace ovk_profile {
namespace {

void CheckTree(const Node& node, const QString& path, const Report& report)
{
    // The rules of one node speak of that node unless they say otherwise.
    const Report here = [&](const Problem& problem) {
        Problem placed = problem;
        if (placed.place.isEmpty())
            placed.place = node.place;
        report(placed);
    };
    CheckFields(node, path, here);
    CheckChildren(node, path, here);
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        const Node& child = node.children[i];
        const QString name = NameOf(child, int(i));
        CheckTree(child, path.isEmpty() ? name : QStringLiteral("%1/%2").arg(path, name), report);
    }
}

void CheckFile(const File& file, const CheckOptions& options, const Report& report)
{
    const Node tree = TreeOf(file, report);
    if (file.kind == Kind::Catalogue) {
        CheckTree(tree, QString(), report);
        CheckCatalogue(tree, report);
        return;
    }
    CheckTree(tree, QStringLiteral("profile"), report);
    CheckProfile(file, tree, report);
    CheckTree(BaseOf(file, report), QStringLiteral("profile/base"), report);
    if (options.catalogue.isEmpty())
        return;
    const QString product = options.product.isEmpty()
                                ? tree.fields.value(QStringLiteral("product")).toString()
                                : options.product;
    CheckOffer(tree, OfferOf(ReadFile(options.catalogue), product), report);
}

} // namespace

int Check(const QStringList& paths, const CheckOptions& options, QTextStream& out)
{
    int errors = 0;
    int warnings = 0;
    QJsonArray problems;
    for (const QString& path : paths) {
        CheckFile(ReadFile(path), options, [&](const Problem& problem) {
            const bool is_error = problem.severity == Problem::Error;
            const QString severity = is_error ? QStringLiteral("error") : QStringLiteral("warning");
            ++(is_error ? errors : warnings);
            if (options.json) {
                problems.append(QJsonObject{{QStringLiteral("file"), path},
                                            {QStringLiteral("severity"), severity},
                                            {QStringLiteral("node"), problem.path},
                                            {QStringLiteral("path"), problem.place},
                                            {QStringLiteral("message"), problem.message}});
                return;
            }
            out << path << ": " << severity << ": " << problem.path << ": " << problem.message
                << " [" << problem.place << "]\n";
        });
    }
    if (options.json) {
        out << QJsonDocument(QJsonObject{{QStringLiteral("errors"), errors},
                                         {QStringLiteral("warnings"), warnings},
                                         {QStringLiteral("problems"), problems}})
                   .toJson();
    } else {
        out << errors << (errors == 1 ? " error, " : " errors, ") << warnings
            << (warnings == 1 ? " warning\n" : " warnings\n");
    }
    return errors > 0 || (options.strict && warnings > 0) ? Found : Fine;
}

} // namespace ovk_profile
