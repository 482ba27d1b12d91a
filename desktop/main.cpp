#include "desktop/common/settings.h"
#include "desktop/common/theme.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/help/help_key.h"
#include "desktop/window/main_window.h"
#include "desktop/window/workbench.h"
#include "host/database/address.h"
#include "host/framework/environment.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <algorithm>
#include <string_view>

namespace
{

void NameProgram()
{
    QCoreApplication::setApplicationName("tamrivo-desktop");
    QCoreApplication::setOrganizationName("tamrivo");
    QCoreApplication::setApplicationVersion(TAMRIVO_VERSION);
}

/// The store that the command line names, else the environment's or the user's own.
std::string StoreAddress(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Defines STR loci and chooses those that an analysis uses.");
    const QCommandLineOption store(
        "store",
        "A database file, or the address of a PostgreSQL database; by default $TAMRIVO_STORE or a "
        "file in the XDG data directory.",
        "LOCATION");
    parser.addOption(store);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);
    return parser.isSet(store) ? parser.value(store).toStdString() : Tamrivo::DefaultStoreAddress();
}

/// Whether the program is only asked about itself, which it answers without a display.
bool IsOnlyAsked(int count, char** arguments)
{
    return std::any_of(arguments + 1, arguments + count, [](std::string_view argument) {
        return argument == "--help" || argument == "-h" || argument == "--version" ||
               argument == "-v";
    });
}

} // namespace

int main(int count, char** arguments)
{
    NameProgram();
    if (IsOnlyAsked(count, arguments))
    {
        const QCoreApplication application(count, arguments);
        StoreAddress(application);
    }
    QApplication application(count, arguments);
    QApplication::setApplicationDisplayName("Tamrivo");
    QApplication::setDesktopFileName("tamrivo");
    QApplication::setWindowIcon(QIcon::fromTheme("tamrivo", QIcon(":/tamrivo.svg")));
    Tamrivo::UseEnvironmentLocale();
    const std::string address = StoreAddress(application);

    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() + Tamrivo::TextSteps());
    QApplication::setFont(font);

    Tamrivo::UseTheme(Tamrivo::ChosenTheme());

    Tamrivo::HelpKey helpKey;
    application.installEventFilter(&helpKey);

    Tamrivo::DesktopFrontEnd frontEnd;
    Tamrivo::MainWindow window(frontEnd);
    window.show();
    window.Bench().OpenStore(address);
    return QApplication::exec();
}
