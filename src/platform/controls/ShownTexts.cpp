#include "platform/controls/ShownTexts.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include "platform/controls/MaskedBox.h"

QString BoxText(const QWidget &box)
{
    if (const auto *masked = qobject_cast<const MaskedBox *>(&box))
        return masked->Text();
    if (const auto *line = qobject_cast<const QLineEdit *>(&box))
        return line->text();
    if (const auto *list = qobject_cast<const QComboBox *>(&box))
        return list->currentText();
    if (const auto *notes = qobject_cast<const QPlainTextEdit *>(&box))
        return notes->toPlainText();
    qFatal("%s is no box of text", qPrintable(box.objectName()));
}

void ShowWhole(QLineEdit &box, const QString &text)
{
    const int limit = box.maxLength();
    if (text.size() > limit) {
        box.setMaxLength(int(text.size()));
        QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, limit] {
            if (BoxText(box).size() > limit || box.maxLength() == limit)
                return;
            const int cursor = box.cursorPosition();
            box.setMaxLength(limit); // moves the cursor to the end
            box.setCursorPosition(cursor);
        });
    }
    if (auto *masked = qobject_cast<MaskedBox *>(&box))
        masked->setText(text);
    else
        box.setText(text);
}

bool ShownTexts::isEdited(const QWidget &box) const
{
    const auto shown = m_texts.find(&box);
    return shown == m_texts.end() || *shown != BoxText(box);
}
