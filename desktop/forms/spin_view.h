#pragma once

#include "controls/spin_button.h"
#include "desktop/forms/control_view.h"

#include <QAbstractSpinBox>

namespace Tamrivo
{

/// Two arrows without a field of their own. To a screen reader it is a spin box with the value of
/// the linked field.
class SpinView : public QAbstractSpinBox, public ControlView
{
public:
    SpinView(SpinButton& spin, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override { return {}; }

    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    SpinButton& m_spin;
    const Actions& m_actions;
};

} // namespace Tamrivo
