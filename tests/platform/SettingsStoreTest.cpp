#include "platform/SettingsStore.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include "platform/RuntimeFailure.h"

namespace {

TEST(SettingsStore, ALineThatIsNoSettingKeepsNoneFromBeingReadOrStored)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("OMK.ini");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "nothing\n[SETTINGS]\nDate_Order=DDMMYY\nCustom1=@, b\nno setting at all\n[Half a section\nDate_Delim=.\n");
    file.close();
    SettingsStore settings(path);
    EXPECT_EQ(settings.value("Date_Order", "MMDDYY"), "DDMMYY");
    EXPECT_EQ(settings.value("Custom1", ""), "@, b");
    EXPECT_NO_THROW(settings.setValue("Date_Order", "YYMMDD"));
    ASSERT_TRUE(QFile::copy(path, path + "2")); // by another name it is read anew
    EXPECT_EQ(SettingsStore(path + "2").value("Date_Order", "MMDDYY"), "YYMMDD");
}

TEST(SettingsStore, WhatCannotBeWrittenIsAFailureAndIsNotReadBack)
{
    const QTemporaryDir folder;
    QFile noFolder(folder.filePath("file"));
    ASSERT_TRUE(noFolder.open(QIODevice::WriteOnly));
    SettingsStore settings(folder.filePath("file/OMK.ini"));
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            settings.setValue("Date_Order", "YYMMDD");
            FAIL() << "wrote where nothing can be written";
        } catch (const RuntimeFailure &failure) {
            EXPECT_EQ(failure.number(), Failure::PermissionDenied);
        }
        EXPECT_EQ(settings.value("Date_Order", "MMDDYY"), "MMDDYY");
    }
}

} // namespace
