#pragma once

#include "controls/label.h"
#include "desktop/forms/control_view.h"

#include <QLabel>

namespace Tamrivo
{

/// A label. A caption that the logic has set and that is longer than the place ends in an ellipsis
/// and stands whole in the tip.
class LabelView : public QLabel, public ControlView
{
public:
    LabelView(Label& label, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    bool MayReachRight() const override { return true; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowCaption();

    Label& m_label;
    QString m_declaredCaption;
};

} // namespace Tamrivo
