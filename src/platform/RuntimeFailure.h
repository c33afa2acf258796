// The one exception type of the program: a failure of the database engine or of a file, or something nobody foresaw.
// It carries the number and the words that users of such programs know. Whatever a keeper brings about by ordinary work
// is no failure: the windows answer that with a plain box. guarded() (Guarded.h) and Application::notify show a
// failure.
#pragma once

#include <exception>
#include <QString>

enum class Failure : int {
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    CouldNotFindFile = 3024,
    SyntaxError = 3075,
    NoSuchColumn = 3265,
    UnrecognizedFormat = 3343,
    DataTypeConversion = 3421,
    Cancelled = 32755,
    KeyNotUnique = 35602,
};

class RuntimeFailure : public std::exception
{
public:
    /// `what` is what was being done or looked for, in words for the keeper; it follows the standard words of the
    /// number.
    explicit RuntimeFailure(Failure number, const QString &what = {});

    Failure number() const { return m_number; }
    /// The standard words of the number, and after them what was being done.
    QString description() const { return m_description; }
    const char *what() const noexcept override { return m_utf8.constData(); }

    /// The words of a number, such as "Overflow".
    static QString standardWords(Failure number);

private:
    Failure m_number;
    QString m_description;
    QByteArray m_utf8;
};
