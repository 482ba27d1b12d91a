#include "core/error.h"
#include "host/loci/progress.h"
#include "host/panels/panel_files.h"
#include "host/panels/whole_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace Tamrivo
{

namespace
{

class WholeFiles : public testing::Test
{
protected:
    WholeFiles() { std::filesystem::create_directories(m_directory); }
    ~WholeFiles() override { std::filesystem::remove_all(m_directory); }

    std::string Path(const std::string& name) const { return m_directory / name; }

    std::filesystem::path m_directory =
        std::filesystem::path(testing::TempDir()) / ("tamrivo_files_" + std::to_string(getpid()));
};

TEST_F(WholeFiles, ReplaceOthersOnlyWhenComplete)
{
    const auto write = [](std::ostream& out) { out << "new"; };
    std::ofstream(Path("out.txt")) << "old";
    EXPECT_THROW(WriteWholeFile(Path("out.txt"), [](std::ostream&) { throw Cancelled(); }),
                 Cancelled);
    EXPECT_EQ(LoadPanelFile(Path("out.txt")).Text, "old");
    WriteWholeFile(Path("out.txt"), write);
    EXPECT_EQ(LoadPanelFile(Path("out.txt")).Text, "new");
    EXPECT_FALSE(std::filesystem::exists(Path("out.txt.part")));
    EXPECT_THROW(WriteWholeFile(Path("none/out.txt"), write), Failure);
    EXPECT_THROW(WriteWholeFile("/dev/full", write), Failure);
    EXPECT_THROW(LoadPanelFile(Path("none.txt")), Failure);
    EXPECT_THROW(LoadPanelFile(m_directory), Failure);
    EXPECT_THROW(OpenPanelFile(m_directory), Failure);
}

TEST_F(WholeFiles, ThatBelongTogetherAreReplacedTogether)
{
    const auto contents = [this] {
        return LoadPanelFile(Path("a.txt")).Text + LoadPanelFile(Path("b.txt")).Text;
    };
    const auto files = [this](const std::string& text, const std::string& second) {
        const auto write = [text](std::ostream& out) { out << text; };
        return std::vector<FileToWrite>{{Path("a.txt"), write}, {Path(second), write}};
    };
    WriteWholeFiles(files("1", "b.txt"));
    EXPECT_EQ(contents(), "11");
    WriteWholeFiles(files("2", "b.txt"));
    EXPECT_EQ(contents(), "22");
    EXPECT_THROW(WriteWholeFiles(files("3", "a.txt")), Failure);
    EXPECT_THROW(WriteWholeFiles(files("3", "none/b.txt")), Failure);
    // The second one can't be replaced once both are complete.
    auto late = files("3", "c.txt");
    late[1].Write = [this](std::ostream& out) {
        out << "3";
        std::filesystem::create_directories(Path("c.txt"));
    };
    EXPECT_THROW(WriteWholeFiles(late), Failure);
    EXPECT_EQ(contents(), "22");
    std::filesystem::remove(Path("a.txt"));
    std::filesystem::remove(Path("c.txt"));
    EXPECT_THROW(WriteWholeFiles(late), Failure);
    EXPECT_FALSE(std::filesystem::exists(Path("a.txt")));
    for (const auto& entry : std::filesystem::directory_iterator(m_directory))
        EXPECT_EQ(entry.path().extension(), ".txt");
}

} // namespace

} // namespace Tamrivo
