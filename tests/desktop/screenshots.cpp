#include "desktop/alleles/allele_picture.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/message_boxes.h"
#include "desktop/front_end/wizard_dialog.h"
#include "desktop/import/export_dialog.h"
#include "desktop/import/import_dialog.h"
#include "desktop/library/library_table.h"
#include "desktop/reports/reports_window.h"
#include "desktop/window/dyes_dialog.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "host/grid/grid_user.h"
#include "host/panels/import.h"
#include "host/panels/panel_files.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSettings>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>

// Draws every window of the desktop program, filled from a panel table, into PNG files.

namespace
{

using namespace Tamrivo;

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
        window.Bench().OpenStore(Address());
        Settle();
        TakeLibrary(window);
        window.Commands()[Do<&ViewCommands::UseDarkTheme>].trigger();
        Settle();
        Take(window, "library-dark");
        window.Commands()[Do<&ParameterCommands::TurnToSelector>].trigger();
        Settle();
        Take(window, "selector-dark");
        TakeEditor(window, "-dark");
        window.Commands()[Do<&ViewCommands::UseLightTheme>].trigger();
        Settle();
        Take(window, "selector");
        TakeEditor(window, "");
        TakeMenu(window);
        window.Commands()[Do<&ParameterCommands::TurnToSelector>].trigger();
        TakeFailure(window);
        TakeImport(window);
        TakeExport(window);
        TakeLarge(window);
        window.Commands()[Do<&ReportCommands::ShowAll>].trigger();
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
        const PanelFile table = OpenPanelFile(m_table.toStdString());
        const PanelReading reading = ReadPanels({&table, 1});
        CarryOutImport(PlanImport(reading.Markers, {}, store), store);
        store.SetDyes(
            Dyes({{"blue", ""}, {"green", ""}, {"yellow", ""}, {"red", ""}, {"purple", ""}}));
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
        QObject::connect(
            timer, &QTimer::timeout, timer, [this, timer, before, act = std::move(act)] {
                auto* dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
                if (dialog == nullptr || dialog == before)
                    return;
                timer->stop();
                timer->deleteLater();
                act(*dialog);
                Close(*dialog);
            });
        timer->start(20);
    }

    /// Closes a dialog, and the question whether what was changed may be lost.
    void Close(QDialog& dialog)
    {
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, &dialog, [&] {
            auto* question = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question == nullptr || question == &dialog)
                return;
            Take(*question, "discard");
            for (QAbstractButton* button : question->buttons())
            {
                if (question->buttonRole(button) == QMessageBox::DestructiveRole)
                    button->click();
            }
        });
        answer.start(100);
        dialog.reject();
    }

    /// Highlights the first selected locus, so that the commands are about it.
    void Highlight(MainWindow& window)
    {
        auto* grid = window.findChild<QTableView*>("gridSelected");
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid->visualRect(grid->model()->index(0, 0)).center());
    }

    static QDialog& OpenEditor()
    {
        const auto windows = QApplication::topLevelWidgets();
        return dynamic_cast<QDialog&>(**std::ranges::find_if(windows, [](QWidget* window) {
            return dynamic_cast<WizardDialog*>(window) != nullptr && window->isVisible();
        }));
    }

    void TakeEditor(MainWindow& window, const QString& suffix)
    {
        Highlight(window);
        window.Commands()[Do<&LocusCommands::Edit>].trigger();
        Settle();
        QDialog& editor = OpenEditor();
        // The screen of the platform without one is smaller than the form.
        editor.resize(1020, 860);
        Settle();
        editor.findChild<QWidget*>("ctlPaneAlleleList")->findChild<QTableView*>()->selectRow(3);
        Settle();
        Take(editor, "editor" + suffix);
        TakeBins(editor, suffix);
        editor.findChild<QTabWidget*>()->setCurrentIndex(1);
        Settle();
        Take(editor, "editor-criteria" + suffix);
        editor.findChild<QTabWidget*>()->setCurrentIndex(0);
        auto* alleles = editor.findChild<QWidget*>("ctlPaneAlleleList")->findChild<QTableView*>();
        alleles->model()->setData(alleles->model()->index(2, 3), "96.2");
        alleles->model()->setData(alleles->model()->index(12, 3), "140.5");
        alleles->model()->setData(alleles->model()->index(12, 2), "139.5");
        alleles->model()->setData(alleles->model()->index(12, 1), "140");
        auto* end = editor.findChild<QLineEdit*>("txtFragEnd");
        end->setFocus();
        QTest::qWait(500); // What a check finds comes shortly after.
        Take(editor, "editor-problems" + suffix);
        if (suffix.isEmpty())
        {
            OnModal([&](QDialog& saveAs) {
                Settle();
                Take(saveAs, "save-as");
            });
            QTest::mouseClick(editor.findChild<QWidget*>("cmdSaveAs"), Qt::LeftButton);
        }
        Close(editor);
    }

    /// The picture of the bins with the mouse at work in it, and in the colour of another dye.
    void TakeBins(QDialog& editor, const QString& suffix)
    {
        const auto widgets =
            editor.findChild<QWidget*>("ctlPaneAlleleList")->findChildren<QWidget*>();
        auto* picture = dynamic_cast<AllelePicture*>(*std::ranges::find_if(
            widgets, [](QWidget* one) { return dynamic_cast<AllelePicture*>(one) != nullptr; }));
        const auto at = [picture](double length) {
            return QPoint(static_cast<int>(picture->Axis().X(length)),
                          static_cast<int>(picture->Band().center().y()));
        };
        const auto& bins = picture->Shapes();
        // The screen of the platform without one doesn't reach as far down.
        const QPointF gap = at((bins[5].To + bins[6].From) / 2);
        QMouseEvent hover(QEvent::MouseMove, gap, picture->mapToGlobal(gap), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(picture, &hover);
        Take(editor, "editor-adding" + suffix);
        QTest::mousePress(picture, Qt::LeftButton, {}, at(bins[3].To));
        QTest::mouseMove(picture, at(bins[3].To + 1));
        Take(editor, "editor-dragging" + suffix);
        QTest::keyClick(picture, Qt::Key_Escape);
        QTest::mouseRelease(picture, Qt::LeftButton, {}, at(bins[3].To + 1));
        auto* dye = editor.findChild<QComboBox*>("cmbDye");
        const int before = dye->currentIndex();
        for (const int chosen : {4, before})
        {
            dye->setCurrentIndex(chosen);
            emit dye->activated(chosen);
            if (chosen != before)
                Take(editor, "editor-purple" + suffix);
        }
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

    void ChooseRows(MainWindow& window, const std::vector<int>& rows)
    {
        window.findChild<LibraryTable*>("loci")->ChooseRows(rows);
        Settle();
    }

    void TakeLibrary(MainWindow& window)
    {
        auto* preview = window.findChild<QTabWidget*>("preview");
        ChooseRows(window, {2});
        Take(window, "library");
        preview->setCurrentIndex(1);
        Settle();
        Take(window, "library-lanes");
        preview->setCurrentIndex(2);
        Settle();
        Take(window, "library-details");
        ChooseRows(window, {2, 5});
        window.Commands()[Do<&LocusCommands::Compare>].trigger();
        Settle();
        Take(window, "library-compare");
        auto* search = window.findChild<QLineEdit*>("search");
        search->setText("dye:blue range:100-200");
        Settle();
        Take(window, "library-search");
        search->setText("dye:pink");
        Settle();
        Take(window, "library-search-error");
        search->clear();
        preview->setCurrentIndex(0);
        ChooseRows(window, {4, 5, 6});
        window.resize(1024, 700);
        Settle();
        Take(window, "library-small");
        window.resize(1240, 900);
        OnModal([&](QDialog& list) {
            Settle();
            Take(list, "commands");
        });
        window.Commands()[Do<&Commands::ShowList>].trigger();
        OnModal([&](QDialog& question) {
            Settle();
            Take(question, "delete");
        });
        window.Commands()[Do<&LocusCommands::Delete>].trigger();
        ChooseRows(window, {3});
    }

    /// A large screen, and text of 130 percent.
    void TakeLarge(MainWindow& window)
    {
        window.resize(2200, 1300);
        Settle();
        Take(window, "library-large");
        window.resize(1240, 900);
        const QFont font = QApplication::font();
        QFont larger = font;
        larger.setPointSizeF(font.pointSizeF() * 1.3);
        QApplication::setFont(larger);
        ChooseRows(window, {3});
        Take(window, "library-large-text");
        window.Commands()[Do<&LocusCommands::Edit>].trigger();
        Settle();
        QDialog& editor = OpenEditor();
        editor.resize(1340, 1000);
        Settle();
        Take(editor, "editor-large-text");
        Close(editor);
        QApplication::setFont(font);
    }

    void TakeFailure(MainWindow& window)
    {
        OnModal([&](QDialog& box) {
            Settle();
            Take(box, "failure");
        });
        window.Bench().OpenStore(m_table.toStdString());
    }

    void TakeImport(MainWindow& window)
    {
        Store store(m_home.filePath("other.sqlite").toStdString());
        ImportDialog dialog(store, m_frontEnd.UserActions(), &window);
        dialog.Preview({m_table});
        dialog.show();
        Settle();
        Take(dialog, "import");
    }

    void TakeExport(MainWindow& window)
    {
        Store store(Address());
        ExportDialog dialog(store, m_frontEnd.UserActions(), &window);
        dialog.findChild<QComboBox*>("exportFormat")->setCurrentIndex(1);
        dialog.show();
        Settle();
        Take(dialog, "export");
        DyesDialog dyes(store, m_frontEnd.UserActions(), &window);
        dyes.findChild<QPushButton*>("addDye")->click();
        dyes.show();
        Settle();
        Take(dyes, "store-properties");
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
