#include "controls/frames.h"
#include "controls/label.h"
#include "controls/user.h"
#include "controls/user_control.h"
#include "desktop/front_end/hosted_views.h"
#include "desktop_test.h"
#include "host/framework/parameter_page.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace Tamrivo::Testing
{

namespace
{

// The scale factor is that of the environment (QT_SCALE_FACTOR): each run has its own.
class RenderTest : public DesktopTest, public testing::WithParamInterface<double>
{
protected:
    RenderTest() : m_before(QApplication::font())
    {
        QFont font = m_before;
        font.setPointSizeF(GetParam());
        QApplication::setFont(font);
    }
    ~RenderTest() override { QApplication::setFont(m_before); }

private:
    QFont m_before;
};

/// Children of one container that lie on one another, other than those that share their place.
void ExpectNoOverlap(const Container& container, const FormView& view)
{
    const auto& children = container.Children();
    for (std::size_t i = 0; i < children.size(); ++i)
    {
        for (std::size_t j = i + 1; j < children.size(); ++j)
        {
            ControlView* one = view.ViewOf(*children[i]);
            ControlView* other = view.ViewOf(*children[j]);
            if (one == nullptr || other == nullptr ||
                !one->Widget().isVisibleTo(one->Widget().parentWidget()) ||
                !other->Widget().isVisibleTo(other->Widget().parentWidget()) ||
                one->Widget().parentWidget() != other->Widget().parentWidget())
                continue;
            EXPECT_FALSE(one->Widget().geometry().intersects(other->Widget().geometry()))
                << children[i]->Name() << " and " << children[j]->Name() << " overlap";
        }
    }
}

/// Room for the text of a caption, and what it takes.
void ExpectCaptionFits(const Control& control, QWidget& widget)
{
    QSize needed;
    if (const auto* label = dynamic_cast<QLabel*>(&widget))
    {
        EXPECT_FALSE(label->text().contains(QChar(0x2026))) << control.Name() << " is elided";
        needed = label->fontMetrics().size(Qt::TextSingleLine, label->text());
    }
    else if (auto* button = dynamic_cast<QPushButton*>(&widget))
        needed = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + QSize(4, 4);
    else if (dynamic_cast<QAbstractButton*>(&widget) != nullptr)
        needed = widget.sizeHint();
    else if (dynamic_cast<QLineEdit*>(&widget) != nullptr)
        needed = {0, widget.sizeHint().height()};
    EXPECT_GE(widget.width(), needed.width()) << control.Name() << " is too narrow";
    EXPECT_GE(widget.height(), needed.height()) << control.Name() << " is too low";
    EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry()))
        << control.Name() << " reaches out of its container";
}

void ExpectReadable(UserControl& form, const Actions& actions)
{
    FormView view(form, actions, HostedViews({}));
    view.resize(view.sizeHint());
    view.show();
    for (auto* tabs : view.findChildren<QTabWidget*>())
    {
        // Every tab once, so that each is laid out.
        for (int tab = tabs->count() - 1; tab >= 0; --tab)
        {
            tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            view.resize(view.size() + QSize(0, tab == 0 ? 1 : 2));
        }
    }
    QCoreApplication::processEvents();
    ExpectNoOverlap(form, view);
    for (Control* control : form.Controls())
    {
        if (const auto* container = dynamic_cast<const Container*>(control))
            ExpectNoOverlap(*container, view);
        ControlView* drawn = view.ViewOf(*control);
        if (drawn == nullptr || !drawn->Widget().isVisibleTo(drawn->Widget().parentWidget()))
            continue;
        ExpectCaptionFits(*control, drawn->Widget());
        if (const auto* container = dynamic_cast<const Container*>(control))
        {
            for (Control* child : container->Children())
                EXPECT_GE(view.ViewOf(*child)->Widget().mapTo(&drawn->Widget(), QPoint()).y(),
                          drawn->HeaderHeight())
                    << child->Name() << " covers the caption of " << control->Name();
        }
    }
    EXPECT_FALSE(view.grab().isNull());
}

} // namespace

TEST_P(RenderTest, NoCaptionIsCutAndNothingOverlaps)
{
    Edit("D3S1358", [&](WizardDialog& editor) {
        UserControl& page = editor.Page().Form();
        ExpectReadable(page, m_frontEnd.UserActions());
        editor.reject();
    });
    const auto parameter = Host().Parameters().Create("P", TagLists::OneEmpty);
    ParameterPage page(Host(), parameter);
    ExpectReadable(page.Selector(), m_frontEnd.UserActions());
}

TEST_P(RenderTest, SaveAsPageIsReadable)
{
    Edit("D3S1358", [&](WizardDialog& editor) {
        OnModal([&](QDialog& saveAs) {
            auto& form = dynamic_cast<WizardDialog&>(saveAs).Page().Form();
            ExpectReadable(form, m_frontEnd.UserActions());
            saveAs.reject();
        });
        QTest::mouseClick(&Named(editor, "cmdSaveAs"), Qt::LeftButton);
        editor.reject();
    });
}

INSTANTIATE_TEST_SUITE_P(Points, RenderTest, testing::Values(8.25, 11, 16));

} // namespace Tamrivo::Testing
