#include "desktop_test.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace Tamrivo::Testing
{

namespace
{

constexpr const char* awaitedModal = "awaitedModal";

void AddLocus(Store& store, const std::string& tag, int dye, int from, int to,
              const std::string& panel)
{
    const auto locus = CreateObject<Locus>(store.Manager(), "Locus");
    const auto project = store.ProjectNamed("Default");
    locus->SetLocusTag(tag);
    locus->SetIsCurrent(true);
    locus->ProjectID = project->ProjectID();
    locus->ProjectName = project->Name();
    locus->PrimerSet = panel;
    locus->DyeIndex = dye;
    locus->FragStart = locus->ShortestAlleleSize = from;
    locus->FragEnd = to;
    locus->AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
    locus->GenerateAlleles();
    store.Manager().Save(*locus, true);
}

/// The store that each test begins with.
class FilledStore
{
public:
    FilledStore()
    {
        Store store(Path().toStdString());
        AddLocus(store, "D3S1358", 0, 80, 136, "H24");
        AddLocus(store, "TH01", 0, 120, 180, "");
        AddLocus(store, "FGA", 1, 200, 300, "H24");
        ParameterStore parameters(store);
        for (const char* name : {"Casework", "Research"})
            parameters.Create(name, TagLists::OneEmpty);
    }

    QString Path() const { return m_directory.filePath("store.sqlite"); }

private:
    QTemporaryDir m_directory;
};

} // namespace

void OnModal(std::function<void(QDialog&)> act)
{
    auto* timer = new QTimer(qApp);
    timer->setObjectName(awaitedModal);
    const QWidget* before = QApplication::activeModalWidget();
    QObject::connect(timer, &QTimer::timeout, timer, [timer, before, act = std::move(act)] {
        auto* dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == before || !dialog->isVisible())
            return;
        timer->stop();
        timer->setObjectName({});
        timer->deleteLater();
        QApplication::setActiveWindow(dialog);
        act(*dialog);
        if (dialog->isVisible())
        {
            ADD_FAILURE() << "The dialog " << dialog->windowTitle().toStdString()
                          << " is still open";
            dialog->reject();
        }
    });
    timer->start(5);
}

void Press(QDialog& dialog, const QString& text)
{
    for (auto* button : dialog.findChildren<QAbstractButton*>())
    {
        if (button->text().remove('&') == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << "There is no button " << text.toStdString();
}

void Discard(WizardDialog& editor)
{
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, &editor, [&] {
        auto* question = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        if (question != nullptr && question != &editor)
            Press(*question, "Discard Changes");
    });
    answer.start(5);
    editor.reject();
}

void Type(QWidget& widget, const QString& text)
{
    for (const QChar character : text)
        QTest::keyClick(&widget, character.toLatin1());
}

void Focus(QWidget& widget)
{
    widget.setFocus(Qt::MouseFocusReason);
    QCoreApplication::processEvents();
}

void Replace(QWidget& window, const QString& field, const QString& text)
{
    auto& widget = Named<QLineEdit>(window, field);
    Focus(widget);
    widget.selectAll();
    Type(widget, text);
}

DesktopTest::DesktopTest()
{
    // Each change of a store waits for the disk, the copy of a whole one doesn't.
    static const FilledStore filled;
    QFile::copy(filled.Path(), m_directory.filePath("store.sqlite"));
    m_session = std::make_unique<StoreSession>(Address(), m_frontEnd);
}

DesktopTest::~DesktopTest()
{
    for (QTimer* timer : qApp->findChildren<QTimer*>(awaitedModal))
    {
        ADD_FAILURE() << "A dialog was awaited and never opened";
        delete timer;
    }
}

WizardOutcome DesktopTest::Edit(const std::string& tag,
                                const std::function<void(WizardDialog&)>& act)
{
    OnModal([&](QDialog& dialog) { act(dynamic_cast<WizardDialog&>(dialog)); });
    return tag.empty() ? Host().NewLocus(false) : Host().EditLocus(tag, false);
}

} // namespace Tamrivo::Testing
