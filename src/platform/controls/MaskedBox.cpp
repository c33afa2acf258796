#include "platform/controls/MaskedBox.h"

#include <utility>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalBlocker>

#include "platform/controls/OneLine.h"
#include "text/Numbers.h"

namespace {

constexpr QChar prompt(u'_');
constexpr int anyLength = 32767;

bool isPlace(QChar mask) { return QStringView(u"#9?AC").contains(mask); }

bool fits(QChar mask, QChar c)
{
    switch (mask.unicode()) {
    case u'#':
    case u'9': return c >= u'0' && c <= u'9';
    case u'?': return c.isLetter();
    case u'A': return c.isLetterOrNumber();
    default: return c.isPrint() && c != prompt;
    }
}

/// Puts a text into the shape of the mask: with its delimiters, and with the prompt in every place whose character does
/// not fit.
QString shaped(const QString &mask, const QString &text)
{
    QString shape = mask;
    for (qsizetype i = 0; i < mask.size(); ++i)
        if (isPlace(mask.at(i)))
            shape[i] = i < text.size() && fits(mask.at(i), text.at(i)) ? text.at(i) : prompt;
    return shape;
}

/// The last check: drops, the selection clipboard and editing keys of the platform must not move a delimiter either.
class ShapeValidator : public OneLineValidator
{
public:
    explicit ShapeValidator(MaskedBox *box) : OneLineValidator(box), m_box(box) {}
    State validate(QString &text, int &cursor) const override
    {
        const QString mask = m_box->Mask();
        if (mask.isEmpty())
            return OneLineValidator::validate(text, cursor);
        return shaped(mask, text) == text ? Acceptable : Invalid;
    }

private:
    MaskedBox *m_box;
};

} // namespace

MaskedBox::MaskedBox(QWidget *parent) : QLineEdit(parent)
{
    setValidator(new ShapeValidator(this));
    // If the text is changed from outside, the shown text becomes the content and is put into the mask's shape.
    connect(this, &QLineEdit::textChanged, this, [this] {
        m_typed.reset();
        if (!m_mask.isEmpty() && shaped(m_mask, text()) != text())
            showText(shaped(m_mask, text()));
    });
}

void MaskedBox::setMask(const QString &mask)
{
    const QString before = Text();
    if (!mask.isEmpty() || !m_mask.isEmpty()) {
        const QSignalBlocker quiet(this);
        m_mask = mask;
        setMaxLength(mask.isEmpty() ? anyLength : int(mask.size()));
    }
    m_typed.reset();
    showText(shaped(mask, {}));
    if (Text() != before)
        emit textChanged(text());
}

QString MaskedBox::Text() const
{
    QString content = m_typed.value_or(text());
    if (!m_mask.isEmpty())
        content.replace(prompt, u' ');
    return content;
}

void MaskedBox::setText(const QString &text)
{
    const QString before = Text();
    m_typed.reset();
    showText(m_mask.isEmpty() ? text : shaped(m_mask, text));
    if (Text() != before)
        emit textChanged(QLineEdit::text());
}

QString MaskedBox::ClipText() const
{
    if (m_mask.isEmpty())
        return Text();
    QString clip;
    for (qsizetype i = 0; i < m_mask.size(); ++i)
        if (isPlace(m_mask.at(i)) && text().at(i) != prompt)
            clip += text().at(i);
    return clip;
}

void MaskedBox::keyPressEvent(QKeyEvent *event)
{
    if (m_mask.isEmpty() || isReadOnly() || !takeKey(*event))
        QLineEdit::keyPressEvent(event);
}

