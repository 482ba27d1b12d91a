#include <QApplication>
#include <QFont>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <gmock/gmock.h>

/// Runs the tests in windows that nobody sees, with a style and a font of their own, and without
/// touching what the person who runs them has configured.
int main(int count, char** arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    qputenv("XDG_STATE_HOME", home.path().toUtf8());
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());

    testing::InitGoogleMock(&count, arguments);
    const QApplication application(count, arguments);
    QApplication::setApplicationName("tamrivo-test");
    QApplication::setOrganizationName("tamrivo");
    QApplication::setStyle(QStyleFactory::create("fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 9));
    return RUN_ALL_TESTS();
}
