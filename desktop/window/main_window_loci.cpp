#include "core/text.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/reports/reports_window.h"
#include "desktop/text.h"
#include "desktop/window/locus_picker.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/store_session.h"

#include <QMessageBox>
#include <QStatusBar>

namespace Tamrivo
{

namespace
{

/// What a wizard has stored, for the status bar; empty when it has stored nothing.
/// @param edited the tag that the wizard was started with; empty for a new locus
QString StoredBy(const WizardOutcome& outcome, const std::string& edited)
{
    std::string stored = edited;
    for (const char* key : {ParameterKey::NewLocus, ParameterKey::NewSaveAs})
    {
        if (outcome.Parameters->KeyExists(key))
            stored = ParameterItem<std::shared_ptr<Locus>>(*outcome.Parameters, key)->LocusTag();
    }
    if (outcome.Completed)
        return "Stored " + ToQString(TrimRight(stored)) + ".";
    // A Save As has stored a locus even if the wizard was cancelled after it.
    const bool isSavedAs = outcome.Parameters->KeyExists(ParameterKey::SaveTimes);
    return isSavedAs ? "Stored the locus under its new tag." : QString();
}

} // namespace

std::optional<std::string> MainWindow::ChosenLocus(const QString& title)
{
    if (m_view != nullptr)
    {
        if (auto tag = m_view->HighlightedTag())
            return tag;
    }
    return PickLocus(Host().Store(), title, this);
}

void MainWindow::ShowStoredLoci(const QString& news)
{
    if (news.isEmpty())
        return;
    if (m_view != nullptr)
        m_view->Reload();
    statusBar()->showMessage(news);
}

void MainWindow::NewLocus()
{
    ShowStoredLoci(StoredBy(Host().NewLocus(false), {}));
}

void MainWindow::EditLocus(bool binning)
{
    const auto tag = ChosenLocus(binning ? "Edit for Binning" : "Edit Locus");
    if (tag)
        ShowStoredLoci(StoredBy(Host().EditLocus(*tag, binning), *tag));
}

void MainWindow::DeleteLocus()
{
    const auto tag = ChosenLocus("Delete Locus");
    if (!tag)
        return;
    const auto locus = Host().Store().FindLocus(*tag);
    const auto users =
        locus ? Host().Parameters().NamesUsing(locus->LocusTagID()) : std::vector<std::string>();
    QMessageBox box(QMessageBox::Warning, "Delete Locus",
                    "Delete the locus \"" + ToQString(TrimRight(*tag)) +
                        "\" with all its alleles? This can't be undone.",
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setObjectName("deleteLocus");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    QStringList names;
    for (const std::string& name : users)
        names += ToQString(name);
    box.setInformativeText(names.isEmpty() ? QString("No analysis parameter uses it.")
                                           : "It is used by " + names.join(", ") +
                                                 ", which will then go without it.");
    if (box.exec() != QMessageBox::Yes)
        return;
    Host().Store().DeleteLocus(*tag);
    ShowStoredLoci("Deleted " + ToQString(TrimRight(*tag)) + ".");
}

ReportsWindow& MainWindow::Reports()
{
    if (!m_reports)
        m_reports = std::make_unique<ReportsWindow>(Host(), m_frontEnd.UserActions());
    m_reports->show();
    m_reports->raise();
    m_reports->activateWindow();
    return *m_reports;
}

void MainWindow::ShowReport()
{
    Reports().ShowAll();
}

void MainWindow::ShowParameterReport()
{
    Reports().ShowParameter(m_view->Name(), m_view->SelectedTags());
}

} // namespace Tamrivo
