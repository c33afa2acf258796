// A file of the old engine, read with libmdb, which may crash or stall on a damaged one: only the program in
// ReadOldFile.cpp uses this. The library finds tables, columns and pages; rows and memos are walked here, because the
// library says nothing of what it cannot read.
#pragma once

#include <memory>

#include "oldengine/OldCopy.h"

class JetSource : public OldSource
{
public:
    /// Throws RuntimeFailure: FileNotFound, UnrecognizedFormat, PermissionDenied where the file has a password.
    explicit JetSource(const QString &path);
    ~JetSource() override;

    int codePage() const override { return m_codePage; }
    const std::vector<OldTable> &tables() const override { return m_tables; }
    qint64 readRows(const OldTable &table, const std::function<void(std::span<const OldCell>)> &take) override;

private:
    struct Library; // the handles of libmdb
    class Walk;

    std::unique_ptr<Library> m_library;
    int m_codePage = 0;
    std::vector<OldTable> m_tables;
};
