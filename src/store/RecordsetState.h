// Internal to the store: the state that the copies of a recordset share. Database fills it; Recordset and Field work on
// it. Changed and deleted rows are recorded here; the rows themselves stay as they were read.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <vector>

#include <QString>

#include "store/Connection.h"
#include "store/Rows.h"
#include "store/Value.h"

struct RecordsetState
{
    enum class Buffer { None, Adding, Editing };

    std::shared_ptr<Connection> connection; ///< null after Close
    std::shared_ptr<const Rows> rows;
    QString table;              ///< empty if the rows are for reading only
    std::vector<qint64> rowids; ///< of each row, if it can be written
    qsizetype current = 0;      ///< rows->count() means after the last row

    std::map<qsizetype, std::vector<Value>> changed; ///< rows as an Update left them
    std::set<qsizetype> deleted;

    Buffer buffer = Buffer::None;
    std::vector<Value> values; ///< the buffer
    std::vector<bool> written; ///< columns set since AddNew or Edit

    bool isOpen() const { return connection && connection->isOpen(); }
    bool hasCurrent() const { return current < rows->count() && !deleted.contains(current); }
    std::vector<Value> currentRow() const;
    Value currentValue(int column) const;
    /// Moves to that row, or to the next one that is not deleted, and discards the buffer.
    void moveTo(qsizetype row);
    void lapse();

    void insertRow();
    void updateRow();
    void deleteRow();
};
