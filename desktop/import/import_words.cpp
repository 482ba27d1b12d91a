#include "desktop/import/import_words.h"

#include "desktop/common/text.h"
#include "host/loci/counts.h"
#include "host/panels/panel_format.h"

namespace Tamrivo
{

namespace
{

QString Sentence(const std::string& start, const QString& end)
{
    return ToQString(start) + end;
}

} // namespace

QString RemarksOn(const PlannedLocus& locus)
{
    QStringList sentences;
    for (const std::string& obstacle : locus.Obstacles)
        sentences.append(ToQString(obstacle) + ".");
    if (!locus.Gap.empty())
        sentences.append(ToQString(locus.Gap) + ".");
    if (locus.Fate == ImportFate::New && locus.IsRenamed())
        sentences.append("Its name is taken, so the tag names the panel too.");
    return sentences.join(' ');
}

QStringList FormatTitles()
{
    QStringList titles;
    for (const PanelFormatName& format : PanelFormatNames)
    {
        QString title = ToQString(format.Title);
        title[0] = title[0].toUpper();
        titles.append(title);
    }
    return titles;
}

QStringList ReasonsAgainst(const std::vector<PanelComplaint>& complaints, const ImportPlan& plan)
{
    constexpr qsizetype mostReasons = 500;
    QStringList reasons;
    for (const PanelComplaint& complaint : complaints)
        reasons.append(ToQString(complaint.Text()));
    if (complaints.size() >= MaxPanelComplaints)
        reasons.append("The rest of the table has not been read.");
    qsizetype further = 0;
    for (const PlannedLocus& locus : plan.Loci)
    {
        for (const std::string& text : locus.Reasons())
        {
            const QString reason = ToQString(text + ".");
            if (reasons.size() >= mostReasons)
                ++further;
            else if (!reasons.contains(reason))
                reasons.append(reason);
        }
    }
    if (further > 0)
        reasons.append(QString("And %1 more; each stands at its marker above.").arg(further));
    return reasons;
}

QString OutlookOf(const ImportPlan& plan)
{
    QStringList sentences;
    if (const std::size_t added = plan.Count(ImportFate::New); added > 0)
        sentences.append(Sentence(CountOfLoci(added) + " with " + CountOfAlleles(plan.NewAlleles()),
                                  added == 1 ? " comes in." : " come in."));
    if (const std::size_t present = plan.Count(ImportFate::Present); present > 0)
        sentences.append(Sentence("The store has " + CountOfLoci(present),
                                  " already, and they stay as they are."));
    if (const std::size_t changed = plan.Count(ImportFate::Changed); changed > 0)
        sentences.append(
            Sentence(CountOfLoci(changed), changed == 1 ? " is updated." : " are updated."));
    if (const std::size_t leftOut = plan.Count(ImportFate::LeftOut); leftOut > 0)
        sentences.append(Sentence(CountOfLoci(leftOut), " can't come in."));
    return sentences.join(' ');
}

QString OfferToLeaveOut(const ImportPlan& plan)
{
    return Sentence("Leave out the " + CountOfLoci(plan.Count(ImportFate::LeftOut)) +
                        " that can't come in, ",
                    "and import the &rest");
}

QString ResultOf(const ImportPlan& plan)
{
    QString result = Sentence("Imported " + CountOfLoci(plan.Count(ImportFate::New)) + " with " +
                                  CountOfAlleles(plan.NewAlleles()),
                              ".");
    if (const std::size_t changed = plan.Count(ImportFate::Changed); changed > 0)
        result += Sentence(" Updated " + CountOfLoci(changed), ".");
    if (const std::size_t leftOut = plan.Count(ImportFate::LeftOut); leftOut > 0)
        result += Sentence(" Left out " + CountOfLoci(leftOut), ".");
    return result;
}

} // namespace Tamrivo
