#pragma once

#include "controls/frames.h"
#include "desktop/forms/control_view.h"

#include <QGroupBox>
#include <QTabWidget>

namespace Tamrivo
{

class FrameView : public QGroupBox, public ControlView
{
public:
    FrameView(Frame& frame, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    int HeaderHeight() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The caption's own font; set on the widget, it would reach the frame's children.
    QFont CaptionFont() const;

    Frame& m_frame;
};

class TabStripView : public QTabWidget, public ControlView
{
public:
    TabStripView(TabStrip& strip, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    int HeaderHeight() const override { return LeastSize().height(); }
    QWidget& PlaceFor(const Control& control) override;
    QWidget& FocusWidget() override;

private:
    TabStrip& m_strip;
};

} // namespace Tamrivo