/// Handles the keys that change a masked text; returns false for all others.
bool MaskedBox::takeKey(const QKeyEvent &event)
{
    const QString typed = event.text();
    const bool back = event.key() == Qt::Key_Backspace;
    if (event.matches(QKeySequence::Undo)) // first, because it may be a combination with Backspace
        return false;
    if (event.matches(QKeySequence::Paste))
        paste();
    else if (event.matches(QKeySequence::Cut))
        cut();
    else if ((back || event.key() == Qt::Key_Delete) && hasSelectedText())
        blank(selectionStart(), selectionEnd());
    else if (back || event.key() == Qt::Key_Delete) {
        int from = cursorPosition() - (back ? 1 : 0);
        while (back && from > 0 && !isPlace(m_mask.at(from)))
            --from;
        blank(from, from + 1);
    } else if (!typed.isEmpty() && typed.at(0).isPrint() &&
               !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        enter(typed);
    else
        return false;
    return true;
}

void MaskedBox::inputMethodEvent(QInputMethodEvent *event)
{
    if (m_mask.isEmpty() || isReadOnly())
        QLineEdit::inputMethodEvent(event);
    else if (!event->commitString().isEmpty())
        enter(event->commitString());
}

/// Qt's own menu would paste without regard to the mask.
void MaskedBox::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_mask.isEmpty()) {
        QLineEdit::contextMenuEvent(event);
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Undo"), this, &QLineEdit::undo)->setEnabled(isUndoAvailable());
    menu->addSeparator();
    menu->addAction(QStringLiteral("Cu&t"), this, &MaskedBox::cut)->setEnabled(hasSelectedText() && !isReadOnly());
    menu->addAction(QStringLiteral("&Copy"), this, &QLineEdit::copy)->setEnabled(hasSelectedText());
    menu->addAction(QStringLiteral("&Paste"), this, &MaskedBox::paste)->setEnabled(!isReadOnly());
    menu->addSeparator();
    menu->addAction(QStringLiteral("Select &All"), this, &QLineEdit::selectAll);
    menu->popup(event->globalPos());
}

/// A mask treats a dropped text like a pasted one. The text is copied, not moved, so that nothing is lost if the mask
/// refuses it.
void MaskedBox::dropEvent(QDropEvent *event)
{
    if (m_mask.isEmpty() || isReadOnly()) {
        QLineEdit::dropEvent(event);
        return;
    }
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    event->setDropAction(Qt::CopyAction);
    event->accept();
    enter(FirstLine(event->mimeData()->text()));
}

void MaskedBox::focusInEvent(QFocusEvent *event)
{
    if (m_typed)
        showText(*std::exchange(m_typed, {}));
    QLineEdit::focusInEvent(event);
}

void MaskedBox::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    const bool elsewhere = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
    if (elsewhere || hasFocus() || m_typed || !m_mask.isEmpty() || m_format.isEmpty())
        return;
    const std::optional<double> number = ReadNumber(text());
    const QString picture = number ? ::Format(*number, m_format) : QString();
    if (!number || picture.size() > maxLength() || picture == text()) // cut off, it would be another number
        return;
    const QString typed = text();
    showText(picture);
    m_typed = typed;
}

/// Types the characters at the selection or the cursor. If the mask refuses one of them, none is entered.
void MaskedBox::enter(const QString &characters)
{
    QString content = text();
    qsizetype i = cursorPosition();
    if (hasSelectedText()) {
        i = selectionStart();
        for (qsizetype k = i; k < selectionEnd(); ++k)
            content[k] = isPlace(m_mask.at(k)) ? prompt : m_mask.at(k);
    }
    for (const QChar c : characters) {
        bool jumped = false;
        while (!jumped && i < m_mask.size() && !isPlace(m_mask.at(i)))
            jumped = m_mask.at(i++) == c;
        if (jumped)
            continue;
        const bool fitting = i < m_mask.size() && fits(m_mask.at(i), c);
        if (!fitting && (i >= m_mask.size() || c != u' ')) {
            emit ValidationError(Text(), int(i));
            return;
        }
        content[i++] = fitting ? c : prompt;
    }
    replace(content, int(i));
}

void MaskedBox::paste() { enter(FirstLine(QGuiApplication::clipboard()->text())); }

void MaskedBox::cut()
{
    QLineEdit::copy();
    blank(selectionStart(), selectionEnd());
}

void MaskedBox::blank(int from, int to)
{
    if (from < 0)
        return;
    QString content = text();
    for (int i = from; i < to && i < m_mask.size(); ++i)
        content[i] = isPlace(m_mask.at(i)) ? prompt : m_mask.at(i);
    replace(content, from);
}

/// Replaces the content as a single undo step, if it differs.
void MaskedBox::replace(const QString &shaped, int cursor)
{
    if (shaped != text()) {
        setSelection(0, int(text().size()));
        insert(shaped);
    }
    setCursorPosition(cursor);
}

/// Shows the content, or its formatted version, without emitting signals. Clears the undo steps, which belong to
/// another text.
void MaskedBox::showText(const QString &text)
{
    const QSignalBlocker quiet(this);
    QLineEdit::setText(text);
    if (!m_mask.isEmpty())
        setCursorPosition(0);
}
