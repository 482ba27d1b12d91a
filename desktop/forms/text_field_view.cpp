#include "desktop/forms/text_field_view.h"

#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/forms/appearance.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace Tamrivo
{

namespace
{

// The widget counts UTF-16 units, the control counts characters.

std::size_t CharactersBefore(const QString& text, int position)
{
    return static_cast<std::size_t>(text.left(position).toUcs4().size());
}

int UnitsBefore(const QString& text, std::size_t characters)
{
    qsizetype units = 0;
    for (; characters > 0 && units < text.size(); --characters)
        units += text[units].isHighSurrogate() ? 2 : 1;
    return static_cast<int>(std::min(units, text.size()));
}

/// The code of a letter pressed together with the control key, 1 for Ctrl+A; 0 for other keys.
std::int16_t ControlCode(const QKeyEvent& event)
{
    const bool isLetter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return isLetter && modifiers == Qt::ControlModifier
               ? static_cast<std::int16_t>(event.key() - Qt::Key_A + 1)
               : std::int16_t{0};
}

bool IsTyped(const QKeyEvent& event)
{
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !event.text().isEmpty() && event.text()[0].isPrint() && !(event.modifiers() & commands);
}

/// What changed from one text to another: a part of the old one, and what stands in its place.
struct Difference
{
    User::Span Old;
    std::u32string New;
};

Difference Compare(const std::u32string& before, const std::u32string& after)
{
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < shorter && before[head] == after[head])
        ++head;
    std::size_t tail = 0;
    while (tail < shorter - head &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {{head, before.size() - head - tail}, after.substr(head, after.size() - head - tail)};
}

} // namespace

TextFieldView::TextFieldView(TextField& field, QWidget& parent, const Actions& actions)
    : QLineEdit(&parent), m_field(field), m_actions(actions)
{
    setAlignment(field.Alignment() == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft);
    connect(this, &QLineEdit::textEdited, this, [this] { EnterChange(); });
}

void TextFieldView::Refresh()
{
    ApplyReach(*this, m_field);
    setToolTip(ToQString(m_field.ToolTipText()));
    setAccessibleDescription(toolTip());
    setPalette(FieldPalette(m_field.BackColor()));
    const QString text = ToQString(m_field.Text());
    if (!m_isEditing && text != this->text())
        setText(text);
}

QSize TextFieldView::LeastSize() const
{
    constexpr int widestShortField = 5;
    const QSize hint = sizeHint();
    if (m_field.MaxLength() == 0 || m_field.MaxLength() > widestShortField)
        return {0, hint.height()};
    // What the widget adds around the text, a caret's width included.
    constexpr int innerMargins = 2 * 2 + 2;
    const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const int text = fontMetrics().horizontalAdvance(QString(m_field.MaxLength(), '0'));
    return {text + innerMargins + frame, hint.height()};
}

User::Span TextFieldView::Selection() const
{
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const std::size_t first = CharactersBefore(text(), start);
    return {first, hasSelectedText() ? CharactersBefore(text(), selectionEnd()) - first : 0};
}

void TextFieldView::keyPressEvent(QKeyEvent* event)
{
    bool passes = true;
    if (const std::int16_t code = ControlCode(*event))
        m_actions.Run([&] { passes = User::PressControlKey(m_field, code); });
    // What the field can't take back by itself, the page does.
    if ((event->matches(QKeySequence::Undo) && (!passes || !isUndoAvailable())) ||
        (event->matches(QKeySequence::Redo) && (!passes || !isRedoAvailable())))
        return event->ignore();
    if (!passes)
        return;
    if (event->matches(QKeySequence::Paste))
        PasteText();
    else if (event->key() == Qt::Key_Backspace &&
             !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        Press(static_cast<char32_t>(User::Backspace));
    else if (IsTyped(*event))
    {
        for (const char32_t character : event->text().toStdU32String())
            Press(character);
    }
    else
        QLineEdit::keyPressEvent(event);
}

void TextFieldView::inputMethodEvent(QInputMethodEvent* event)
{
    if (event->commitString().isEmpty() || event->replacementLength() > 0)
        return QLineEdit::inputMethodEvent(event);
    const QString committed = event->commitString();
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&composing);
    for (const char32_t character : committed.toStdU32String())
        Press(character);
    event->accept();
}

void TextFieldView::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const auto reason = event->reason();
    const bool comesBack = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
                           reason == Qt::ActiveWindowFocusReason;
    // A field that is hidden or disabled while it has the focus is not left by the person.
    if (comesBack || User::Obstacle(m_field))
        return;
    m_actions.Run([this] { User::Leave(m_field); });
    // Forgets what could be undone.
    setText(text());
}

void TextFieldView::Edit(const std::function<std::size_t()>& edit)
{
    std::size_t caret = CharactersBefore(text(), cursorPosition());
    const bool wasEditing = std::exchange(m_isEditing, true);
    m_actions.Run([&] { caret = edit(); });
    ShowEdit(caret);
    m_isEditing = wasEditing;
    Refresh();
}

void TextFieldView::Press(char32_t character)
{
    Edit([&] { return User::Press(m_field, character, Selection()); });
}

void TextFieldView::PasteText()
{
    const std::string text = FromQString(QApplication::clipboard()->text());
    Edit([&] { return User::Paste(m_field, text, Selection()); });
}

void TextFieldView::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* paste = menu->findChild<QAction*>("edit-paste"))
    {
        paste->disconnect(this);
        connect(paste, &QAction::triggered, this, [this] { PasteText(); });
    }
    menu->popup(event->globalPos());
}

void TextFieldView::EnterChange()
{
    if (m_isEditing)
        return;
    const Difference change = Compare(Decode(m_field.Text()), text().toStdU32String());
    std::size_t caret = 0;
    m_isEditing = true;
    m_actions.Run([&] { caret = User::Paste(m_field, Encode(change.New), change.Old); });
    m_isEditing = false;
    if (ToQString(m_field.Text()) == text())
        return;
    // What the control didn't take must not come back by an undo.
    Refresh();
    setCursorPosition(UnitsBefore(text(), caret));
}

void TextFieldView::ShowEdit(std::size_t caret)
{
    const QString wanted = ToQString(m_field.Text());
    if (wanted == text())
        return;
    const Difference change = Compare(text().toStdU32String(), wanted.toStdU32String());
    const int first = UnitsBefore(text(), change.Old.Start);
    const int last = UnitsBefore(text(), change.Old.Start + change.Old.Length);
    if (first != last)
        setSelection(first, last - first);
    else
        setCursorPosition(first);
    insert(QString::fromStdU32String(change.New));
    setCursorPosition(UnitsBefore(text(), caret));
}

} // namespace Tamrivo
