#pragma once

#include <QObject>

#include <memory>
#include <string>
#include <vector>

namespace Tamrivo
{

class Actions;
class HostApplication;
class WizardDialog;

/// The locus editors that stand beside the window: any number at a time, one a locus.
class EditorWindows : public QObject
{
    Q_OBJECT

public:
    /// The actions must outlive the windows.
    explicit EditorWindows(const Actions& actions);
    ~EditorWindows() override;

    /// Opens an editor; that of a locus which is open already is brought to the front. The host
    /// must outlive the editors. Both raise what the opening raises.
    void OpenNew(HostApplication& host);
    WizardDialog& Open(HostApplication& host, const std::string& tag, bool binning);

    /// Closes all, each after its question when something was changed. Gives whether none is left.
    bool CloseAll();

signals:
    /// An editor has stored its locus under the tag.
    void Stored(const QString& tag);

private:
    struct Editor;

    WizardDialog& Show(HostApplication& host, std::unique_ptr<Editor> editor);
    void End(Editor& editor);

    const Actions& m_actions;
    std::vector<std::unique_ptr<Editor>> m_editors;
};

} // namespace Tamrivo
