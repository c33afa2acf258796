// Keeps a one-line box to one line. A cell copied from a spreadsheet ends with a line break; stored unchanged, it would
// make a name that only looks like another one. So a box accepts a pasted or dropped text up to the first line break,
// without the blanks around it. Application does this for every QLineEdit; MaskedBox has a validator of its own.
#pragma once

#include <QString>
#include <QValidator>

class QLineEdit;

/// The first line of a text, without blanks around it.
QString FirstLine(const QString &text);

/// If there is a line break in what was entered before the cursor, keeps only its first line, and does the same with
/// the rest.
class OneLineValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &text, int &cursor) const override;
};

/// Gives the box this validator, unless it has one.
void KeepToOneLine(QLineEdit &box);
