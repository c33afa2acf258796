// Reads a file of the old engine with libmdb. That library may crash or stall on a damaged file, so only the program in
// ReadOldFile.cpp uses this class. The library reads the pages, the descriptions of the tables and the places of the
// cells in a row. The list of tables, the rows and the memos are read here, because the library does not report what it
// could not read.
#pragma once

#include <memory>

#include "oldengine/OldCopy.h"

class JetSource : public OldSource
{
public:
    /// Throws RuntimeFailure: UnrecognizedFormat, or PermissionDenied if the file cannot be read or has a password.
    explicit JetSource(const QString &path);
    ~JetSource() override;

    int codePage() const override { return m_codePage; }
    const std::vector<OldTable> &tables() const override { return m_tables; }
    qint64 readRows(const OldTable &table, const std::function<void(std::span<const OldCell>)> &take) override;

private:
    struct Library; // the handles of libmdb
    class Walk;

    std::vector<std::pair<QString, quint32>> readCatalog();

    std::unique_ptr<Library> m_library;
    int m_codePage = 0;
    std::vector<OldTable> m_tables;
};
