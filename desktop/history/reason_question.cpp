#include "desktop/history/reason_question.h"

#include "desktop/common/text.h"
#include "host/database/database.h"
#include "host/loci/progress.h"
#include "host/store/settings.h"
#include "host/store/store.h"

#include <QApplication>
#include <QInputDialog>

namespace Tamrivo
{

void AskForReasons(Store& store)
{
    Database& database = store.SharedDatabase();
    database.Notes.AskReason = [&database]() -> std::string {
        if (!IsReasonRequired(database))
            return {};
        bool isGiven = false;
        const QString reason = QInputDialog::getText(
            QApplication::activeWindow(), "Reason",
            "This store asks why something is changed. Reason:", QLineEdit::Normal, {}, &isGiven);
        if (!isGiven || reason.trimmed().isEmpty())
            throw Cancelled();
        return FromQString(reason.trimmed());
    };
}

} // namespace Tamrivo
