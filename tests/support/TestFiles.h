// Writes the files of a test, and reads what is in a folder afterwards.
#pragma once

#include <map>

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

/// Names and contents of all files of a folder.
inline std::map<QString, QByteArray> contentOf(const QString &folder)
{
    std::map<QString, QByteArray> content;
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        QFile file(QDir(folder).filePath(name));
        content[name] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    return content;
}
