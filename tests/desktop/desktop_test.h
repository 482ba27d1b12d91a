#pragma once

#include "desktop/forms/form_view.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/wizard_dialog.h"
#include "desktop/window/store_session.h"

#include <QDialog>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace Tamrivo::Testing
{

/// Does something with the next modal dialog that opens, and complains if it is still open after,
/// or if none has opened by the end of the test.
void OnModal(std::function<void(QDialog&)> act);

/// Presses the button of a message box or dialog that bears the text (its access key left out).
void Press(QDialog& dialog, const QString& text);

/// Closes the editor without saving, whatever was changed.
void Discard(WizardDialog& editor);

/// The widget with an object name, below another.
template <class Kind = QWidget>
Kind& Named(QWidget& in, const QString& name)
{
    auto* found = in.findChild<Kind*>(name);
    if (found == nullptr)
        throw std::runtime_error("There is no widget " + name.toStdString());
    return *found;
}

/// Types characters one by one into the widget, as a person does.
void Type(QWidget& widget, const QString& text);

/// Gives the widget the focus as the mouse does.
void Focus(QWidget& widget);

/// Types another text into a field of a window.
void Replace(QWidget& window, const QString& field, const QString& text);

/// A store with the loci "D3S1358" (80 to 136 nt, dye D1, panel "H24"), "TH01" (120 to 180, D1) and
/// "FGA" (200 to 300, D2, "H24") and the empty parameters "Casework" and "Research", in the
/// windows' front end.
class DesktopTest : public testing::Test
{
protected:
    DesktopTest();
    ~DesktopTest() override;

    HostApplication& Host() { return m_session->Host(); }
    std::string Address() const { return m_directory.filePath("store.sqlite").toStdString(); }
    std::shared_ptr<Locus> Stored(const std::string& tag) { return Host().Store().FindLocus(tag); }

    /// Runs the editor on a stored locus, or on a new one for an empty tag.
    WizardOutcome Edit(const std::string& tag, const std::function<void(WizardDialog&)>& act);

    QTemporaryDir m_directory;
    DesktopFrontEnd m_frontEnd;
    std::unique_ptr<StoreSession> m_session;
};

} // namespace Tamrivo::Testing
