#include "desktop/library/library_columns.h"

#include "core/text.h"
#include "desktop/common/text.h"

namespace Tamrivo
{

namespace
{

template <class Value>
int Order(const Value& left, const Value& right)
{
    return static_cast<int>(right < left) - static_cast<int>(left < right);
}

template <auto Member>
int Compare(const Library&, const LibraryLocus& left, const LibraryLocus& right)
{
    return Order(left.*Member, right.*Member);
}

template <auto Member>
int CompareText(const Library&, const LibraryLocus& left, const LibraryLocus& right)
{
    return CompareNoCase(left.*Member, right.*Member);
}

template <auto Names, auto Member>
int CompareName(const Library& library, const LibraryLocus& left, const LibraryLocus& right)
{
    // Names that many share are mostly equal.
    if (left.*Member == right.*Member)
        return 0;
    const NameList& names = (library.*Names)();
    return names[left.*Member].Key.compare(names[right.*Member].Key);
}

constexpr LibraryColumn columns[] = {
    {"Tag", "The locus tag", false, true,
     [](const Library&, const LibraryLocus& locus) { return ToQString(locus.Tag); }, nullptr},
    {"Dye", "The colour of the dye", false, true,
     [](const Library& library, const LibraryLocus& locus) {
         return ToQString(library.LabDyes().ColorOf(locus.DyeIndex));
     },
     Compare<&LibraryLocus::DyeIndex>},
    {"Range (nt)", "The fragment range", true, true,
     [](const Library&, const LibraryLocus& locus) {
         return QString("%1\u2013%2").arg(locus.FragStart).arg(locus.FragEnd);
     },
     [](const Library&, const LibraryLocus& left, const LibraryLocus& right) {
         const int start = Order(left.FragStart, right.FragStart);
         return start != 0 ? start : Order(left.FragEnd, right.FragEnd);
     }},
    {"Repeat (nt)", "The length of the repeat unit", true, true,
     [](const Library&, const LibraryLocus& locus) { return QString::number(locus.RepeatLength); },
     Compare<&LibraryLocus::RepeatLength>},
    {"Alleles (virtual)", "The number of alleles, and how many of them aren't in the ladder", true,
     true,
     [](const Library&, const LibraryLocus& locus) {
         const QString count = QString::number(locus.Alleles);
         return locus.VirtualAlleles == 0 ? count
                                          : count + QString(" (%1)").arg(locus.VirtualAlleles);
     },
     Compare<&LibraryLocus::Alleles>},
    {"Panel", "The primer set", false, true,
     [](const Library& library, const LibraryLocus& locus) {
         return ToQString(library.Panels()[locus.Panel].Name);
     },
     CompareName<&Library::Panels, &LibraryLocus::Panel>},
    {"Project", "The project that the locus is kept in", false, true,
     [](const Library& library, const LibraryLocus& locus) {
         return ToQString(library.Projects()[locus.Project].Name);
     },
     CompareName<&Library::Projects, &LibraryLocus::Project>},
    {"Used by", "How many analysis parameters use the locus", true, true,
     [](const Library&, const LibraryLocus& locus) {
         return locus.UsedBy == 0 ? QString() : QString::number(locus.UsedBy);
     },
     Compare<&LibraryLocus::UsedBy>},
    {"Changed", "When the locus was stored last", false, true,
     [](const Library&, const LibraryLocus& locus) { return ToQString(DateText(locus.Changed)); },
     Compare<&LibraryLocus::Changed>},
    {"Name", "The name of the locus", false, false,
     [](const Library&, const LibraryLocus& locus) { return ToQString(locus.Name); },
     CompareText<&LibraryLocus::Name>},
    {"Accession", "The GenBank accession", false, false,
     [](const Library&, const LibraryLocus& locus) { return ToQString(locus.Accession); },
     CompareText<&LibraryLocus::Accession>},
};

} // namespace

std::span<const LibraryColumn> LibraryColumns()
{
    return columns;
}

} // namespace Tamrivo
