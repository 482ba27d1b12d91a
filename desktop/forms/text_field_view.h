#pragma once

#include "controls/text_field.h"
#include "controls/user.h"
#include "desktop/forms/control_view.h"

#include <QLineEdit>

#include <functional>

namespace Tamrivo
{

/// A field of text. Keys go through the field's filter one by one; every other way to edit (cut,
/// paste, delete, undo, drag) is left to the widget, and what it has changed is then entered into
/// the control. The control's text is what counts: the widget ends up showing that.
class TextFieldView : public QLineEdit, public ControlView
{
public:
    TextFieldView(TextField& field, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    User::Span Selection() const;
    /// Runs an edit of the control, which gives the caret's place, and takes its outcome over.
    void Edit(const std::function<std::size_t()>& edit);
    void Press(char32_t character);
    void PasteText();
    /// Enters what the widget has changed by itself.
    void EnterChange();
    /// Shows the control's text such that the person can undo the step.
    void ShowEdit(std::size_t caret);

    TextField& m_field;
    const Actions& m_actions;
    bool m_isEditing = false;
};

} // namespace Tamrivo
