#pragma once

#include "controls/buttons.h"
#include "desktop/forms/control_view.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include <functional>
#include <utility>

namespace Tamrivo
{

class CheckBoxView : public QCheckBox, public ControlView
{
public:
    CheckBoxView(CheckBox& box, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override { return sizeHint(); }
    bool MayReachRight() const override { return true; }

protected:
    void nextCheckState() override;

private:
    CheckBox& m_box;
    const Actions& m_actions;
};

/// An option button. Each one is a stop of the Tab key, as the form declares it, and the arrow keys
/// choose among the options of a container.
class OptionView : public QRadioButton, public ControlView
{
public:
    OptionView(OptionButton& option, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override { return sizeHint(); }
    bool MayReachRight() const override { return true; }

protected:
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    OptionView* Neighbour(int step) const;

    OptionButton& m_option;
    const Actions& m_actions;
};

/// A button, which Space and Return press.
class ButtonView : public QPushButton, public ControlView
{
public:
    ButtonView(CommandButton& button, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;

    /// Asks before each click; only an answer of true lets it through.
    void AskFirst(std::function<bool()> question) { m_question = std::move(question); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    CommandButton& m_button;
    std::function<bool()> m_question;
};

} // namespace Tamrivo
