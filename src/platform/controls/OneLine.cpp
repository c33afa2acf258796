#include "platform/controls/OneLine.h"

#include <algorithm>

#include <QLineEdit>

namespace {

bool isLineBreak(QChar c) { return QStringView(u"\n\r\v\f\u0085\u2028\u2029").contains(c); }

QString oneLine(const QString &text) { return std::ranges::any_of(text, isLineBreak) ? FirstLine(text) : text; }

} // namespace

QString FirstLine(const QString &text)
{
    const QString whole = text.trimmed();
    const auto end = std::ranges::find_if(whole, isLineBreak);
    return whole.left(end - whole.begin()).trimmed();
}

QValidator::State OneLineValidator::validate(QString &text, int &cursor) const
{
    const QString before = oneLine(text.left(cursor));
    text = before + oneLine(text.mid(cursor));
    cursor = int(before.size());
    return Acceptable;
}

void KeepToOneLine(QLineEdit &box)
{
    if (!box.validator())
        box.setValidator(new OneLineValidator(&box));
}
