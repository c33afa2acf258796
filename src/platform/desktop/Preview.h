// A printout on the screen. Its first page is shown as soon as it is made, and the keeper can look at the pages that
// are there while the report goes on. Pages are kept in a file (platform/core/PageSpool.h), so memory does not grow
// with the report. The report is made again if the paper is turned or changed.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/core/Doors.h"

class QWidget;

using AskWhere = std::function<std::optional<PrintDialogAnswer>(const std::shared_ptr<QPrinter> &)>;
/// Returns when the preview is closed. Its "Print" button calls `where`; an answer closes the preview and is returned.
/// A failure of the report closes the preview and is thrown.
std::optional<PrintDialogAnswer> ShowPreview(QWidget *parent, const PreviewRequest &request, const AskWhere &where);
