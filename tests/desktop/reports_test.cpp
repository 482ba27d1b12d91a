#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/reports/reports_window.h"
#include "host/framework/host_application.h"
#include "host/framework/wizard_session.h"

#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// Reports show nothing through the host.
class UnusedFrontEnd : public FrontEnd
{
public:
    void RunWizard(WizardSession& wizard) override { wizard.Cancel(); }
    void ShowMenu(UserControl& /*form*/, Menu& /*menu*/) override {}
    MessageAnswer ShowMessage(const std::string& /*text*/, std::int32_t /*kind*/,
                              const std::string& /*title*/) override
    {
        return MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport& /*report*/) override {}
    void ShowFailure(const ErrorRecord& /*error*/) override {}
};

class ReportsWindowTest : public testing::Test
{
protected:
    void AddLocus(const std::string& tag, const std::string& name = {})
    {
        const auto locus = CreateObject<Locus>(m_store.Manager(), "Locus");
        locus->SetLocusTag(tag);
        locus->LocusName = name;
        locus->SetIsCurrent(true);
        m_store.Manager().Save(*locus, true);
    }

    std::vector<std::string> ShownTags()
    {
        const QAbstractItemModel& model = *m_window.findChild<QTableView*>()->model();
        std::vector<std::string> tags;
        for (int row = 0; row < model.rowCount(); ++row)
            tags.push_back(FromQString(model.index(row, 0).data().toString()));
        return tags;
    }

    std::string Saved(const QString& name)
    {
        m_window.Save(m_directory.filePath(name));
        QFile file(m_directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }

    std::string Status()
    {
        return FromQString(m_window.findChild<QLabel*>("reportStatus")->text());
    }

    QTemporaryDir m_directory;
    Store m_store{FromQString(m_directory.filePath("store.sqlite"))};
    UnusedFrontEnd m_frontEnd;
    HostApplication m_host{m_store, m_frontEnd};
    Actions m_actions{[](const ErrorRecord& error) { ADD_FAILURE() << error.Description; }};
    ReportsWindow m_window{m_host, m_actions};
};

TEST_F(ReportsWindowTest, SavesTheRowsInTheOrderShown)
{
    for (const char* tag : {"D12S391", "FGA", "D2S441"})
        AddLocus(tag, "a<b");
    m_window.ShowAll();
    m_window.show();
    EXPECT_THAT(ShownTags(), ElementsAre("D12S391", "FGA", "D2S441"));

    auto& header = *m_window.findChild<QTableView*>()->horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(0) + 5, header.height() / 2});
    EXPECT_THAT(ShownTags(), ElementsAre("D2S441", "D12S391", "FGA"));

    const std::string tsv = Saved("loci.tsv");
    EXPECT_THAT(tsv, HasSubstr("\nD2S441\ta<b\t"));
    EXPECT_LT(tsv.find("D2S441"), tsv.find("D12S391"));
    EXPECT_LT(tsv.find("D12S391"), tsv.find("FGA"));
    EXPECT_THAT(Saved("loci.html"),
                AllOf(HasSubstr("<td>D2S441</td><td>a&lt;b</td>"), HasSubstr("Locus: 3 loci")));
    EXPECT_THAT(Status(), HasSubstr("Saved to "));
}

TEST_F(ReportsWindowTest, ShowsAParametersLociInItsOrder)
{
    for (const char* tag : {"TH01", "FGA", "D2S441"})
        AddLocus(tag);
    m_window.ShowParameter("Casework", {"fga ", "TH01", "gone"});
    EXPECT_THAT(ShownTags(), ElementsAre("FGA", "TH01"));
    EXPECT_THAT(Saved("loci.html"), HasSubstr("Analysis parameter Casework: 2 loci"));

    m_window.show();
    QTest::keyClick(m_window.findChild<QComboBox*>("reportScope"), Qt::Key_Up);
    EXPECT_THAT(ShownTags(), ElementsAre("TH01", "FGA", "D2S441"));
    EXPECT_THAT(Saved("loci.html"), Not(HasSubstr("Casework")));
}

TEST_F(ReportsWindowTest, SetsALongTableOnSeveralPages)
{
    auto transaction = m_store.Begin();
    for (int i = 0; i < 80; ++i)
        AddLocus("D" + std::to_string(i));
    transaction.Commit();
    m_window.ShowAll();
    const std::string pdf = Saved("loci.pdf");
    EXPECT_THAT(pdf, StartsWith("%PDF"));
    EXPECT_THAT(pdf, HasSubstr("/Count 3\n"));
}

TEST_F(ReportsWindowTest, SaysWhyItCantSave)
{
    m_window.ShowAll();
    EXPECT_EQ(Status(), "There are no loci to report on yet.");
    const auto refusal = [&](const QString& name) {
        try
        {
            m_window.Save(m_directory.filePath(name));
        }
        catch (const Failure& failure)
        {
            return std::string(failure.what());
        }
        return std::string("no failure");
    };
    EXPECT_THAT(refusal("loci.docx"), HasSubstr("should end in .pdf, .html or .tsv"));
    EXPECT_THAT(refusal("none/loci.pdf"), HasSubstr("can't be written"));
}

} // namespace

} // namespace Tamrivo
