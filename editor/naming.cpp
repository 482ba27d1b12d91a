#include "editor/steps.h"

#include <algorithm>
#include <iterator>

namespace Tamrivo
{

struct LocusEditorPage::Naming : Steps
{
    /// What one option of `optAlleleNaming` stands for.
    struct Option
    {
        std::int32_t ConventionID;
        bool StartsAtAlphanumeric; ///< Which start group is live.
        bool StartsAtNumeric;
        StoreStep StoreStart; ///< Stores the start that belongs to the convention; null: none does.
    };

    /// By index of `optAlleleNaming`.
    static constexpr Option Options[] = {
        {AlleleNamingConvention::NominalSize, false, false, nullptr},
        {AlleleNamingConvention::Alphabetic, true, false,
         Store<&Locus::StartAtAlphanumeric, &Page::txtStartAtAlphanumeric, AsIs>},
        {AlleleNamingConvention::Numeric, false, true,
         StoreInteger<&Locus::StartAtNumeric, &Page::txtStartAtNumeric>},
    };

    /// The option that is chosen, or null.
    static const Option* Chosen(Page& page)
    {
        const auto button = std::ranges::find_if(page.optAlleleNaming, &OptionButton::Value);
        return button == page.optAlleleNaming.end() ? nullptr : &Options[*button->Index()];
    }

    static void StepStartAtAlphanumeric(Guard& run, Page& page,
                                        std::string (Locus::*step)(const std::string&) const)
    {
        TextField& field = page.txtStartAtAlphanumeric;
        if (field.Text().empty())
            run([&] { field.SetText("A"); });
        run([&] { field.SetText(((*page.m_oLocus).*step)(field.Text())); });
    }
};

void LocusEditorPage::Steps::ShowNaming(Page& page)
{
    const std::int32_t lConventionID = page.m_oLocus->AlleleNamingConventionTypeID;
    const auto* option =
        std::ranges::find(Naming::Options, lConventionID, &Naming::Option::ConventionID);
    if (option == std::end(Naming::Options))
        throw Failure(ErrorNumber::Application, "Select AlleleNamingConventionTypeID",
                      "Invalid ID: " + IntegerText(lConventionID));
    page.optAlleleNaming.Item(static_cast<int>(option - Naming::Options)).SetValue(true);
}

void LocusEditorPage::Steps::CompleteStartAtAlphanumeric(Page& page)
{
    if (page.m_oLocus->StartAtAlphanumeric.empty())
        page.m_oLocus->StartAtAlphanumeric = "A";
}

void LocusEditorPage::Steps::ShowStartAtNumeric(Page& page)
{
    const std::int32_t lStart = page.m_oLocus->StartAtNumeric;
    page.txtStartAtNumeric.SetText(lStart > 0 ? IntegerText(lStart) : "1");
}

void LocusEditorPage::Steps::StoreNaming(Page& page, Locus& oLocus)
{
    const Naming::Option* option = Naming::Chosen(page);
    if (option == nullptr)
        return;
    if (option->StoreStart != nullptr)
        option->StoreStart(page, oLocus);
    oLocus.AlleleNamingConventionTypeID = option->ConventionID;
}

void LocusEditorPage::Steps::StoreNamingConvention(Page& page, Locus& oLocus)
{
    if (const Naming::Option* option = Naming::Chosen(page))
        oLocus.AlleleNamingConventionTypeID = option->ConventionID;
}

void LocusEditorPage::optAlleleNaming_Click(int Index)
{
    Terminal("optAlleleNaming_Click", [&](Guard& run) {
        const Naming::Option& option = Naming::Options[Index];
        run([&] { StartAtAlphanumeric(option.StartsAtAlphanumeric); });
        run([&] { StartAtNumeric(option.StartsAtNumeric); });
    });
}

void LocusEditorPage::StartAtAlphanumeric(bool bEnabled)
{
    Propagating("StartAtAlphanumeric (Let)", [&](Guard& run) {
        run([&] { txtStartAtAlphanumeric.SetEnabled(bEnabled); });
        run([&] { udStartAtAlphanumeric.SetEnabled(bEnabled); });
        run([&] { lblStartAtAlphanumeric.SetEnabled(bEnabled); });
    });
}

void LocusEditorPage::StartAtNumeric(bool bEnabled)
{
    Propagating("StartAtNumeric (Let)", [&](Guard& run) {
        run([&] { txtStartAtNumeric.SetEnabled(bEnabled); });
        run([&] { udStartAtNumeric.SetEnabled(bEnabled); });
        run([&] { lblStartAtNumeric.SetEnabled(bEnabled); });
    });
}

void LocusEditorPage::udStartAtAlphanumeric_UpClick()
{
    Terminal("udStartAtAlphanumeric_UpClick",
             [&](Guard& run) { Naming::StepStartAtAlphanumeric(run, *this, &Locus::NextStartAt); });
}

void LocusEditorPage::udStartAtAlphanumeric_DownClick()
{
    Terminal("udStartAtAlphanumeric_DownClick", [&](Guard& run) {
        Naming::StepStartAtAlphanumeric(run, *this, &Locus::PreviousStartAt);
    });
}

void LocusEditorPage::txtLocusTag_Change()
{
    Terminal("txtLocusTag_Change", [&](Guard& run) {
        run([&] { m_oPageBase->PageChanged(); });
        if (Trim(txtLocusTag.Text()).empty())
            run([&] { m_oLocus->SetIsCurrent(false); });
    });
}

} // namespace Tamrivo
