// The first page of a file of the old engine: is it one, of which format, in which code page, and has it a password?
// All of it but the mark is coded with a key that is the same in every file. Asked by the start, and by the reader
// before anything else is read.
#pragma once

#include <QByteArrayView>
#include <QString>

/// How many bytes of the file the other functions need.
inline constexpr qsizetype oldHeaderSize = 152;

/// Does the file begin with the mark of one of the two formats that we read? A later engine has a mark of its own.
bool IsOldEngineFile(const QString &path);

struct OldHeader
{
    int codePage = 0; ///< of the texts; 0 for UTF-16
    bool hasPassword = false;
};

/// Throws UnrecognizedFormat where the bytes are not the beginning of such a file.
OldHeader ReadOldHeader(QByteArrayView bytes);
