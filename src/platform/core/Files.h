// Finds files. The case of file names in the keeper's folder does not matter, because the files may come from a system
// that ignores case.
#pragma once

#include <QString>

/// Absolute path of a file, found by its exact name or else by its name in any case of letters; empty if there is none.
QString FindFile(const QString &fileName);

/// The folder of the data files that are installed with the program (name files and help). The program only reads it.
QString DataFolder();

/// A program that only this one starts, where its installation or its build has it; it may be missing.
QString PrivateProgram(const QString &name);
