#include "desktop/window/editor_windows.h"

#include "core/text.h"
#include "desktop/common/text.h"
#include "desktop/front_end/wizard_dialog.h"
#include "host/framework/host_application.h"

#include <QTimer>

#include <algorithm>
#include <optional>

namespace Tamrivo
{

struct EditorWindows::Editor
{
    std::optional<std::int32_t> LocusID; ///< None for a new locus.
    std::string Tag;                     ///< Under which it is stored.
    OpenWizard Wizard;
    std::unique_ptr<WizardDialog> Window;
};

namespace
{

/// The tag under which a completed wizard has stored its locus.
std::string StoredTag(const ParameterCollection& parameters, const std::string& edited)
{
    std::string stored = edited;
    for (const char* key : {ParameterKey::NewLocus, ParameterKey::NewSaveAs})
    {
        if (parameters.KeyExists(key))
            stored = ParameterItem<std::shared_ptr<Locus>>(parameters, key)->LocusTag();
    }
    return TrimRight(stored);
}

} // namespace

EditorWindows::EditorWindows(const Actions& actions) : m_actions(actions) {}

EditorWindows::~EditorWindows() = default;

void EditorWindows::OpenNew(HostApplication& host)
{
    Show(host, std::make_unique<Editor>(Editor{{}, {}, host.OpenNewLocus(false), nullptr}));
}

WizardDialog& EditorWindows::Open(HostApplication& host, const std::string& tag, bool binning)
{
    const auto locus = host.StoredLocus(tag);
    const auto open = std::ranges::find_if(
        m_editors, [&](const auto& editor) { return editor->LocusID == locus->LocusID(); });
    if (open == m_editors.end())
        return Show(host, std::make_unique<Editor>(Editor{
                              locus->LocusID(), tag, host.OpenLocus(locus, binning), nullptr}));
    WizardDialog& window = *(*open)->Window;
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
    return window;
}

WizardDialog& EditorWindows::Show(HostApplication& host, std::unique_ptr<Editor> editor)
{
    editor->Window =
        std::make_unique<WizardDialog>(host, *editor->Wizard.Session, m_actions, nullptr);
    Editor& shown = *m_editors.emplace_back(std::move(editor));
    // A window of its own, not one that stays in front of the library.
    shown.Window->setWindowFlags(Qt::Window);
    connect(shown.Window.get(), &WizardDialog::SavedAs, this,
            [this](const QString& tag) { emit Stored(tag); });
    connect(shown.Window.get(), &QDialog::finished, this, [this, &shown] { End(shown); });
    shown.Window->show();
    return *shown.Window;
}

void EditorWindows::End(Editor& editor)
{
    const WizardSession& session = *editor.Wizard.Session;
    const std::string stored =
        session.IsCancelled() ? std::string() : StoredTag(*editor.Wizard.Parameters, editor.Tag);
    editor.LocusID.reset();
    // The window is still at work on the click that has ended it.
    QTimer::singleShot(0, this, [this, ended = &editor, stored] {
        std::erase_if(m_editors, [&](const auto& one) { return one.get() == ended; });
        if (!stored.empty())
            emit Stored(ToQString(stored));
    });
}

bool EditorWindows::CloseAll()
{
    for (std::size_t at = m_editors.size(); at-- > 0;)
    {
        if (m_editors[at]->Window->isVisible())
        {
            m_editors[at]->Window->raise();
            m_editors[at]->Window->reject();
        }
        if (m_editors[at]->Window->isVisible())
            return false;
    }
    m_editors.clear();
    return true;
}

} // namespace Tamrivo
