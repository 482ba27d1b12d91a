#pragma once

#include "host/reports/report.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QPagedPaintDevice;
class QWidget;

namespace Tamrivo
{

/// Pages, counted from 1, the last included; 0 for the last means all.
struct PageRange
{
    int First = 1;
    int Last = 0;
};

/// Prints a report as a table. Gives whether the person let it come to its end.
bool PrintReport(const Report& report, QPagedPaintDevice& device, PageRange pages, QWidget* parent);

/// Asks where to save a report. Empty when the person gives up.
QString AskForReportFile(QWidget* parent);

/// What a file of this name is to hold: PDF, HTML or TSV by the end of the name. None when the
/// person has cancelled the making. Raises `ErrorNumber::InvalidArgument` for another end.
std::optional<QByteArray> ReportFileContent(const Report& report, const QString& path,
                                            QWidget* parent);

} // namespace Tamrivo
