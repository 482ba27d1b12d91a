#pragma once

#include "core/numbers.h"
#include "core/text.h"
#include "editor/field_number.h"
#include "editor/locus_editor_page.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace Tamrivo
{

/// What a table of exchanges between fields and locus is made of. A row is one step; a table is
/// walked from its first row to its last.
struct LocusEditorPage::Steps
{
    using Page = LocusEditorPage;

    /// Shows something of `m_oLocus`.
    using Step = void (*)(Page& page);
    /// Writes something of the fields into a locus.
    using StoreStep = void (*)(Page& page, Locus& oLocus);

    static const std::string& AsIs(const std::string& text) { return text; }

    static void Write(TextField& field, const std::string& text) { field.SetText(text); }
    static void Write(Label& label, const std::string& text) { label.SetCaption(text); }
    static void Reset(TextField& field) { field.SetText(""); }
    static void Reset(Label& label) { label.SetCaption(""); }
    static void Reset(CheckBox& box) { box.SetValue(0); }

    /// A property of `m_oLocus` becomes the text of a field or label.
    template <auto Target, auto Property, auto Conversion>
    static void Show(Page& page)
    {
        Write(page.*Target, Conversion(std::invoke(Property, *page.m_oLocus)));
    }

    /// A truth value of `m_oLocus` becomes the state of a check box.
    template <auto Box, auto Property>
    static void Tick(Page& page)
    {
        (page.*Box).SetValue((*page.m_oLocus).*Property ? 1 : 0);
    }

    /// A field's text is copied to another control.
    template <auto Target, auto Source>
    static void Copy(Page& page)
    {
        Write(page.*Target, (page.*Source).Text());
    }

    template <auto Target>
    static void Blank(Page& page)
    {
        Reset(page.*Target);
    }

    /// A control's text becomes a property, through the property's setter if it has one.
    template <auto Property, auto Source, auto Conversion>
    static void Store(Page& page, Locus& oLocus)
    {
        if constexpr (std::is_member_function_pointer_v<decltype(Property)>)
            (oLocus.*Property)(Conversion((page.*Source).Text()));
        else
            oLocus.*Property = Conversion((page.*Source).Text());
    }

    /// A field's text becomes a whole number.
    template <auto Property, auto Source>
    static void StoreInteger(Page& page, Locus& oLocus)
    {
        oLocus.*Property = IntegerIn(page.*Source);
    }

    /// The state of a check box becomes a truth value.
    template <auto Property, auto Box>
    static void StoreTick(Page& page, Locus& oLocus)
    {
        oLocus.*Property = (page.*Box).Value() != 0;
    }

    template <auto Procedure>
    static void Call(Page& page)
    {
        (page.*Procedure)();
    }

    static void ShowDye(Page& page)
    {
        page.cmbDye.SetText(page.cmbDye.List(page.m_oLocus->DyeIndex));
    }
    static void StoreDye(Page& page, Locus& oLocus) { oLocus.DyeIndex = page.cmbDye.ListIndex(); }

    static void BoundShortestAlleleSize(Page& page)
    {
        page.udShortestAlleleSize.SetMin(page.m_oLocus->FragStart);
        page.udShortestAlleleSize.SetMax(page.m_oLocus->FragEnd);
    }

    static void StoreUserSpecifiedConfInt(Page& page, Locus& oLocus)
    {
        oLocus.UserSpecifiedConfInt = page.chkUserSpecified.Value() == 1 ? 1 : 0;
    }

    /// Stores the interval if the field holds a number.
    static void StoreConfInt(Page& page, Locus& oLocus)
    {
        if (IsNumeric(page.txtConfInt.Text()))
            oLocus.ConfInt = ToDouble(page.txtConfInt.Text());
    }

    // Allele naming

    /// What one option of `optAlleleNaming` stands for.
    struct NamingOption
    {
        std::int32_t ConventionID;
        bool StartsAtAlphanumeric; ///< Which start group is live.
        bool StartsAtNumeric;
        StoreStep StoreStart; ///< Stores the start that belongs to the convention; null: none does.
    };

    /// By index of `optAlleleNaming`.
    static constexpr NamingOption NamingOptions[] = {
        {AlleleNamingConvention::NominalSize, false, false, nullptr},
        {AlleleNamingConvention::Alphabetic, true, false,
         Store<&Locus::StartAtAlphanumeric, &Page::txtStartAtAlphanumeric, AsIs>},
        {AlleleNamingConvention::Numeric, false, true,
         StoreInteger<&Locus::StartAtNumeric, &Page::txtStartAtNumeric>},
    };

    /// The option that is chosen, or null.
    static const NamingOption* ChosenNaming(Page& page)
    {
        const auto button = std::ranges::find_if(page.optAlleleNaming, &OptionButton::Value);
        return button == page.optAlleleNaming.end() ? nullptr : &NamingOptions[*button->Index()];
    }

    /// Chooses the option of the convention. Raises "Invalid ID: " for an unknown convention.
    static void ShowNaming(Page& page)
    {
        const std::int32_t lConventionID = page.m_oLocus->AlleleNamingConventionTypeID;
        const auto* option =
            std::ranges::find(NamingOptions, lConventionID, &NamingOption::ConventionID);
        if (option == std::end(NamingOptions))
            throw Failure(ErrorNumber::Application, "Select AlleleNamingConventionTypeID",
                          "Invalid ID: " + IntegerText(lConventionID));
        page.optAlleleNaming.Item(static_cast<int>(option - NamingOptions)).SetValue(true);
    }

    /// An empty first name becomes "A", on the locus itself.
    static void CompleteStartAtAlphanumeric(Page& page)
    {
        if (page.m_oLocus->StartAtAlphanumeric.empty())
            page.m_oLocus->StartAtAlphanumeric = "A";
    }

    static void ShowStartAtNumeric(Page& page)
    {
        const std::int32_t lStart = page.m_oLocus->StartAtNumeric;
        page.txtStartAtNumeric.SetText(lStart > 0 ? IntegerText(lStart) : "1");
    }

    /// Stores the chosen convention alone.
    static void StoreNamingConvention(Page& page, Locus& oLocus)
    {
        if (const NamingOption* option = ChosenNaming(page))
            oLocus.AlleleNamingConventionTypeID = option->ConventionID;
    }

    /// Stores the chosen convention with the start that belongs to it.
    static void StoreNaming(Page& page, Locus& oLocus)
    {
        const NamingOption* option = ChosenNaming(page);
        if (option != nullptr && option->StoreStart != nullptr)
            option->StoreStart(page, oLocus);
        StoreNamingConvention(page, oLocus);
    }
};

} // namespace Tamrivo
