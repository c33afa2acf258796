// Reads the beginning of a file of the old engine: whether it is such a file, its code page, and whether it has a
// password. All of the first page except the mark is encoded with a key that is the same in every file. The start and
// the reader call this before they do anything else with a file.
#pragma once

#include <QByteArrayView>
#include <QString>

/// The number of bytes that ReadOldHeader needs.
inline constexpr qsizetype oldHeaderSize = 152;

/// Whether the file begins with the mark of one of the two formats that we read. Later engines have other marks.
bool IsOldEngineFile(const QString &path);

struct OldHeader
{
    int codePage = 0; ///< of the texts, or 0 for UTF-16
    bool hasPassword = false;
};

/// Throws UnrecognizedFormat if the bytes are not the beginning of such a file.
OldHeader ReadOldHeader(QByteArrayView bytes);
