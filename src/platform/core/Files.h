// Finds files. The case of file names in the keeper's folder does not matter, because the files may come from a system
// that ignores case.
#pragma once

#include <QString>

/// Absolute path of a file, found by its exact name or, if there is none, by its name in any case; empty if not found.
QString FindFile(const QString &fileName);

/// The folder of the data files that are installed with the program (name files and help). The program only reads it.
QString DataFolder();

/// Path of a helper program in the installation or in the build; the file may be missing.
QString PrivateProgram(const QString &name);
