#include "core/error.h"
#include "desktop/common/actions.h"
#include "desktop/lanes/lane_order.h"
#include "desktop/lanes/lane_picture.h"
#include "desktop/lanes/locus_lanes.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace Tamrivo
{

namespace
{

using testing::HasSubstr;
using testing::SizeIs;

const std::vector<LaneLocus> threeLoci = {
    {"TH01", 0, 148, 200}, {"D3S1358", 0, 92, 150}, {"FGA", 1, 100, 180}};

/// How many loci of each dye may have the lengths from each whole number to the next.
std::map<std::pair<std::int32_t, std::int32_t>, int> Coverage(const std::vector<LaneLocus>& loci)
{
    std::map<std::pair<std::int32_t, std::int32_t>, int> coverage;
    for (const LaneLocus& locus : loci)
    {
        for (std::int32_t length = locus.From; length < locus.To; ++length)
            ++coverage[{locus.DyeIndex, length}];
    }
    return coverage;
}

std::vector<LaneLocus> RandomLoci(std::mt19937& random, int count)
{
    std::vector<LaneLocus> loci;
    for (int i = 0; i < count; ++i)
    {
        const auto from = static_cast<std::int32_t>(random() % 60);
        const auto length = static_cast<std::int32_t>(random() % 12);
        loci.push_back({"L" + std::to_string(i), static_cast<std::int32_t>(random() % 3), from,
                        from + length});
    }
    return loci;
}

TEST(LocusOverlaps, AreThoseThatComparingAllPairsFinds)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round)
    {
        const auto loci = RandomLoci(random, round % 25);
        const LocusOverlaps found = FindOverlaps(loci, 1000);
        std::set<std::pair<std::size_t, std::size_t>> expected;
        std::vector<bool> isOverlapped(loci.size());
        for (std::size_t i = 0; i < loci.size(); ++i)
        {
            for (std::size_t j = 0; j < i; ++j)
            {
                if (loci[i].DyeIndex != loci[j].DyeIndex ||
                    std::max(loci[i].From, loci[j].From) >= std::min(loci[i].To, loci[j].To))
                    continue;
                expected.emplace(j, i);
                isOverlapped[i] = isOverlapped[j] = true;
            }
        }
        std::set<std::pair<std::size_t, std::size_t>> listed;
        for (const LocusOverlap& overlap : found.Listed)
        {
            const LaneLocus& first = loci[overlap.First];
            const LaneLocus& second = loci[overlap.Second];
            listed.insert(std::minmax(overlap.First, overlap.Second));
            EXPECT_EQ(overlap.From, std::max(first.From, second.From));
            EXPECT_EQ(overlap.To, std::min(first.To, second.To));
        }
        EXPECT_EQ(listed, expected);
        EXPECT_EQ(found.Count, expected.size());
        EXPECT_EQ(found.IsOverlapped, isOverlapped);

        std::vector<SharedStretch> shared;
        for (const auto& [place, count] : Coverage(loci))
        {
            const auto [dye, length] = place;
            if (count < 2)
                continue;
            if (!shared.empty() && shared.back().DyeIndex == dye && shared.back().To == length)
                shared.back().To = length + 1;
            else
                shared.push_back({dye, length, length + 1});
        }
        EXPECT_EQ(found.Shared, shared);
    }
}

TEST(LocusOverlaps, AreCountedBeyondWhatIsListed)
{
    const std::uint64_t count = 100'000;
    const std::vector<LaneLocus> loci(count, {"L", 2, 60, 640});
    const LocusOverlaps found = FindOverlaps(loci, 50);
    EXPECT_EQ(found.Count, count * (count - 1) / 2);
    EXPECT_THAT(found.Listed, SizeIs(50));
}

TEST(LocusOverlaps, AreToldInWords)
{
    EXPECT_EQ(Describe(FindOverlaps(threeLoci, 50).Listed.at(0), threeLoci, {}),
              "D3S1358 and TH01 overlap from 148 to 150 nt in blue: they can't be told apart in "
              "one run");
}

