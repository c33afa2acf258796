// A box of one line takes one line. A cell that was copied from a spreadsheet ends with a line break; stored as it is,
// it would make a name that looks like another one. So a box takes what was pasted or dropped up to the first line
// break, without the blanks around it. Application does this for every QLineEdit; MaskedBox has a validator of its own.
#pragma once

#include <QString>
#include <QValidator>

class QLineEdit;

/// The first line of a text, without blanks around it.
QString FirstLine(const QString &text);

/// Replaces what was entered before the cursor by its first line, if a line break is in it, and likewise the rest.
class OneLineValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &text, int &cursor) const override;
};

/// Gives the box such a validator, unless it has one.
void KeepToOneLine(QLineEdit &box);
