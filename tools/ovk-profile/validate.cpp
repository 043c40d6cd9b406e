#include "tool.h"

#include "validate_rules.h"

#include <QStringList>

#include <optional>

namespace ovk_profile {
namespace {

void CheckTree(const Node& node, const QString& path, const Report& report)
{
    CheckFields(node, path, report);
    CheckChildren(node, path, report);
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        const Node& child = node.children[i];
        const QString name = NameOf(child, int(i));
        CheckTree(child, path.isEmpty() ? name : QStringLiteral("%1/%2").arg(path, name), report);
    }
}

void CheckFile(const File& file, const ValidateOptions& options, const Report& report)
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

int Validate(const QStringList& paths, const ValidateOptions& options, QTextStream& out)
{
    int errors = 0;
    int warnings = 0;
    for (const QString& path : paths) {
        CheckFile(ReadFile(path), options, [&](const Problem& problem) {
            const bool is_error = problem.severity == Problem::Error;
            ++(is_error ? errors : warnings);
            out << path << ": " << (is_error ? "error: " : "warning: ") << problem.path << ": "
                << problem.message << '\n';
        });
    }
    out << errors << (errors == 1 ? " error, " : " errors, ") << warnings
        << (warnings == 1 ? " warning\n" : " warnings\n");
    return errors > 0 || (options.strict && warnings > 0) ? Found : Fine;
}

} // namespace ovk_profile