TEST(Lanes, TakeAsManyRowsAsLociShareALength)
{
    std::mt19937 random(11);
    for (int round = 0; round < 100; ++round)
    {
        auto loci = RandomLoci(random, 40);
        std::erase_if(loci, [](const LaneLocus& locus) { return locus.From == locus.To; });
        std::map<std::int32_t, int> highest;
        for (const auto& [place, count] : Coverage(loci))
            highest[place.first] = std::max(highest[place.first], count);
        for (const Lane& lane : LayOutLanes(loci))
        {
            EXPECT_EQ(lane.Rows.size(), highest[lane.DyeIndex]);
            for (const auto& row : lane.Rows)
            {
                for (std::size_t at = 1; at < row.size(); ++at)
                    EXPECT_GE(loci[row[at]].From, loci[row[at - 1]].To);
            }
        }
    }
}

class LocusLanesTest : public testing::Test
{
protected:
    LocusLanesTest()
    {
        m_lanes.resize(600, 400);
        m_lanes.show();
    }

    QString Path(const QString& name) const { return m_directory.filePath(name); }
    LanePicture& Picture() { return *m_lanes.findChild<LanePicture*>(); }
    std::string Summary()
    {
        return m_lanes.findChild<QLabel*>("overlapSummary")->text().toStdString();
    }
    QStringList Listed()
    {
        return m_lanes.findChild<QPlainTextEdit*>("overlaps")->toPlainText().split('\n');
    }

    QTemporaryDir m_directory;
    Actions m_actions{[](const ErrorRecord& error) { ADD_FAILURE() << error.Description; }};
    LocusLanes m_lanes{m_actions};
};

TEST_F(LocusLanesTest, ListsWhatOverlapsUpToABound)
{
    m_lanes.SetLoci(threeLoci);
    EXPECT_EQ(Summary(), "2 loci of one dye overlap:");
    EXPECT_EQ(Listed().size(), 1);

    m_lanes.SetLoci({threeLoci[0], threeLoci[2]});
    EXPECT_EQ(Summary(), "No loci of one dye overlap.");
    EXPECT_FALSE(m_lanes.findChild<QPlainTextEdit*>("overlaps")->isVisible());

    m_lanes.SetLoci(std::vector<LaneLocus>(12, threeLoci[0]));
    EXPECT_EQ(Summary(), "66 pairs of loci of one dye overlap:");
    EXPECT_EQ(Listed().size(), 51);
    EXPECT_EQ(Listed().back(), "And 16 more.");
}

TEST_F(LocusLanesTest, ShowsEveryBarWhenScrolledThrough)
{
    std::vector<LaneLocus> loci;
    for (int i = 0; i < 400; ++i)
        loci.push_back({"L" + std::to_string(i), i % 4, 60 + i % 7, 200});
    m_lanes.SetLoci(loci);
    LanePicture& picture = Picture();
    const QSize size = picture.viewport()->size();
    const int bottom = size.height() - LaneDrawing::AxisHeight(picture.fontMetrics());
    std::set<std::size_t> seen;
    for (int value = 0;; value += picture.verticalScrollBar()->singleStep())
    {
        picture.verticalScrollBar()->setValue(value);
        for (const LaneBar& bar : picture.Drawing().BarsInView(
                 size, picture.verticalScrollBar()->value(), picture.fontMetrics()))
        {
            if (bar.Rect.top() >= 0 && bar.Rect.bottom() <= bottom)
                seen.insert(bar.Locus);
        }
        if (value >= picture.verticalScrollBar()->maximum())
            break;
    }
    EXPECT_EQ(seen.size(), loci.size());
}

TEST_F(LocusLanesTest, SavesThePicture)
{
    m_lanes.SetLoci(threeLoci);
    m_lanes.SavePicture(Path("loci.png"));
    const QImage image(Path("loci.png"));
    EXPECT_EQ(image.width(), 2 * Picture().viewport()->width());
    EXPECT_GT(image.pixelColor(0, 0).lightness(), 200);

    m_lanes.SavePicture(Path("loci.SVG"));
    QFile svg(Path("loci.SVG"));
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    const std::string text = svg.readAll().toStdString();
    for (const LaneLocus& locus : threeLoci)
        EXPECT_THAT(text, HasSubstr(">" + locus.Tag + "<"));

    const auto refusal = [this](const QString& name) {
        try
        {
            m_lanes.SavePicture(Path(name));
        }
        catch (const Failure& failure)
        {
            return std::string(failure.what());
        }
        return std::string("no failure");
    };
    EXPECT_THAT(refusal("none/loci.png"), HasSubstr("none/loci.png\" can't be written: "));
    m_lanes.SetLoci(std::vector<LaneLocus>(5000, threeLoci[0]));
    EXPECT_THAT(refusal("tall.svg"), HasSubstr("too tall"));
}

