#include "desktop/window/locus_commands.h"

#include "core/text.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "desktop/library/library_table.h"
#include "desktop/library/library_view.h"
#include "desktop/window/ask_name.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"
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

} // namespace

void LocusCommands::New()
{
    m_workbench.Editors().OpenNew(m_workbench.Host());
}

void LocusCommands::Edit()
{
    m_workbench.Editors().Open(m_workbench.Host(), m_workbench.ChosenLocus(), false);
}

void LocusCommands::EditForBinning()
{
    m_workbench.Editors().Open(m_workbench.Host(), m_workbench.ChosenLocus(), true);
}

void LocusCommands::Rename()
{
    const std::string before = m_workbench.ChosenLocus();
    AskName(&m_workbench.Window(), m_workbench.UserActions(), "Rename Locus", "Tag:", before,
            [&](const std::string& tag) {
                RenameLocus(m_workbench.Host().Store(), before, tag);
                m_workbench.Reload("Renamed " + ToQString(before) + " to " + ToQString(tag) + ".",
                                   {tag});
            });
}

void LocusCommands::Duplicate()
{
    const std::string original = m_workbench.ChosenLocus();
    AskName(&m_workbench.Window(), m_workbench.UserActions(), "Duplicate Locus",
            "Tag of the copy:", TagForCopy(m_workbench.Host().Store(), original),
            [&](const std::string& tag) {
                DuplicateLocus(m_workbench.Host().Store(), original, tag);
                m_workbench.Reload("Stored a copy as " + ToQString(tag) + ".", {tag});
            });
}

void LocusCommands::SetDye()
{
    const auto tags = m_workbench.ChosenLoci();
    const Dyes dyes = m_workbench.Host().Store().Dyes();
    QStringList titles;
    for (std::int32_t dye = 0; dye < dyes.Count(); ++dye)
        titles += ToQString(dyes.TitleOf(dye));
    bool isGiven = false;
    const QString title =
        QInputDialog::getItem(&m_workbench.Window(), "Set Dye", "Dye of " + WordsFor(tags) + ":",
                              titles, 0, false, &isGiven);
    if (!isGiven)
        return;
    Tamrivo::SetDye(m_workbench.Host().Store(), tags,
                    static_cast<std::int32_t>(titles.indexOf(title)));
    m_workbench.Reload("Changed " + WordsFor(tags) + ".", tags);
}

void LocusCommands::SetProject()
{
    const auto tags = m_workbench.ChosenLoci();
    QStringList projects;
    for (const NameList::Entry& project : m_workbench.Loci().Loci()->Projects().Entries())
        projects += ToQString(project.Name);
    bool isGiven = false;
    const QString project = QInputDialog::getItem(
        &m_workbench.Window(), "Set Project",
        "Project of " + WordsFor(tags) + ", made if there is none:", projects, 0, true, &isGiven);
    if (!isGiven)
        return;
    Tamrivo::SetProject(m_workbench.Host().Store(), tags, FromQString(project));
    m_workbench.Reload("Changed " + WordsFor(tags) + ".", tags);
}

bool LocusCommands::MayDelete(const std::vector<std::string>& tags)
{
    QStringList names;
    std::set<std::string> users;
    for (const std::string& tag : tags)
    {
        names += ToQString(TrimRight(tag));
        if (const auto locus = m_workbench.Host().Store().FindLocus(tag))
        {
            const auto parameters = m_workbench.Host().Parameters().NamesUsing(locus->LocusTagID());
            users.insert(parameters.begin(), parameters.end());
        }
    }
    const QString whom = tags.size() == 1 ? "the locus \"" + names.front() + "\" with all its"
                                          : WordsFor(tags) + " with all their";
    QMessageBox box(QMessageBox::Warning, "Delete Loci",
                    "Delete " + whom +
                        " alleles? Deleted Loci in the File menu "
                        "brings them back.",
                    QMessageBox::Yes | QMessageBox::No, &m_workbench.Window());
    box.setObjectName("deleteLocus");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    QStringList parameters;
    for (const std::string& name : users)
        parameters += ToQString(name);
    const QString used = parameters.isEmpty() ? QString("No analysis parameter uses them.")
                                              : FirstOf(parameters) + " will then go without them.";
    box.setInformativeText(tags.size() == 1 ? used : FirstOf(names) + ".\n" + used);
    return box.exec() == QMessageBox::Yes;
}

void LocusCommands::Delete()
{
    const auto tags = m_workbench.ChosenLoci();
    if (!MayDelete(tags))
        return;
    {
        const LongWork work(m_workbench.Host().Store(), "Deleting the loci...",
                            &m_workbench.Window());
        DeleteLoci(m_workbench.Host().Store(), tags);
    }
    m_workbench.Reload("Deleted " + WordsFor(tags) + ".");
}

void LocusCommands::Compare()
{
    m_workbench.Loci().Preview().setCurrentIndex(LocusPreview::Compare);
}

void LocusCommands::Check()
{
    m_workbench.Loci().Preview().setCurrentIndex(LocusPreview::Findings);
}

void LocusCommands::Copy()
{
    m_workbench.Loci().LociTable().CopyChosen();
    m_workbench.Tell("Copied " + WordsFor(m_workbench.ChosenLoci()) + ".");
}

} // namespace Tamrivo
