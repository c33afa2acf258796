#include "platform/core/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString FindFile(const QString &fileName)
{
    const QFileInfo exact(fileName);
    if (fileName.isEmpty() || exact.isFile())
        return fileName.isEmpty() ? QString() : exact.absoluteFilePath();
    const QDir folder = exact.absoluteDir();
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name))
        if (name.compare(exact.fileName(), Qt::CaseInsensitive) == 0 && QFileInfo(folder, name).isFile())
            return folder.absoluteFilePath(name);
    return {};
}

QString DataFolder()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(OMK_DATA_FROM_BIN));
}

QString PrivateProgram(const QString &name)
{
    const QDir bin(QCoreApplication::applicationDirPath());
    const QString installed = QStringLiteral(OMK_PRIVATE_FROM_BIN "/");
    for (const QString &place : QStringList{installed, u"../" + installed}) // in the build, a test is one folder deeper
        if (const QString file = bin.filePath(place + name); QFileInfo(file).isExecutable())
            return QDir::cleanPath(file);
    return QDir::cleanPath(bin.filePath(installed + name));
}
