// The only exception type of the program: a failure of the database engine or of a file, or an unforeseen error. It
// carries the error number and text that users of such programs know. What a keeper can cause by ordinary work is not a
// failure: the windows answer it with a plain message box. guarded() (Guarded.h) and Application::notify show failures.
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
    /// `what` tells the keeper what the program was doing or looking for; it is shown after the standard text of the
    /// number.
    explicit RuntimeFailure(Failure number, const QString &what = {});

    Failure number() const { return m_number; }
    /// The standard text of the number, followed by `what`.
    QString description() const { return m_description; }
    const char *what() const noexcept override { return m_utf8.constData(); }

    /// The standard text of a number, such as "Overflow".
    static QString standardWords(Failure number);

private:
    Failure m_number;
    QString m_description;
    QByteArray m_utf8;
};
