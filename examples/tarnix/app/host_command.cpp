#include "app/host_command.h"

#include "app/file_actions.h"
#include "app/host_context.h"

#include <ovk/core/icons_controller.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tarnix {
namespace {

struct NeedRow
{
    Need need;
    bool (*met)(const Facts&);
    const char* reason;
};

constexpr NeedRow k_needs[] = {
    {Need::Nothing, [](const Facts&) { return true; }, ""},
    {Need::Parts, [](const Facts& f) { return f.parts > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "There is no part on the plate.")},
    {Need::VisibleParts, [](const Facts& f) { return f.visible > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "There is no visible part on the plate.")},
    {Need::Selection, [](const Facts& f) { return f.selected > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select a part first.")},
    {Need::Editable, [](const Facts& f) { return f.editable > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select a part that is not locked.")},
    {Need::OneSelected, [](const Facts& f) { return f.selected == 1; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select exactly one part.")},
    {Need::OneEditable, [](const Facts& f) { return f.selected == 1 && f.editable == 1; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select exactly one part that is not locked.")},
    {Need::TwoSelected, [](const Facts& f) { return f.selected >= 2; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select at least two parts.")},
    {Need::ExactlyTwo, [](const Facts& f) { return f.selected == 2; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select exactly two parts.")},
    {Need::TwoEditable, [](const Facts& f) { return f.editable >= 2; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select at least two parts that are not locked.")},
    {Need::ThreeEditable, [](const Facts& f) { return f.editable >= 3; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select at least three parts that are not locked.")},
    {Need::EditableWithFile, [](const Facts& f) { return f.with_file > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Select a part that came from a file and is not locked.")},
    {Need::Hidden, [](const Facts& f) { return f.hidden > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "No part is hidden.")},
    {Need::Locked, [](const Facts& f) { return f.locked > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "No part is locked.")},
    {Need::Undo, [](const Facts& f) { return f.undo; },
     QT_TRANSLATE_NOOP("tarnix::Need", "There is no step to take back.")},
    {Need::Redo, [](const Facts& f) { return f.redo; },
     QT_TRANSLATE_NOOP("tarnix::Need", "No step was taken back.")},
    {Need::ClipboardParts, [](const Facts& f) { return f.clipboard; },
     QT_TRANSLATE_NOOP("tarnix::Need", "There are no parts on the clipboard.")},
    {Need::Placement, [](const Facts& f) { return f.placement && f.editable > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need",
                       "Copy a placement first, then select a part that is not locked.")},
    {Need::Section, [](const Facts& f) { return f.section; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Switch the section on first.")},
    {Need::SectionThroughPart, [](const Facts& f) { return f.section_cuts; },
     QT_TRANSLATE_NOOP("tarnix::Need",
                       "Let the section run through a selected part that is not locked.")},
    {Need::Layers, [](const Facts& f) { return f.layers > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "There is no visible part to slice.")},
    {Need::LayersShown, [](const Facts& f) { return f.layers_shown && f.layers > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Show the layers first.")},
    {Need::LayerAbove, [](const Facts& f) { return f.layers_shown && f.layer + 1 < f.layers; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Show the layers first; there must be one above.")},
    {Need::LayerBelow, [](const Facts& f) { return f.layers_shown && f.layer > 0 && f.layers > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Show the layers first; there must be one below.")},
    {Need::Hatched, [](const Facts& f) { return f.layers_shown && f.hatched && f.layers > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Show the layers and hatch them first.")},
    {Need::Measurements, [](const Facts& f) { return f.measurements > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Nothing has been measured yet.")},
    {Need::Measuring, [](const Facts& f) { return f.measuring; },
     QT_TRANSLATE_NOOP("tarnix::Need", "No measuring is under way.")},
    {Need::Findings, [](const Facts& f) { return f.findings > 0; },
     QT_TRANSLATE_NOOP("tarnix::Need", "Check the build first; nothing was found so far.")},
    {Need::Recent, [](const Facts& f) { return f.recent; },
     QT_TRANSLATE_NOOP("tarnix::Need", "There are no recent files.")},
    {Need::FormerView, [](const Facts& f) { return f.back; },
     QT_TRANSLATE_NOOP("tarnix::Need", "The view has not been changed yet.")},
};

const NeedRow& RowOf(Need need)
{
    return k_needs[static_cast<size_t>(need)];
}

} // namespace

bool IsMet(Need need, const Facts& facts)
{
    Q_ASSERT(RowOf(need).need == need);
    return RowOf(need).met(facts);
}

QString ReasonOf(Need need)
{
    return need == Need::Nothing ? QString()
                                 : QCoreApplication::translate("tarnix::Need", RowOf(need).reason);
}

HostCommand::HostCommand(const CommandSpec& spec, Host& host)
    : UiCommand(QString::fromLatin1(spec.id)), m_spec(spec), m_host(host)
{
    setCheckable(spec.is_on != nullptr);
}

void HostCommand::SetTexts(const QString& title, const QString& tooltip, const QString& status_tip)
{
    m_tooltip = tooltip;
    SetStrings(title, tooltip, status_tip, true, true, true);
}

void HostCommand::_DoExecute()
{
    m_spec.run(m_host);
}

void HostCommand::_DoUpdateUi(const ovk::UpdatableContext& context)
{
    const bool enabled = IsMet(m_spec.need, static_cast<const HostContext&>(context).GetFacts());
    const QByteArray translation_context = "commands." + GetId().toUtf8();
    QString tooltip = QCoreApplication::translate(translation_context.constData(),
                                                  m_tooltip.toUtf8().constData(), "tooltip");
    if (!enabled)
        tooltip += QStringLiteral("\n\n") + ReasonOf(m_spec.need);
    if (tooltip != toolTip())
        setToolTip(tooltip);
    if (m_spec.is_on)
        setChecked(m_spec.is_on(m_host));
    setEnabled(enabled);
}

RecentFileCommand::RecentFileCommand(const QString& id, int index, Host& host)
    : UiCommand(id), m_index(index), m_host(host)
{
    SetDynamicContext(QStringLiteral("DynamicCommands.RecentFiles"));
    SetIcon(ovk::IconsController::Load(QStringLiteral("Recent.File")));
    Follow();
}

void RecentFileCommand::Follow()
{
    const QString path = m_host.RecentFiles().value(m_index);
    SetIsVisual(!path.isEmpty());
    SetStrings(QFileInfo(path).fileName(), QDir::toNativeSeparators(path),
               QCoreApplication::translate("tarnix::RecentFileCommand", "Open %1")
                   .arg(QDir::toNativeSeparators(path)),
               false, false, false);
}

void RecentFileCommand::_DoExecute()
{
    const QString path = m_host.RecentFiles().value(m_index);
    if (!path.isEmpty())
        OpenFiles(m_host, QStringList(path));
}

void RecentFileCommand::_DoUpdateUi(const ovk::UpdatableContext&)
{
    setEnabled(IsVisual());
}

} // namespace tarnix

#include "moc_host_command.cpp"
