// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/mouse/wizard_values.h"
#include "composer/statement_inserter.h"
#include "platform/context.h"
#include "platform/control_array.h"

#include <QDialog>
#include <QPointer>
#include <QRadioButton>

#include <memory>

class QLabel;

namespace zeph {

class ViewImage;

namespace Ui {
class MouseProgram;
}

/// The advanced mouse programming wizard. Each page tells what to do on the picture in the Image
/// Viewer, and shows the statement that comes of it. What was measured outlives the viewer; closing
/// this window clears it.
class MouseProgram : public QDialog
{
    Q_OBJECT
public:
    /// The documents and the Editor must outlive the window.
    MouseProgram(const Context &context, Documents &documents, ComposerEditor &editor,
                 QWidget *parent = nullptr);
    ~MouseProgram() override;

    /// Has the Image Viewer shown and stands beside it. Always true.
    bool Form_Load();
    /// The gestures of this window count from now on.
    void useViewer(ViewImage *viewer);

    /// Adds the picture's size to the screen resolutions and selects it, and shows everything else
    /// that depends on the size.
    void FillFields();

    MouseWizardPage page() const { return m_page; }

Q_SIGNALS:
    /// The Image Viewer is to be shown; useViewer() is to be called with it.
    void viewerWanted();
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

public Q_SLOTS:
    void reject() override;

private:
    /// Command1, by index.
    enum Button { Insert, Next, Back, Cancel };

    void FillCoordinateLists();
    void connectFields();
    void Command1_Click(int index);
    void insert();
    void goNext();
    void showPage(MouseWizardPage page);
    /// Asks the viewer for the page's gesture.
    void askForGesture();
    /// Gives what was measured back to a viewer that was closed and shows the same picture again.
    void pictureLoaded();
    /// Notes what the viewer measured, for when it is closed.
    void noteMeasures();
    MouseWizardFields fields() const;
    RotateTexts finalValues() const;
    void OptionMouseMove_Click();
    /// Shows what follows from measures and fields.
    void refresh();
    void UpdateXYFields();
    void UpdateMouseXYstatement();
    void UpdateMouseMoveStatement();
    void UpdateMouseInfoValue();
    /// Fills the last page from the gestures; false, which is told, when one is missing.
    bool UpdateMouseRotateFields();

    Context m_context;
    Documents &m_documents;
    StatementInserter m_inserter;
    std::unique_ptr<Ui::MouseProgram> m_ui;
    ControlArray<QPushButton> m_buttons; ///< Command1
    ControlArray<QRadioButton> m_movements; ///< OptionMouseMove
    ControlArray<QLabel> m_info; ///< LBL_MouseInfo
    ControlArray<QLineEdit> m_values; ///< Text_finalValues
    /// What was measured last, and on which picture.
    struct Noted {
        QString path;
        QSize picture;
        Measures measures;
    };

    QPointer<ViewImage> m_viewer;
    Noted m_noted; ///< counts while there is no viewer
    bool m_viewerIsBack = false; ///< after it was closed; it has not shown a picture yet
    MouseWizardPage m_page = MouseWizardPage::Introduction;
};

} // namespace zeph
