#include "host/panels/cells.h"
#include "tests/panels/read_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace Tamrivo
{

namespace
{

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const std::string columnLine =
    "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tVirtual\tColor\tRepeat"
    "\tMarker.Min\tMarker.Max\tOffset\n";

TEST(PanelTable, IsReadWhateverTheOrderAndTheFurtherColumns)
{
    const PanelReading reading = ReadTable(
        "\xEF\xBB\xBF"
        "Color\tmarker.max\tMarker.Min\tRepeat\tNotes\tSize.Max\tSize.Min\tSize\tAllele\tMarker"
        "\tPanel\r\n"
        "BLUE\t148.2\t92.01\t4\tseen\t94.55\t93.55\t94.05\t8\tD3S1358\tP\r\n"
        "\r\n"
        "red\t92\t78\t9\t\t82.29\t81.29\t81.79\tX\tAMEL\tP\r\n"
        "Blue\t148.20\t92.01\t4.0\t\t125.43\t124.43\t124.93\t15.2\tD3S1358\tP");
    ASSERT_THAT(reading.Complaints, IsEmpty());
    ASSERT_THAT(reading.Markers, SizeIs(2));

    const PanelMarker& marker = reading.Markers[0];
    EXPECT_EQ(marker.Line, 2U);
    EXPECT_EQ(marker.Panel, "P");
    EXPECT_EQ(marker.Marker, "D3S1358");
    EXPECT_EQ(marker.RepeatLength, 4);
    EXPECT_EQ(marker.RangeStart, 92.01);
    EXPECT_EQ(marker.RangeEnd, 148.2);
    EXPECT_FALSE(marker.Offset);
    ASSERT_THAT(marker.Alleles, SizeIs(2));
    EXPECT_EQ(marker.Alleles[1].Name, "15.2");
    EXPECT_EQ(marker.Alleles[1].Size, 124.93);
    EXPECT_EQ(marker.Alleles[1].BinStart, 124.43);
    EXPECT_EQ(marker.Alleles[1].BinEnd, 125.43);
    EXPECT_EQ(marker.Alleles[1].Repeats, 15.2);
    EXPECT_EQ(reading.Markers[1].Alleles[0].Repeats, 0);
    EXPECT_EQ(marker.Alleles[1].Origin, AlleleOrigin::Imported);
}

TEST(PanelTable, ReadsTheNearestNumber)
{
    for (const char* text : {"0", "7", "94.05", "0.1", ".5", "5.", "0.57", "1234567890.12345",
                             "999999999999999", "99.999999999999999", "-2.5", "1e3"})
        EXPECT_EQ(CellNumber(text), std::strtod(text, nullptr)) << text;
    for (const char* text : {"", ".", "1.2.3", "4,5", "NA", "1e999", "0x1"})
        EXPECT_FALSE(CellNumber(text)) << text;
}

TEST(PanelTable, NamesThePlaceOfWhatCantBeRead)
{
    struct BadLine
    {
        const char* Line;
        const char* Place;
        const char* Expected;
    };
    const BadLine badLines[] = {
        {"P\t\t8\t94\t93\t95\t0\tblue\t4\t90\t150\t62", "line 3, column Marker: nothing",
         "name of"},
        {"P\tA\t\t94\t93\t95\t0\tblue\t4\t90\t150\t62", "line 3, column Allele: ", "an allele"},
        {"P\tA\t8\t94,5\t93\t95\t0\tblue\t4\t90\t150\t62", "line 3, column Size: \"94,5\"",
         "decimal point"},
        {"P\tA\t8\tinf\t93\t95\t0\tblue\t4\t90\t150\t62", "line 3, column Size: \"inf\"", "94.05"},
        {"P\tA\t8\t94\t\t95\t0\tblue\t4\t90\t150\t62", "line 3, column Size.Min: nothing", "bin"},
        {"P\tA\t8\t94\t93\t95\t2\tblue\t4\t90\t150\t62", "line 3, column Virtual: \"2\"", "or 0"},
        {"P\tA\t8\t94\t93\t95\t0\t\t4\t90\t150\t62", "line 3, column Color: nothing", "a dye"},
        {"P\tA\t8\t94\t93\t95\t0\tblue\t4.5\t90\t150\t62", "line 3, column Repeat: \"4.5\"",
         "whole"},
        {"P\tA\t8\t94\t93\t95\t0\tblue\t4\tx\t150\t62", "line 3, column Marker.Min: \"x\"",
         "start"},
        {"P\tA\t8\t94\t93\t95\t0\tblue\t4\t90\t80\t62", "line 3, column Marker.Max: ", "start, 90"},
        {"P\tA\t8\t94\t93\t95\t0\tblue\t4\t90\t150\tx", "line 3, column Offset: \"x\"", "size"},
        {"P\tOK\t9\t98\t97\t99\t0\tred\t4\t90\t150\t62", "line 3, column Color: \"red\"", "line 2"},
        {"P\tA\t8\t94\t93\t95\t0\tblue\t4\t90\t150\t62\t5", "line 3: ", "expected 12"},
        {"P\tOK\t9\t98\t97\t99\t0\tbl", "line 3: The line has 8 cells", "cut off"},
        {"P\tA\t8\t94\t93\t95\t0\tbl", "line 3: The line has 8 cells", "cut off"},
        {"P\tA\x7F\t8\t94\t93\t95\t0\tblue\t4\t90\t150\t62", "line 3, column Marker: \"A?\"",
         "control character"},
    };
    for (const BadLine& bad : badLines)
    {
        const PanelReading reading = ReadTable(
            columnLine + "P\tOK\t8\t94\t93\t95\t0\tblue\t4\t90\t150\t62\n" + bad.Line + "\n");
        EXPECT_THAT(reading.Complaints, IsEmpty());
        const auto& flaws = reading.Markers.back().Flaws;
        ASSERT_THAT(flaws, SizeIs(1)) << bad.Line;
        EXPECT_THAT(flaws[0].Text(),
                    AllOf(testing::StartsWith(bad.Place), HasSubstr(bad.Expected)));
    }
}

TEST(PanelTable, NeedsItsHeader)
{
    const std::string longLine(2'000'000, 'a');
    for (const auto& [text, expected] : {std::pair{"", "is empty"},
                                         {"Panel\tMarker\tAllele\nP\tA\t8\n", "missing: Size, "},
                                         {"P\xE4nel\n", "UTF-8"},
                                         {longLine.c_str(), "longer than a million bytes"}})
    {
        const PanelReading reading = ReadTable(text);
        ASSERT_THAT(reading.Complaints, SizeIs(1));
        EXPECT_THAT(reading.Complaints[0].Text(), HasSubstr(expected));
    }
    EXPECT_THAT(ReadTable("Size\tsize\t" + columnLine).Complaints, testing::Not(IsEmpty()));
    EXPECT_THAT(ReadTable(columnLine).Complaints, IsEmpty());
}

TEST(PanelTable, CollectsFlawsUpToALimit)
{
    std::string text = columnLine;
    for (int line = 0; line < 100; ++line)
        text += "P\tA\t8\tx\t93\t95\t0\tblue\t4\t90\t150\t62\n";
    EXPECT_THAT(ReadTable(text).Markers[0].Flaws, SizeIs(MaxPanelComplaints));
}

TEST(Cells, KeepEveryTextAndNumber)
{
    for (const char* text : {"", "a\tb\nc\rd\\t", "\\", "\xC3\xA9\xE4\xBD\x8D", "C:\\new"})
        EXPECT_EQ(UnescapeCell(EscapeCell(text)), text);
    EXPECT_EQ(UnescapeCell("C:\\dir"), "C:\\dir");
    for (const double number : {0.1, 1.0 / 3, -2.5e300, 94.05, 5e-324})
        EXPECT_EQ(CellNumber(NumberCell(number)), number);
    for (const char* cell : {"", " ", "1e999", "nan", "1 2", "0x10", "4,5"})
        EXPECT_EQ(CellNumber(cell), std::nullopt) << cell;
    EXPECT_EQ(CellWholeNumber("2147483648"), std::nullopt);
    EXPECT_EQ(CellWholeNumber(" -7.0 "), -7);
}

} // namespace

} // namespace Tamrivo
