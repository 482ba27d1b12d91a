#include "desktop/front_end/message_boxes.h"

#include "desktop/common/text.h"
#include "host/framework/environment.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace Tamrivo
{

MessageAnswer ShowMessageBox(QWidget* parent, const std::string& text, std::int32_t kind,
                             const std::string& title)
{
    const bool isQuestion = kind == MessageKind::ExclamationYesNo;
    QMessageBox box(parent);
    box.setWindowTitle(ToQString(title));
    box.setText(ToQString(text));
    box.setTextFormat(Qt::PlainText);
    box.setIcon(kind == MessageKind::Critical ? QMessageBox::Critical : QMessageBox::Warning);
    box.setStandardButtons(isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(isQuestion ? QMessageBox::Yes : QMessageBox::Ok);
    box.setEscapeButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    const int answer = box.exec();
    if (!isQuestion)
        return MessageAnswer::Ok;
    return answer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

void OpenLog(QWidget* parent)
{
    const QString path = QString::fromStdString(LogFile().string());
    if (!QFileInfo::exists(path))
        QMessageBox::information(parent, "Log", "There is no log yet: nothing has failed so far.");
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        QMessageBox::information(parent, "Log",
                                 "No program is set up to open the log. It stands in\n" + path);
}

FailureAnswer ShowFailureBox(QWidget* parent, const ErrorRecord& error, const QString& place,
                             bool isStoreLost)
{
    QMessageBox box(parent);
    box.setObjectName("failure");
    box.setWindowTitle("Tamrivo");
    box.setIcon(QMessageBox::Critical);
    box.setTextFormat(Qt::PlainText);
    QString text = error.Description.empty()
                       ? QString("Something went wrong, and what failed gives no reason")
                       : ToQString(error.Description);
    if (!text.endsWith('.'))
        text += '.';
    box.setText(text);
    QString details = "Raised by: " + ToQString(error.Source) +
                      "\nNumber of the failure: " + QString::number(error.Number);
    if (!place.isEmpty())
        details += "\nCaught in: " + place;
    box.setDetailedText(details);
    box.setStandardButtons(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);

    QPushButton* log = box.addButton("Open &Log", QMessageBox::ActionRole);
    // A button of the box would close it.
    log->disconnect();
    QObject::connect(log, &QPushButton::clicked, &box, [&box] { OpenLog(&box); });
    const QPushButton* again =
        isStoreLost ? box.addButton("Open &Again", QMessageBox::ActionRole) : nullptr;
    box.exec();
    return again != nullptr && box.clickedButton() == again ? FailureAnswer::OpenAgain
                                                            : FailureAnswer::Ok;
}

} // namespace Tamrivo
