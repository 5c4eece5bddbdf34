// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/control_array.h"

#include <QLabel>

#include <memory>

class QAction;

namespace zeph {

class Documents;

namespace Ui {
class LogicFlagsDetected;
}

/// Shows which of the logical flags the joystick file leaves free. It looks again whenever it is
/// shown or activated.
class LogicFlagsDetected : public QWidget
{
    Q_OBJECT
public:
    /// The entry of the Editor's menu starts the Logical Flag viewer. It and the documents must
    /// outlive the window.
    LogicFlagsDetected(const Context &context, Documents &documents, QAction *viewer,
                       QWidget *parent = nullptr);
    ~LogicFlagsDetected() override;

    /// Turns the labels of the free flags green. An empty file leaves them all green.
    void CheckForUnassignedFlags();
    /// Puts the window where it was when it was closed, or beside its parent.
    void PositionLogicDetector();
    void SaveLogicDetectorPosition();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeLabels();
    void showFlag(int flag, bool isFree) const;

    Context m_context;
    Documents &m_documents;
    std::unique_ptr<Ui::LogicFlagsDetected> m_ui;
    ControlArray<QLabel> m_labels; ///< Label1
};

} // namespace zeph
