#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/message_boxes.h"
#include "desktop/import/import_dialog.h"
#include "desktop/reports/reports_window.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "platform/grid/grid_user.h"
#include "platform/panels/import.h"
#include "platform/panels/panel_file.h"
#include "platform/parameters/parameter_store.h"
#include "platform/store/store.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>

// Draws every window of the desktop program, filled from a panel table, into PNG files.

namespace
{

using namespace Tamrivo;

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Highlight, QColor(61, 126, 214));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(70, 70, 70));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
    return palette;
}

class Photographer
{
public:
    Photographer(const QString& table, const QString& directory)
        : m_table(table), m_directory(directory)
    {
        FillStore();
    }

    void TakeAll()
    {
        MainWindow window(m_frontEnd);
        window.resize(1240, 900);
        window.show();
        Settle();
        Take(window, "start");
        window.OpenStore(Address());
        Settle();
        Take(window, "main");
        QApplication::setPalette(DarkPalette());
        Settle();
        Take(window, "main-dark");
        TakeEditor(window, "-dark");
        QApplication::setPalette(QApplication::style()->standardPalette());
        TakeEditor(window, "");
        TakeMenu(window);
        TakePicker(window);
        TakeFailure(window);
        TakeImport(window);
        window.findChild<QAction*>("report")->trigger();
        Settle();
        for (QWidget* top : QApplication::topLevelWidgets())
        {
            if (dynamic_cast<ReportsWindow*>(top) != nullptr)
            {
                top->resize(1000, 560);
                Settle();
                Take(*top, "report");
            }
        }
    }

private:
    std::string Address() const { return m_home.filePath("casework.sqlite").toStdString(); }

    void FillStore()
    {
        Store store(Address());
        const PanelReading reading = ReadPanelFile(m_table.toStdString());
        CarryOutImport(PlanImport(reading.Markers, {}, store), store);
        ParameterStore parameters(store);
        parameters.Create("Paternity", TagLists::OneEmpty);
        parameters.Create("Validation", TagLists::OneEmpty);
        const auto casework = parameters.Create("Casework", TagLists::OneEmpty);
        for (const char* tag : {"D3S1358", "vWA", "D16S539", "TPOX", "TH01", "D21S11", "FGA"})
        {
            const auto entry = parameters.NewEntry();
            entry->SetTagName(tag);
            if (entry->Load() == LoadResult::Loaded)
                casework->FragAnalysisParam().LocusTagList(0).Add(entry);
        }
        parameters.Save(*casework);
        QSettings().setValue("parameters/" + QString::fromStdString(Address()).toUtf8().toHex(),
                             "Casework");
    }

    void Settle() { QTest::qWait(150); }

    void Take(QWidget& window, const QString& name)
    {
        const QString path = m_directory + "/" + name + ".png";
        if (!window.grab().save(path))
            std::fprintf(stderr, "%s can't be written\n", qPrintable(path));
    }

    void OnModal(std::function<void(QDialog&)> act)
    {
        auto* timer = new QTimer;
        const QWidget* before = QApplication::activeModalWidget();
        QObject::connect(timer, &QTimer::timeout, timer, [timer, before, act = std::move(act)] {
            auto* dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog == before)
                return;
            timer->stop();
            timer->deleteLater();
            act(*dialog);
            dialog->reject();
        });
        timer->start(20);
    }

    /// Highlights the first selected locus, so that the commands are about it.
    void Highlight(MainWindow& window)
    {
        auto* grid = window.findChild<QTableView*>("gridSelected");
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid->visualRect(grid->model()->index(0, 0)).center());
    }

    void TakeEditor(MainWindow& window, const QString& suffix)
    {
        Highlight(window);
        OnModal([&](QDialog& editor) {
            // The screen of the platform without one is smaller than the form.
            editor.resize(1020, 860);
            Settle();
            editor.findChild<QWidget*>("ctlPaneAlleleList")->findChild<QTableView*>()->selectRow(3);
            Settle();
            Take(editor, "editor" + suffix);
            editor.findChild<QTabWidget*>()->setCurrentIndex(1);
            Settle();
            Take(editor, "editor-criteria" + suffix);
            editor.findChild<QTabWidget*>()->setCurrentIndex(0);
            auto* alleles =
                editor.findChild<QWidget*>("ctlPaneAlleleList")->findChild<QTableView*>();
            alleles->model()->setData(alleles->model()->index(2, 3), "96.2");
            alleles->model()->setData(alleles->model()->index(12, 3), "140.5");
            alleles->model()->setData(alleles->model()->index(12, 2), "139.5");
            alleles->model()->setData(alleles->model()->index(12, 1), "140");
            auto* end = editor.findChild<QLineEdit*>("txtFragEnd");
            end->setFocus();
            Settle();
            Take(editor, "editor-problems" + suffix);
            if (!suffix.isEmpty())
                return;
            OnModal([&](QDialog& saveAs) {
                Settle();
                Take(saveAs, "save-as");
            });
            QTest::mouseClick(editor.findChild<QWidget*>("cmdSaveAs"), Qt::LeftButton);
        });
        window.findChild<QAction*>("editLocus")->trigger();
    }

    void TakeMenu(MainWindow& window)
    {
        auto* grid = window.findChild<QTableView*>("gridAvailable");
        const QPoint place = grid->visualRect(grid->model()->index(1, 0)).center();
        QTimer::singleShot(300, &window, [&] {
            QWidget* menu = QApplication::activePopupWidget();
            if (menu == nullptr)
                return;
            Take(*menu, "menu");
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                grid->viewport()->mapToGlobal(place));
        QApplication::sendEvent(grid->viewport(), &event);
    }

    void TakePicker(MainWindow& window)
    {
        auto* grid = window.findChild<QTableView*>("gridAvailable");
        QTest::keyClick(grid, Qt::Key_A, Qt::ControlModifier);
        OnModal([&](QDialog& picker) {
            Settle();
            Take(picker, "pick-locus");
        });
        window.findChild<QAction*>("editLocus")->trigger();
    }

    void TakeFailure(MainWindow& window)
    {
        OnModal([&](QDialog& box) {
            Settle();
            Take(box, "failure");
        });
        window.OpenStore(m_table.toStdString());
    }

    void TakeImport(MainWindow& window)
    {
        Store store(m_home.filePath("other.sqlite").toStdString());
        ImportDialog dialog(store, m_frontEnd.UserActions(), &window);
        dialog.Preview(m_table);
        dialog.show();
        Settle();
        Take(dialog, "import");
    }

    QString m_table;
    QString m_directory;
    QTemporaryDir m_home;
    DesktopFrontEnd m_frontEnd;
};

} // namespace

int main(int count, char** arguments)
{
    if (count != 3)
    {
        std::fprintf(stderr, "usage: tamrivo_screenshots TABLE DIRECTORY\n");
        return 2;
    }
    const QTemporaryDir home;
    qputenv("XDG_STATE_HOME", home.path().toUtf8());
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    const QApplication application(count, arguments);
    QApplication::setApplicationName("tamrivo-desktop");
    QApplication::setOrganizationName("tamrivo");
    QApplication::setStyle(QStyleFactory::create("fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QDir().mkpath(arguments[2]);
    Photographer(arguments[1], arguments[2]).TakeAll();
    return 0;
}
