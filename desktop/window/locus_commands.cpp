#include "controls/user.h"
#include "core/text.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/library/library_view.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/store_session.h"
#include "host/library/changes.h"
#include "host/loci/counts.h"

#include <QInputDialog>
#include <QMessageBox>

#include <set>

namespace Tamrivo
{

namespace
{

/// "TH01" or "5 loci".
QString WordsFor(const std::vector<std::string>& tags)
{
    return ToQString(tags.size() == 1 ? TrimRight(tags.front()) : CountOfLoci(tags.size()));
}

/// The first few texts, and how many more there are.
QString FirstOf(const QStringList& texts)
{
    constexpr qsizetype most = 8;
    const QString first = texts.mid(0, most).join(", ");
    return texts.size() <= most ? first : first + QString(" and %1 more").arg(texts.size() - most);
}

/// The tag under which a wizard has stored its locus; empty when it has stored nothing that its
/// parameters tell of.
std::string StoredTag(const WizardOutcome& outcome, const std::string& edited)
{
    std::string stored = outcome.Completed ? edited : std::string();
    for (const char* key : {ParameterKey::NewLocus, ParameterKey::NewSaveAs})
    {
        if (outcome.Completed && outcome.Parameters->KeyExists(key))
            stored = ParameterItem<std::shared_ptr<Locus>>(*outcome.Parameters, key)->LocusTag();
    }
    return TrimRight(stored);
}

} // namespace

std::vector<std::string> MainWindow::ChosenLoci() const
{
    auto tags = IsSelectorShown() ? m_view->HighlightedTags() : m_library->ChosenTags();
    if (tags.empty())
        throw User::Refusal("No locus is chosen");
    return tags;
}

std::string MainWindow::ChosenLocus() const
{
    const auto tags = ChosenLoci();
    if (tags.size() > 1)
        throw User::Refusal("Choose one locus for this");
    return tags.front();
}

void MainWindow::ShowStored(const WizardOutcome& outcome, const std::string& edited)
{
    const std::string stored = StoredTag(outcome, edited);
    if (!stored.empty())
        Reload("Stored " + ToQString(stored) + ".", {stored});
    // A Save As has stored a locus even if the wizard was cancelled after it.
    else if (outcome.Parameters->KeyExists(ParameterKey::SaveTimes))
        Reload("Stored the locus under its new tag.");
}

void MainWindow::NewLocus()
{
    ShowStored(Host().NewLocus(false), {});
}

void MainWindow::EditLocus(bool binning)
{
    const std::string tag = ChosenLocus();
    ShowStored(Host().EditLocus(tag, binning), tag);
}

void MainWindow::RenameChosenLocus()
{
    const std::string before = ChosenLocus();
    AskName("Rename Locus", "Tag:", before, [&](const std::string& tag) {
        RenameLocus(Host().Store(), before, tag);
        Reload("Renamed " + ToQString(before) + " to " + ToQString(tag) + ".", {tag});
    });
}

void MainWindow::DuplicateChosenLocus()
{
    const std::string original = ChosenLocus();
    AskName("Duplicate Locus", "Tag of the copy:", TagForCopy(Host().Store(), original),
            [&](const std::string& tag) {
                DuplicateLocus(Host().Store(), original, tag);
                Reload("Stored a copy as " + ToQString(tag) + ".", {tag});
            });
}

void MainWindow::SetDyeOfChosen()
{
    const auto tags = ChosenLoci();
    const Dyes dyes = Host().Store().Dyes();
    QStringList titles;
    for (std::int32_t dye = 0; dye < dyes.Count(); ++dye)
        titles += ToQString(dyes.TitleOf(dye));
    bool isGiven = false;
    const QString title = QInputDialog::getItem(this, "Set Dye", "Dye of " + WordsFor(tags) + ":",
                                                titles, 0, false, &isGiven);
    if (!isGiven)
        return;
    SetDye(Host().Store(), tags, static_cast<std::int32_t>(titles.indexOf(title)));
    Reload("Changed " + WordsFor(tags) + ".", tags);
}

void MainWindow::SetProjectOfChosen()
{
    const auto tags = ChosenLoci();
    QStringList projects;
    for (const NameList::Entry& project : m_library->Loci()->Projects().Entries())
        projects += ToQString(project.Name);
    bool isGiven = false;
    const QString project = QInputDialog::getItem(
        this, "Set Project", "Project of " + WordsFor(tags) + ", made if there is none:", projects,
        0, true, &isGiven);
    if (!isGiven)
        return;
    SetProject(Host().Store(), tags, FromQString(project));
    Reload("Changed " + WordsFor(tags) + ".", tags);
}

void MainWindow::DeleteChosenLoci()
{
    const auto tags = ChosenLoci();
    QStringList names;
    std::set<std::string> users;
    for (const std::string& tag : tags)
    {
        names += ToQString(TrimRight(tag));
        if (const auto locus = Host().Store().FindLocus(tag))
        {
            const auto parameters = Host().Parameters().NamesUsing(locus->LocusTagID());
            users.insert(parameters.begin(), parameters.end());
        }
    }
    QMessageBox box(QMessageBox::Warning, "Delete Loci",
                    tags.size() == 1 ? "Delete the locus \"" + names.front() +
                                           "\" with all its alleles? This can't be undone."
                                     : "Delete " + WordsFor(tags) +
                                           " with all their alleles? This can't be undone.",
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setObjectName("deleteLocus");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    QStringList parameters;
    for (const std::string& name : users)
        parameters += ToQString(name);
    const QString used = parameters.isEmpty() ? QString("No analysis parameter uses them.")
                                              : FirstOf(parameters) + " will then go without them.";
    box.setInformativeText(tags.size() == 1 ? used : FirstOf(names) + ".\n" + used);
    if (box.exec() != QMessageBox::Yes)
        return;
    {
        const LongWork work(Host().Store(), "Deleting the loci...", this);
        DeleteLoci(Host().Store(), tags);
    }
    Reload("Deleted " + WordsFor(tags) + ".");
}

void MainWindow::CompareChosen()
{
    m_library->Preview().setCurrentIndex(LocusPreview::Compare);
}

void MainWindow::CopyChosen()
{
    m_library->CopyChosen();
    Tell("Copied " + WordsFor(ChosenLoci()) + ".");
}

} // namespace Tamrivo
