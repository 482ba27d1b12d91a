#include "host/framework/host_application.h"
#include "host/framework/parameter_page.h"
#include "host/framework/wizard_session.h"
#include "host/loci/progress.h"
#include "tests/store/store_fixture.h"

namespace Tamrivo::Testing
{
namespace
{

/// A person who cancels work at its first sign, then at the second, and so on.
class Cancelling : public StoreTest, private FrontEnd
{
protected:
    Cancelling()
    {
        for (const char* tag : {"A", "B", "C"})
            Save(m_store, tag, {"7", "8"});
        m_host.Parameters().Create("Mine", TagLists::OneEmpty);
    }

    /// How often the work was cancelled before it came to its end. Nobody must hear of it.
    int CancelUntilDone(const std::function<void()>& work)
    {
        for (int signs = 0;; ++signs)
        {
            int left = signs;
            const Connection person = m_store.OnProgress([&left] {
                if (left-- == 0)
                    throw Cancelled();
            });
            m_shown = 0;
            try
            {
                work();
                return signs;
            }
            catch (const Cancelled&)
            {
                EXPECT_EQ(m_shown, 0) << "a cancelled page was shown, or a failure reported";
            }
        }
    }

    Store m_store{Address()};
    HostApplication m_host{m_store, *this};
    int m_shown = 0;

private:
    void RunWizard(WizardSession& wizard) override
    {
        ++m_shown;
        wizard.Cancel();
    }
    void ShowMenu(UserControl&, Menu&) override { ++m_shown; }
    MessageAnswer ShowMessage(const std::string&, std::int32_t, const std::string&) override
    {
        ++m_shown;
        return MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport&) override { ++m_shown; }
    void ShowFailure(const ErrorRecord&) override { ++m_shown; }
};

TEST_F(Cancelling, EndsAnOpeningWhereverItStands)
{
    EXPECT_GE(CancelUntilDone([this] { m_host.EditLocus("A", false); }), 3);
    EXPECT_EQ(m_shown, 1);
    EXPECT_GE(CancelUntilDone([this] { m_host.EditLocus("A", true); }), 3);
    EXPECT_GE(CancelUntilDone([this] { m_host.NewLocus(false); }), 2);
    EXPECT_EQ(m_shown, 1);
}

TEST_F(Cancelling, EndsTheFillingOfTheSelectorAndAReport)
{
    const int signs = CancelUntilDone(
        [this] { const ParameterPage page(m_host, m_host.Parameters().Open("Mine")); });
    EXPECT_GE(signs, 5) << "three of them for the rows";
    EXPECT_GE(CancelUntilDone([this] { m_host.Contexts(1010); }), 1);
    EXPECT_EQ(m_shown, 0);
}

} // namespace
} // namespace Tamrivo::Testing
