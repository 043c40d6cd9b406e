#include "schema.h"

namespace ovk_profile {
namespace {

constexpr FieldType TEXT = FieldType::Text;
constexpr FieldType FLAG = FieldType::Flag;
constexpr FieldType NUMBER = FieldType::Number;
constexpr FieldType TEXTS = FieldType::Texts;

const std::vector<NodeType>& NodeTypes()
{
    static const std::vector<NodeType> types{
        {"profile",
         "layouts",
         "layout",
         false,
         {{"description", TEXT}, {"version", TEXT}, {"product", TEXT}, {"counter", NUMBER}}},
        {"layout", "states", nullptr, false, {}},

        {"ribbon", "pages", "page", true, {}},
        {"page", "groups", "group", true, {{"title", TEXT}, {"page_available_by_user", FLAG}}},
        {"group", "spots", "spot", true, {{"title", TEXT}, {"group_available_by_user", FLAG}}},
        {"spot", nullptr, nullptr, true, {{"type", TEXT}, {"style", NUMBER}}},
        {"quick access bar", "spots", "spot", true, {}},
        {"menus", "subitems", "menu", true, {{"autosize", FLAG}}},
        {"menu", "spots", "spot", true, {{"title", TEXT}, {"key", NUMBER}}},
        {"toolbars", "subitems", "toolbar", true, {{"state", TEXT}}},
        {"toolbar",
         "spots",
         "spot",
         true,
         {{"title", TEXT},
          {"break", FLAG},
          {"area", NUMBER},
          {"floating", FLAG},
          {"movable", FLAG}}},
        {"shortcuts", "bindings", "binding", true, {}},
        {"binding", nullptr, nullptr, true, {{"key sequence", TEXT}}},
        {"composite suite", "subitems", "composite", true, {}},
        {"composite",
         nullptr,
         nullptr,
         true,
         {{"type", TEXT}, {"title", TEXT}, {"icon", TEXT}, {"items", TEXTS}}},
        {"dialog data", "dialog", "dialog", true, {}},
        {"dialog",
         nullptr,
         nullptr,
         false,
         {{"l", NUMBER}, {"t", NUMBER}, {"w", NUMBER}, {"h", NUMBER}}},

        {"docking", "subitems", nullptr, true, {}},
        {"areas", "subitems", "area", true, {}},
        {"floated", "subitems", "panel", true, {}},
        {"area", "sites", "site", true, {}},
        {"site", "subitems", nullptr, true, {}},
        {"toolbox site", "subitems", "panel", true, {{"size", NUMBER}, {"minimized", FLAG}}},
        {"toolbar site", "subitems", "docked toolbar", true, {}},
        {"docked toolbar", "spots", "spot", true, {}},
        {"panel",
         "pages",
         "panel page",
         true,
         {{"is_spacer", FLAG},
          {"width", NUMBER},
          {"height", NUMBER},
          {"top", NUMBER},
          {"left", NUMBER},
          {"title", TEXT},
          {"title_visible", FLAG},
          {"minimized", FLAG},
          {"minimizable", FLAG},
          {"closeable", FLAG},
          {"movable", FLAG}}},
        {"panel page", nullptr, nullptr, true, {{"title", TEXT}}},

        {"commands", "command", "command", true, {}},
        {"command",
         nullptr,
         nullptr,
         false,
         {{"title", TEXT}, {"tooltip", TEXT}, {"statustip", TEXT}, {"visual", FLAG}}},
        {"products", "product", "product", true, {}},
        {"product", "layout", "product layout", true, {{"profile_suffix", TEXT}}},
        {"product layout", nullptr, nullptr, false, {{"command_ids", TEXTS}}},
    };
    return types;
}

} // namespace

const NodeType* FindNodeType(const QString& name)
{
    for (const NodeType& type : NodeTypes()) {
        if (name == QLatin1String(type.name))
            return &type;
    }
    return nullptr;
}

const NodeType* FindSuiteType(const QString& suite)
{
    static const char* const suites[] = {"ribbon",  "quick access bar", "menus",      "toolbars",
                                         "docking", "shortcuts",        "dialog data"};
    if (suite == QLatin1String("composite"))
        return FindNodeType(QStringLiteral("composite suite"));
    for (const char* name : suites) {
        if (suite == QLatin1String(name))
            return FindNodeType(suite);
    }
    return nullptr;
}

const std::vector<Field>& StateFields()
{
    static const std::vector<Field> fields{
        {"visible", FLAG}, {"persistence", NUMBER}, {"is_changed_by_user", FLAG}};
    return fields;
}

const NodeType* FindChildType(const NodeType& parent, const QString& id)
{
    if (parent.child)
        return FindNodeType(QLatin1String(parent.child));
    const QLatin1String name(parent.name);
    if (name == QLatin1String("layout"))
        return FindSuiteType(id);
    if (name == QLatin1String("docking")) {
        const bool known = id == QLatin1String("areas") || id == QLatin1String("floated");
        return known ? FindNodeType(id) : nullptr;
    }
    if (name == QLatin1String("site")) {
        return FindNodeType(id == QLatin1String("toolboxes.site") ? QStringLiteral("toolbox site")
                                                                  : QStringLiteral("toolbar site"));
    }
    return nullptr;
}

} // namespace ovk_profile
