#include "core/error.h"
#include "host/framework/wizard_session.h"
#include "host/loci/progress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

using testing::ElementsAre;

/// A page that notes its events and does with them what a test says.
class WizardSessionTest : public testing::Test
{
protected:
    WizardSessionTest()
    {
        m_connections.On(m_base->Initialize,
                         [this](const auto&) { Note("Initialize", m_onInitialize); });
        m_connections.On(m_base->Activate, [this] { Note("Activate", {}); });
        m_connections.On(m_base->Validate, [this](bool& isValid) {
            isValid = m_isValid;
            Note("Validate", m_onValidate);
        });
        m_connections.On(m_base->Save, [this] { Note("Save", m_onSave); });
        m_connections.On(m_session.ValidateFailed, [this](const ErrorRecord& error) {
            m_events.push_back("failed: " + error.Description);
        });
    }

    void Note(const std::string& event, const std::function<void()>& action)
    {
        m_events.push_back(event);
        if (action)
            action();
    }

    std::shared_ptr<HostPageBase> m_base = std::make_shared<HostPageBase>();
    std::function<void()> m_onInitialize;
    std::function<void()> m_onValidate;
    std::function<void()> m_onSave;
    bool m_isValid = true;
    std::vector<std::string> m_events;
    WizardSession m_session{"Wizard", std::make_shared<UserControl>("Page", 0, 0), m_base};
    Connections m_connections;
};

[[noreturn]] void Fail()
{
    throw Failure(ErrorNumber::Unexpected, "Test", "no");
}

TEST_F(WizardSessionTest, AsksAPageThatChangedWhileItWasInitializedOnceItStands)
{
    m_onInitialize = [this] {
        m_base->PageChanged();
        m_base->PageChanged();
        m_events.emplace_back("filled");
    };
    m_isValid = false;
    m_session.Initialize();
    m_session.Activate();
    EXPECT_THAT(m_events, ElementsAre("Initialize", "filled", "Validate", "Activate"));
    EXPECT_FALSE(m_session.IsValid());
}

TEST_F(WizardSessionTest, AnswersAChangeAtOnce)
{
    m_session.Initialize();
    m_connections.On(m_session.Validated,
                     [this] { m_events.emplace_back(m_session.IsValid() ? "valid" : "invalid"); });
    m_isValid = false;
    m_base->PageChanged();
    m_isValid = true;
    m_base->PageChanged();
    EXPECT_THAT(m_events, ElementsAre("Initialize", "Validate", "invalid", "Validate", "valid"));
}

TEST_F(WizardSessionTest, KeepsAFailingValidateFromThePageThatAskedForIt)
{
    m_session.Initialize();
    m_onValidate = Fail;
    EXPECT_NO_THROW(m_base->PageChanged());
    EXPECT_THAT(m_events, ElementsAre("Initialize", "Validate", "failed: no"));
    EXPECT_THROW(m_session.Validate(), Failure);
    EXPECT_FALSE(m_session.HasEnded());
    m_onValidate = [] { throw Cancelled(); };
    EXPECT_THROW(m_base->PageChanged(), Cancelled) << "to cancel is no failure";
}

TEST_F(WizardSessionTest, StaysOpenUnlessThePageIsValidAndSaved)
{
    m_session.Initialize();
    m_isValid = false;
    EXPECT_FALSE(m_session.Finish());
    m_isValid = true;
    m_onSave = Fail;
    EXPECT_THROW(m_session.Finish(), Failure);
    EXPECT_FALSE(m_session.HasEnded());
    m_onSave = nullptr;
    EXPECT_TRUE(m_session.Finish());
    EXPECT_TRUE(m_session.HasEnded());
    EXPECT_FALSE(m_session.IsCancelled());
    EXPECT_THAT(m_events,
                ElementsAre("Initialize", "Validate", "Validate", "Save", "Validate", "Save"));
}

TEST_F(WizardSessionTest, CancelRaisesNothing)
{
    m_session.Initialize();
    m_session.Cancel();
    EXPECT_TRUE(m_session.HasEnded() && m_session.IsCancelled());
    EXPECT_THAT(m_events, ElementsAre("Initialize"));
}

TEST(HostPageBase, OutlivesItsWizard)
{
    const auto base = std::make_shared<HostPageBase>();
    {
        WizardSession session("Wizard", std::make_shared<UserControl>("Page", 0, 0), base);
    }
    base->PageChanged();
}

} // namespace

} // namespace Tamrivo
