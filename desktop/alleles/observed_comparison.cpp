#include "desktop/alleles/observed_comparison.h"

#include "controls/user.h"
#include "desktop/alleles/allele_picture.h"
#include "desktop/alleles/page_fields.h"
#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "editor/locus_editor_form.h"
#include "host/fit/fit_words.h"
#include "host/fit/marker_sizes.h"
#include "host/fit/observed_reader.h"
#include "host/fit/proposal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Tamrivo
{

ObservedComparison::ObservedComparison(LocusEditorForm& page, AllelePicture& picture,
                                       const Actions& actions, QWidget* parent)
    : QWidget(parent),
      m_page(page),
      m_pane(User::AllelesOf(page.ctlPaneAlleleList)),
      m_picture(picture),
      m_actions(actions),
      m_words(new QLabel(this)),
      m_buttons(new QWidget(this))
{
    m_words->setObjectName("observedWords");
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_words->setAccessibleName("What the observed sizes say");
    auto* buttons = new QHBoxLayout(m_buttons);
    buttons->setContentsMargins(0, 0, 0, 0);
    AddButton("&Propose Bins", &ObservedComparison::Propose);
    m_takeOver = AddButton("Take &Over", &ObservedComparison::TakeOver);
    AddButton("Close Comparison", &ObservedComparison::Close);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_words, 1);
    layout->addWidget(m_buttons, 0, Qt::AlignTop);
    Close();
}

QPushButton* ObservedComparison::AddButton(const QString& text,
                                           void (ObservedComparison::*action)())
{
    auto* button = new QPushButton(text, m_buttons);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this,
            [this, action] { m_actions.Run([this, action] { (this->*action)(); }); });
    m_buttons->layout()->addWidget(button);
    return button;
}

void ObservedComparison::Read(const QString& path)
{
    const auto& locus = m_pane.ShownLocus();
    if (!locus)
        throw User::Refusal("The allele list shows no locus");
    ObservedReader table(OpenPanelFile(FromQString(path)));
    LongWork work("Reading the sizes...", this);
    const MarkerSizes observed(table, {locus->LocusTag(), locus->LocusName},
                               [&work](std::size_t /*lines*/) { work.GoOn(); });
    const auto* const marker = observed.Of(locus->LocusTag(), locus->LocusName);
    if (marker == nullptr || marker->second.Sizes.empty())
        throw User::Refusal(table.Name() + " has no sizes of " + locus->LocusTag() +
                            "; expected its tag or name in the column Marker");
    m_sizes = marker->second.Sizes;
    m_locus = locus.get();
    m_fit.reset();
    Show();
}

void ObservedComparison::Propose()
{
    m_fit = FitLadder(FieldsOn(m_page, *m_pane.ShownLocus()), Known(), m_sizes);
    Show();
}

void ObservedComparison::TakeOver()
{
    if (!m_fit || !m_fit->IsProposed)
        throw User::Refusal("No bins are proposed");
    User::ReplaceAlleles(m_page.ctlPaneAlleleList, WithProposal(Known(), *m_fit));
}

void ObservedComparison::Close()
{
    m_sizes.clear();
    m_locus = nullptr;
    m_fit.reset();
    Show();
}

void ObservedComparison::Refresh()
{
    if (m_locus == nullptr)
        return;
    if (m_pane.ShownLocus().get() != m_locus)
        return Close();
    Show();
}

std::vector<const AlleleFields*> ObservedComparison::Known() const
{
    std::vector<const AlleleFields*> known;
    for (const auto& row : m_pane.Rows())
        known.push_back(row.get());
    return known;
}

void ObservedComparison::Show()
{
    std::vector<LengthRange> proposed;
    if (m_fit)
    {
        for (const ProposedAllele& allele : m_fit->Alleles)
            proposed.push_back({allele.Fields.AlleleReal2, allele.Fields.AlleleReal3});
    }
    m_picture.ShowObserved(m_sizes, std::move(proposed));
    setVisible(!m_sizes.empty());
    m_takeOver->setEnabled(m_fit && m_fit->IsProposed);
    if (m_sizes.empty())
        return;
    const std::size_t outside = m_picture.Observed()->Outside.size();
    QString text = QString("%1 observed sizes (grey), %2 of them in no bin (triangles).")
                       .arg(m_sizes.size())
                       .arg(outside);
    if (m_fit)
    {
        for (const std::string& sentence : WordsOf(*m_fit))
            text += "\n" + ToQString(sentence);
        if (m_fit->IsProposed)
            text += "\nThe proposed bins are dashed.";
    }
    m_words->setText(text);
}

} // namespace Tamrivo
