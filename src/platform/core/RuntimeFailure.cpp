#include "platform/core/RuntimeFailure.h"

namespace {

struct Words
{
    Failure number;
    const char *words;
};

constexpr Words words[] = {
    {Failure::Overflow, "Overflow"},
    {Failure::OutOfMemory, "Out of memory"},
    {Failure::SubscriptOutOfRange, "Subscript out of range"},
    {Failure::TypeMismatch, "Type mismatch"},
    {Failure::FileNotFound, "File not found"},
    {Failure::DeviceError, "Device I/O error"},
    {Failure::DiskFull, "Disk full"},
    {Failure::DeviceUnavailable, "Device unavailable"},
    {Failure::PermissionDenied, "Permission denied"},
    {Failure::PathNotFound, "Path not found"},
    {Failure::ObjectNotSet, "Object variable not set"},
    {Failure::InvalidUseOfNull, "Invalid use of Null"},
    {Failure::NoCurrentRecord, "No current record"},
    {Failure::DuplicateKey, "The change would create a duplicate value in a unique index"},
    {Failure::CouldNotFindFile, "Could not find file"},
    {Failure::SyntaxError, "Syntax error in a query"},
    {Failure::NoSuchColumn, "Item not found in this collection"},
    {Failure::UnrecognizedFormat, "Unrecognized database format"},
    {Failure::DataTypeConversion, "Data type conversion error"},
    {Failure::Cancelled, "Cancel was selected"},
    {Failure::KeyNotUnique, "Key is not unique in collection"},
};

} // namespace

QString RuntimeFailure::standardWords(Failure number)
{
    for (const Words &row : words)
        if (row.number == number)
            return QString::fromLatin1(row.words);
    return QStringLiteral("Application-defined or object-defined error");
}

RuntimeFailure::RuntimeFailure(Failure number, const QString &what) :
    m_number(number), m_description(standardWords(number) + u'.' + (what.isEmpty() ? QString() : u'\n' + what)),
    m_utf8(m_description.toUtf8())
{
}
