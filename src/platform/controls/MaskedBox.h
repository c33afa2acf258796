// An input box with an optional mask and an optional format. The mask's delimiters stay in place; '#' and '9' accept a
// digit, '?' a letter, 'A' a letter or digit, 'C' any character, and a typed blank leaves its place empty. Text() is
// the content with its delimiters and a blank for each missing character; ClipText() is the typed characters alone. A
// box without a mask may have a Format: it shows its number in that format while the focus is elsewhere, and what was
// typed, with all digits, while it is edited.
#pragma once

#include <optional>

#include <QLineEdit>

class MaskedBox : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString mask READ Mask WRITE setMask)
    Q_PROPERTY(QString format READ Format WRITE setFormat)
public:
    explicit MaskedBox(QWidget *parent = nullptr);

    QString Mask() const { return m_mask; }
    /// Empties the box and limits its length to that of the mask. An empty mask accepts any text up to maxLength().
    void setMask(const QString &mask);
    /// A number format such as "##0.000", applied when the focus leaves the box; empty for none.
    QString Format() const { return m_format; }
    void setFormat(const QString &picture) { m_format = picture; }

    QString Text() const;
    /// With a mask, characters that do not fit their place become blank. Works without the focus and does not apply the
    /// Format.
    void setText(const QString &text);
    QString ClipText() const;

signals:
    /// The mask refused a key or a pasted text at that position (from 0); nothing was entered.
    void ValidationError(const QString &text, int position);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool takeKey(const QKeyEvent &event);
    void enter(const QString &characters);
    void paste();
    void cut();
    void blank(int from, int to);
    void replace(const QString &shaped, int cursor);
    void showText(const QString &text);

    QString m_mask;
    QString m_format;
    std::optional<QString> m_typed; ///< what was typed, while the box shows it formatted
};