TEST_F(LocusLanesTest, ZoomsAndMovesAndKeepsWhatIsInView)
{
    m_lanes.SetLoci(threeLoci);
    LanePicture& picture = Picture();
    const auto span = [&picture] {
        return picture.Drawing().InView().High - picture.Drawing().InView().Low;
    };
    const double whole = span();
    QTest::keyClick(&picture, Qt::Key_Plus);
    QTest::keyClick(&picture, Qt::Key_Plus);
    EXPECT_NEAR(span(), whole / 1.25 / 1.25, 1e-6);
    const double low = picture.Drawing().InView().Low;
    QTest::keyClick(&picture, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(picture.Drawing().InView().Low, low);
    m_lanes.SetLoci(threeLoci);
    EXPECT_LT(span(), whole);

    // Dragging moves the lengths and chooses nothing; a click chooses.
    std::vector<std::string> clicked;
    m_lanes.onClicked = [&clicked](const std::string& tag) { clicked.push_back(tag); };
    const double before = picture.Drawing().InView().Low;
    const QPoint place(picture.viewport()->width() / 2, 20);
    QTest::mousePress(picture.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseMove(picture.viewport(), place + QPoint(60, 0));
    QTest::mouseRelease(picture.viewport(), Qt::LeftButton, {}, place + QPoint(60, 0));
    EXPECT_LT(picture.Drawing().InView().Low, before);
    EXPECT_TRUE(clicked.empty());
    QTest::keyClick(&picture, Qt::Key_0);
    EXPECT_NEAR(span(), whole, 1e-6);
    QTest::keyClick(&picture, Qt::Key_Home);
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(clicked, std::vector<std::string>{"D3S1358"});
    // A range that is left behind comes back into view with the keys.
    picture.SetInView({92, 100});
    QTest::keyClick(&picture, Qt::Key_End);
    EXPECT_LT(picture.Drawing().InView().Low, 180);
    EXPECT_GT(picture.Drawing().InView().High, 100);
}

TEST_F(LocusLanesTest, ShowsAllelesAndObservedSizesWhereThereIsRoom)
{
    m_lanes.allelesOf = [](const std::string&) {
        return std::vector<LaneAllele>{{"8", 95}, {"9", 99}, {"9.3", 102}};
    };
    m_lanes.SetLoci(threeLoci);
    QFile table(Path("sizes.tsv"));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write("Sample\tMarker\tSize\nS\td3s1358\t95.1\nS\tD3S1358\t99.2,99.4\n");
    table.close();
    LanePicture& picture = Picture();
    const auto drawn = [&picture] { return picture.viewport()->grab().toImage(); };
    const QImage bare = drawn();
    QTest::qWait(100);
    const QImage withAlleles = drawn();
    EXPECT_NE(withAlleles, bare);
    m_lanes.ShowObserved(Path("sizes.tsv"));
    QTest::qWait(100);
    const QImage withSizes = drawn();
    EXPECT_NE(withSizes, withAlleles);
    m_lanes.SetChosen({"FGA"});
    EXPECT_NE(drawn(), withSizes);
    QTest::keyClick(&picture, Qt::Key_Home);
    EXPECT_EQ(picture.accessibleDescription().toStdString(),
              "D3S1358: 92 to 150 nt, blue\nOverlaps another locus of this dye\n"
              "Alleles: 8, 9, 9.3\nObserved sizes: 3");
}

TEST_F(LocusLanesTest, PrintsOnAsManyPagesAsTheRowsNeed)
{
    m_lanes.SetLoci(std::vector<LaneLocus>(200, threeLoci[0]));
    QPdfWriter pdf(Path("loci.pdf"));
    PrintLanes(Picture().Paper(), pdf);
    QFile file(Path("loci.pdf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_GT(file.readAll().count("/Type /Page\n"), 3);
}

} // namespace

} // namespace Tamrivo
